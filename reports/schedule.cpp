#include "reports/schedule.h"

#include <fmt/format.h>

#include "core/directory.h"
#include "core/state.h"
#include "reports/prediction_text.h"
#include "reports/report_file.h"

namespace veraqua {

namespace {

/// What the row says of its next irrigation.
std::string NextIrrigation(const StatRecord& row) {
    const PredictionText text = PlainPrediction(row, State.EnglishUnits);
    return text.Amount.empty() ? text.Date : text.Date + "\t" + text.Amount;
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

void SaveSchedule(Ask& ask) { SaveReport(ask, SavedSchedule, ScheduleText(ask)); }

}  // namespace veraqua
