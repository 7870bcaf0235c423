#include "workbench/cutting.h"

#include <cmath>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/state.h"

namespace veraqua {

namespace {

/// Why the hay in work can't have been cut on `day`; nothing if it can.
std::optional<Refused> RefusedOn(JulianValue day) {
    if (day < State.Hay.PlantDay)
        return Refused{fmt::format("Use a Date after {}.  Only data after growth onset can be used.",
                                   JulianToShortText(State.Hay.PlantDay)),
                       std::string(ProgramTitle), Given::Date};
    if (day > State.TodayJulian)
        return Refused{fmt::format("Use a Date before {}.  Can't count on future weather or work...",
                                   JulianToShortText(State.TodayJulian + 1)),
                       std::string(ProgramTitle), Given::Date};
    return std::nullopt;
}

/// What is wrong with a cut number; nothing if it can be recorded.
std::optional<Refused> RefusedNumber(std::optional<double> number) {
    const auto refuse = [](const char* text) { return Refused{text, "Input Error", Given::CutNumber}; };
    if (!number) return refuse("Please enter a number value for your cut number");
    if (std::floor(*number) != *number) return refuse("Please enter a whole number for your cut number");
    if (*number < 0) return refuse("Please enter a positive whole number for your cut number");
    if (!FitsInteger16(*number))
        return Refused{.Text = fmt::format("Please enter a cut number of at most {}", MostStored),
                       .Title = "Input Error",
                       .Where = Given::CutNumber,
                       .IsOverflow = true};
    return std::nullopt;
}

}  // namespace

OrRefused<FieldChange> RecordCutting(Ask& ask, JulianValue day, std::optional<double> number) {
    if (auto refused = RefusedOn(day)) return *refused;
    if (auto refused = RefusedNumber(number)) return *refused;
    return RecordAndRun(ask, &FieldLists::Cuttings, day, *number == 0 ? std::nullopt : number);
}

OrRefused<FieldChange> RemoveCutting(Ask& ask, JulianValue day) {
    if (auto refused = RefusedOn(day)) return *refused;
    if (!ask.YesNo(fmt::format("Are you sure you wish to delete the CUTTING on: {}?", JulianToShortText(day)),
                   "DELETE Confirmation", Icon::Question, false))
        return Refused{};
    return RecordAndRun(ask, &FieldLists::Cuttings, day, std::nullopt);
}

OrRefused<FieldChange> RestoreCuttings(Ask& ask, const std::vector<EventRecord>& cuttings) {
    std::optional<FieldChange> done = ChangeAndRun(ask, [&](FieldInHand& field) {
        RecordCuttingList(field.File, cuttings);
        return true;
    });
    if (!done) return Refused{};
    return *std::move(done);
}

}  // namespace veraqua
