#include "workbench/change_line.h"

#include <fmt/format.h>

#include "core/calendar.h"
#include "core/state.h"
#include "reports/report_text.h"

namespace veraqua {

namespace {

/// What a field's row says of its next irrigation.
std::string NextIrrigation(const StatRecord& row) {
    if (row.NextIrrAmount == AmountNotRequired) return "not required";
    if (row.NextIrrAmount == AmountHarvest) return "harvest instead";
    if (row.NextIrrAmount == AmountNoDataYet || row.NextIrrDay == 0) return "not known";
    return JulianToShortText(row.NextIrrDay);
}

std::string Move(std::string_view what, const std::string& from, const std::string& to) {
    return from == to ? fmt::format("{} stays: {}.", what, to) : fmt::format("{} moves from {} to {}.", what, from, to);
}

std::string DayOrUnknown(JulianValue day) { return day == 0 ? "not known" : JulianToShortText(day); }

}  // namespace

std::string ChangeLine(const StatRecord& before, const StatRecord& after) {
    std::string line = Move("Next irrigation", NextIrrigation(before), NextIrrigation(after));
    if (before.NextIrrAmount > 0 && after.NextIrrAmount > 0 && before.NextIrrAmount != after.NextIrrAmount)
        line += fmt::format(" Its amount changes from {} to {}.",
                            IrrigationAmount(before.NextIrrAmount, State.EnglishUnits),
                            IrrigationAmount(after.NextIrrAmount, State.EnglishUnits));
    if (before.NextCutDay != after.NextCutDay)
        line += ' ' + Move("Next cutting", DayOrUnknown(before.NextCutDay), DayOrUnknown(after.NextCutDay));
    return line;
}

std::string ChangeLine(const FieldChange& change) {
    if (change.HasRun()) return ChangeLine(change.Before, change.After);
    return "The change is recorded, but the field was not run: its predictions are those from before.";
}

}  // namespace veraqua
