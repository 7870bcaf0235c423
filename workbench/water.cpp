#include "workbench/water.h"

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/base/units.h"
#include "core/state.h"

namespace veraqua {

namespace {

/// Why the field in work can't get water on `day`, or lose it; nothing if it can.
std::optional<Refused> RefusedOn(JulianValue day) {
    const JulianValue depletionSet = State.Updates[State.CurrentField];
    const JulianValue planted = State.Header().PlantDay;
    if (depletionSet > 0 && day <= depletionSet)
        return Refused{
            "Irrigation dates prior to updated 'Depletion Date' are not allowed.  Reset 'Depletion' if you "
            "want to add water.",
            "Veraqua Warning", Given::Date};
    if (State.DriedOutDay >= 1 && day >= State.DriedOutDay)
        return Refused{
            fmt::format("Your field dried out (99% water depletion) on {}.  Irrigation must be prior to that "
                        "date.",
                        JulianToShortText(State.DriedOutDay)),
            "Depletion Warning", Given::Date};
    if (day < planted + 1)
        return Refused{fmt::format("Use a Date after {}.  Dates on or prior to planting date are not permitted.",
                                   JulianToShortText(State.IsHay ? planted + 1 : planted)),
                       "Invalid Water Date", Given::Date};
    if (day > State.TodayJulian)
        return Refused{fmt::format("Use a Date before {}.  Dates into the future are not permitted.",
                                   JulianToShortText(State.TodayJulian + 1)),
                       std::string(ProgramTitle), Given::Date};
    return std::nullopt;
}

/// What is wrong with an amount; nothing if it can be recorded.
std::optional<Refused> RefusedAmount(Water kind, std::optional<double> mm) {
    if (!mm)
        return Refused{kind == Water::Rain ? "Please enter a value for your rainfall amount"
                                           : "Please enter a value for your irrigation amount",
                       "Missing Data!", Given::Amount};
    if (*mm <= 0)
        return Refused{"Please enter a value greater than 0.  Use Delete button if deleting values", "Bad Data!",
                       Given::Amount};
    if (!FitsInteger16(*mm))
        return Refused{
            .Text = fmt::format("Please enter a value of at most {}",
                                State.EnglishUnits ? Masked(MostStored / MillimetresPerInch, "0.00") + " inches"
                                                   : fmt::format("{} mm", MostStored)),
            .Title = "Bad Data!",
            .Where = Given::Amount,
            .IsOverflow = true};
    return std::nullopt;
}

KeptList ListOf(Water kind) { return kind == Water::Rain ? &FieldLists::Rain : &FieldLists::Irrigation; }

}  // namespace

OrRefused<FieldChange> RecordWater(Ask& ask, Water kind, JulianValue day, std::optional<double> mm) {
    if (auto refused = RefusedOn(day)) return *refused;
    if (auto refused = RefusedAmount(kind, mm)) return *refused;
    OrRefused<FieldChange> outcome = RecordAndRun(ask, ListOf(kind), day, ToSingle(*mm, "Amount of water"));
    if (!outcome.IsDone()) return outcome;
    FieldChange change = *outcome;
    change.IsNoWater = ToInteger16(*mm, "Amount of water") == 0;
    return change;
}

OrRefused<FieldChange> RemoveWater(Ask& ask, Water kind, JulianValue day) {
    if (auto refused = RefusedOn(day)) return *refused;
    const std::string_view question = kind == Water::Rain ? "Are you sure you wish to delete rainfall data on: "
                                                          : "Are you sure you wish to delete irrigation on: ";
    if (!ask.YesNo(fmt::format("{}{}?", question, JulianToShortText(day)), "DELETE Confirmation", Icon::Question,
                   false))
        return Refused{};
    return RecordAndRun(ask, ListOf(kind), day, std::nullopt);
}

OrRefused<FieldChange> RestoreWater(Ask& ask, const std::vector<EventRecord>& rain,
                                    const std::vector<EventRecord>& irrigation) {
    std::optional<FieldChange> done = ChangeAndRun(ask, [&](FieldInHand& field) {
        RecordWaterLists(field.File, rain, irrigation);
        return true;
    });
    if (!done) return Refused{};
    return *std::move(done);
}

}  // namespace veraqua
