#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/ask.h"
#include "core/calendar.h"
#include "core/field_file.h"
#include "core/shown/colour.h"

/// The bars of all fields: for each the water of its root zone.
namespace veraqua {

/// One field of the display.
struct GraphRow {
    std::int16_t Row = 0;  ///< of the directory
    std::string FieldId;
    std::string CropName;
    float Depletion = 0;     ///< percent, of the present day
    float MadNow = 0;        ///< percent
    float WaterContent = 0;  ///< water of the root zone, percent of what it holds
    JulianValue PlantDate = 0;
    JulianValue NextIrrDate = 0;  ///< or one of two marks that sort ahead of all days
    JulianValue LastDate = 0;
};

/// `NextIrrDate` where harvest is due, and where there are no data.
constexpr JulianValue HarvestDueDate = JulianFromDate(1, 1, 1901);
constexpr JulianValue NoDataDate = JulianFromDate(2, 2, 1902);

/// Of the field in row `number` of the directory, which says `row`. RunTimeFailure where the numbers of the file can't
/// be computed with.
GraphRow GraphRowOf(int number, const StatRecord& row, const FieldFile& file, JulianValue today);

/// Those of all fields in the order of the directory. One whose file is missing or damaged is left out, after the user
/// has been told.
std::vector<GraphRow> GraphRows(Ask& ask);

enum class GraphOrder { PlantDate, CropName, FieldId, NextIrrDate };

/// Orders `rows`, rising, by an exchange sort with a shrinking gap, which settles the order of equal keys.
void SortGraphRows(std::vector<GraphRow>& rows, GraphOrder order);

/// What a field's panel shows.
struct GraphPanel {
    std::string Caption;
    float Value = 0;  ///< of the bar, 0 to 100
    std::string WaterContent;
    std::string Mad;
    std::string Depletion;
    std::optional<Colour> Warning;  ///< that backs it
};

GraphPanel PanelOf(const GraphRow& row);

}  // namespace veraqua
