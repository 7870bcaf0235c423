#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ask.h"
#include "core/field_file.h"

/// The field report: the full record of one field.
namespace veraqua {

/// What a field report says, in one unit system, whatever it is put on.
struct FieldReport {
    bool IsHay = false;
    std::string FieldId;   ///< with all blanks
    std::string CropName;  ///< likewise
    std::string PlantDay;
    std::string Mad;         ///< percent
    std::string Efficiency;  ///< percent
    std::string TotalIrrigation;
    std::string TotalRainfall;
    std::string TotalLeaching;
    std::vector<std::string> Division;  ///< how the soil is divided
    std::vector<std::string> Capacity;  ///< soil lines
    std::vector<std::string> InitialContent;
    std::vector<std::string> Predictions;  ///< none of a field that has been harvested
    std::vector<std::string> History;      ///< the table of days, with its heading
};

/// `row` is the field's row of the directory. RunTimeFailure where the numbers of the file can't be computed with.
FieldReport GatherFieldReport(const FieldFile& file, const StatRecord& row, bool english);

/// The report of a harvested field, which has no row any more. RunTimeFailure likewise.
FieldReport GatherHarvestedReport(const FieldFile& file, bool english);

/// How the lines of a report begin that name the field and its totals.
struct FieldReportLabels {
    std::string_view FieldId;
    std::string_view CropName;
    std::string_view PlantDay;
    std::string_view TotalIrrigation;
    std::string_view TotalRainfall;
    std::string_view TotalLeaching;
};

/// The lines down to the totals and the empty line behind them. `today` is the day that the report shows as its own.
std::vector<std::string> FieldLines(const FieldReport& report, const FieldReportLabels& labels, JulianValue today);

/// The lines from the soil's capacity to the predictions.
std::vector<std::string> SoilAndPredictionLines(const FieldReport& report);

/// The report as it is saved.
std::string FieldReportText(const FieldReport& report, JulianValue today);

/// The report of the field in row `row` of the directory; the state stays as it is. Nothing if the field's file is
/// missing, after the user has been told. RunTimeFailure, naming the file, if it is damaged.
std::optional<FieldReport> StoredFieldReport(Ask& ask, int row);

/// That report as it is saved.
std::optional<std::string> FieldReportText(Ask& ask, int row);

/// Saves the report to `ReportFileName`, by default Field.txt in the data directory, and tells so. A Refusal if the
/// disk refuses.
void SaveFieldReport(Ask& ask, const FieldReport& report);

/// Saves that of the field in row `row`. False if the field's file is missing, after the user has been told.
bool SaveFieldReport(Ask& ask, int row);

}  // namespace veraqua
