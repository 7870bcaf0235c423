#include "reports/change_line.h"

#include <fmt/format.h>

#include "reports/prediction_text.h"
#include "reports/report_text.h"

namespace veraqua {

namespace {

std::string Move(std::string_view what, const std::string& from, const std::string& to) {
    return from == to ? fmt::format("{} stays: {}.", what, to) : fmt::format("{} moves from {} to {}.", what, from, to);
}

}  // namespace

std::string ChangeLine(const StatRecord& before, const StatRecord& after, bool english) {
    std::string line = Move("Next irrigation", MovedPrediction(before), MovedPrediction(after));
    if (before.NextIrrAmount > 0 && after.NextIrrAmount > 0 && before.NextIrrAmount != after.NextIrrAmount)
        line += fmt::format(" Its amount changes from {} to {}.", IrrigationAmount(before.NextIrrAmount, english),
                            IrrigationAmount(after.NextIrrAmount, english));
    if (before.NextCutDay != after.NextCutDay)
        line += ' ' + Move("Next cutting", ReportDate(before.NextCutDay, UnknownDay),
                           ReportDate(after.NextCutDay, UnknownDay));
    return line;
}

std::string ChangeLine(const FieldChange& change, bool english) {
    if (change.IsNoWater) return "Stored as 0 mm: less than half a millimetre counts as no water.";
    if (change.HasRun()) return ChangeLine(change.Before, change.After, english);
    return "The change is recorded, but the field was not run: its predictions are those from before.";
}

}  // namespace veraqua
