#include "reports/schedule.h"

#include <fmt/format.h>

#include "core/directory.h"
#include "core/state.h"
#include "reports/report_file.h"
#include "reports/report_text.h"

namespace veraqua {

namespace {

/// What the row says of its next irrigation.
std::string NextIrrigation(const StatRecord& row) {
    if (row.NextIrrAmount > 0)
        return ReportDate(row.NextIrrDay) + "\t" + IrrigationAmount(row.NextIrrAmount, State.EnglishUnits);
    if (row.NextIrrAmount == AmountHarvest) return "Harvest Soon!";
    if (row.NextIrrAmount == AmountNotRequired) return "Not Required";
    return "No Data Yet!";
}

}  // namespace

std::string ScheduleText(const Ask& ask) {
    std::string text = fmt::format(
        "\n"
        "   IRRIGATION PREDICTIONS as of {}\n"
        "\n"
        "   FIELD ID\tCROP NAME      IRRIGATE ON      AMOUNT\n"
        "   ===============================================\n",
        JulianToLongText(ask.Now()));
    for (const int row : RowsInUse()) {
        const StatRecord& field = State.Stat[row];
        text +=
            fmt::format("      {}\t\t{}\t{}\n", field.FieldId.Whole(), field.CropName.Whole(), NextIrrigation(field));
    }
    return text;
}

void SaveSchedule(Ask& ask) { SaveReport(ask, "Your Irrigation Schedule", "Predict.txt", ScheduleText(ask)); }

}  // namespace veraqua
