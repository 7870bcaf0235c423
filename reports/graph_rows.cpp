#include "reports/graph_rows.h"

#include <algorithm>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/state.h"
#include "reports/depletion_warning.h"
#include "reports/field_days.h"
#include "reports/stored_field.h"

namespace veraqua {

namespace {

JulianValue SortDateOf(const StatRecord& row) {
    if (row.NextIrrAmount < 0) return HarvestDueDate;
    return row.NextIrrAmount > 0 ? row.NextIrrDay : NoDataDate;
}

bool IsLater(const GraphRow& a, const GraphRow& b, GraphOrder order) {
    switch (order) {
        case GraphOrder::PlantDate: return a.PlantDate > b.PlantDate;
        case GraphOrder::CropName: return a.CropName > b.CropName;
        case GraphOrder::FieldId: return a.FieldId > b.FieldId;
        case GraphOrder::NextIrrDate: break;
    }
    return a.NextIrrDate > b.NextIrrDate;
}

std::size_t Half(std::size_t whole) { return static_cast<std::size_t>(RoundHalfEven(static_cast<double>(whole) / 2)); }

std::string Percent(float value) { return Masked(value, "0.0") + "%"; }

}  // namespace

GraphRow GraphRowOf(int number, const StatRecord& row, const FieldFile& file, JulianValue today) {
    const FieldDay day = PresentDay(file, row, today);
    return {static_cast<std::int16_t>(number),
            row.FieldId.Text(),
            row.CropName.Text(),
            static_cast<float>(ToInteger16(day.Depletion, "Depletion")),
            static_cast<float>(row.MadNow),
            ToSingle(100.0 * day.Available / day.Capacity, "Water content"),
            file.Header().PlantDay,
            SortDateOf(row),
            row.LastDay};
}

std::vector<GraphRow> GraphRows(Ask& ask) {
    std::vector<GraphRow> rows;
    ForEachStoredField(ask, [&rows](int row, const FieldFile& file) {
        rows.push_back(GraphRowOf(row, State.Stat[row], file, State.TodayJulian));
    });
    return rows;
}

void SortGraphRows(std::vector<GraphRow>& rows, GraphOrder order) {
    for (std::size_t gap = Half(rows.size() + 1); gap >= 1; gap = Half(gap)) {
        bool swapped = true;
        while (swapped) {
            swapped = false;
            for (std::size_t i = 0; i + gap < rows.size(); ++i) {
                if (!IsLater(rows[i], rows[i + gap], order)) continue;
                std::swap(rows[i], rows[i + gap]);
                swapped = true;
            }
        }
    }
}

GraphPanel PanelOf(const GraphRow& row) {
    const float value = row.WaterContent > 99 ? 100 : std::max(row.WaterContent, 0.0F);
    return {fmt::format("{} -- ID: {}", row.CropName, row.FieldId),
            value,
            Percent(value),
            "MAD:  " + Percent(row.MadNow),
            "Depletion:  " + Percent(row.Depletion),
            DepletionWarning(row.Depletion, row.MadNow)};
}

}  // namespace veraqua
