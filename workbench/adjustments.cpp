#include "workbench/adjustments.h"

#include <utility>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/base/units.h"
#include "core/directory.h"
#include "core/field_in_work.h"
#include "core/files/files.h"
#include "core/state.h"
#include "engine/soil_water.h"

namespace veraqua {

namespace {

constexpr const char* NoPercentage = "Please enter a value from 0-100.";

/// The percentage typed; nothing if it is none.
std::optional<double> Percentage(const std::string& typed) {
    const std::optional<double> value = Numeric(typed);
    return value && *value >= 0 && *value <= 100 ? value : std::nullopt;
}

Refused NotAPercentage(Given where, const char* text = NoPercentage) { return {text, "Input Error", where}; }

/// The day from which the next run goes on, with the depletion set by hand: today, or where the field stands behind
/// yesterday its last day.
JulianValue ResetDay(const StatRecord& row) {
    return row.LastDay >= State.TodayJulian - 1 ? State.TodayJulian : row.LastDay;
}

/// Changes the header of the field in work, without a run. `change` says why it doesn't.
template <class Change>
OrRefused<FieldFile> ChangeHeader(Ask& ask, Change change) {
    files::ChangeSet readOnce;
    std::optional<FieldFile> file = OpenField(ask, State.CurrentField);
    if (!file) return Refused{};
    if (std::optional<Refused> refused = change(*file)) return *refused;
    StoreFieldFile(State.CurrentField, *file);
    readOnce.Commit();
    TakeInWork(*file);
    return *std::move(file);
}

/// Sets the water of the root zone by the depletion wanted, percent.
std::optional<Refused> ResetWater(FieldInHand& field, const RootZoneNow& zone, std::int16_t depletion) {
    FieldFile& file = field.File;
    if (zone.View.Row + 1 >= file.Days.size()) {
        State.Stat[State.CurrentField].Depletion = depletion;  // which no file gets
        return Refused{"Can't update Depletion for this field, it's already exceeded the MAD.  Add water instead.",
                       "Veraqua Warning"};
    }
    field.Row.Depletion = depletion;
    field.DepletionDay = ResetDay(field.Row);
    const float water = ToSingle(zone.Capacity - depletion * static_cast<double>(zone.Capacity) / 100, "the water");
    file.Days[zone.View.Row].Available = water;
    // A field that stands behind yesterday is run on from its last day, not from the one that the panel shows.
    file.Days[AsOf(file, field.DepletionDay).Row].Available = water;
    return std::nullopt;
}

}  // namespace

RootZoneNow LookAtRootZone(const FieldFile& file) {
    RootZoneNow zone;
    zone.View = AsOf(file, StateDay(State.Stat[State.CurrentField], State.TodayJulian));
    const DayRecord& day = file.Days[zone.View.Row];
    const float roots = file.IsHay ? file.Hay.RootMax : day.RootDepthOrKc;
    zone.Capacity = SoilWaterBetween(0, roots, CapacityGrid(file.Header(), file.Soil.Bounds), file.Soil.Capacity);
    zone.Water = day.Available;
    zone.Depletion = ToInteger16(DepletionPercent(zone.Water, zone.Capacity), "the depletion");
    return zone;
}

std::string RootZoneWaterText(float water) {
    return State.EnglishUnits ? Masked(water / MillimetresPerInch * MetresPerFoot, "0.0") + " in/ft"
                              : Masked(water, "00.0") + "mm/m";
}

OrRefused<FieldFile> SetMad(Ask& ask, const std::string& mad, const std::optional<std::string>& critical) {
    const auto change = [&](FieldFile& file) -> std::optional<Refused> {
        const std::optional<double> percent = Percentage(mad);
        if (!percent) return NotAPercentage(Given::Mad);
        if (file.IsHay && critical) {
            const std::optional<double> criticalPercent = Percentage(*critical);
            if (!criticalPercent)
                return NotAPercentage(Given::CriticalMad, "Please enter a value from 0-100 for Critical MAD.");
            file.Hay.MADCritical = ToInteger16(*criticalPercent, "the critical MAD");
        }
        file.Header().MAD = ToInteger16(*percent, "the MAD");
        return std::nullopt;
    };
    OrRefused<FieldFile> outcome = ChangeHeader(ask, change);
    if (!outcome.IsDone()) return outcome;
    State.Stat[State.CurrentField].MadNow = outcome->Header().MAD;
    ask.Tell("New MAD set to: " + mad + "%", "");
    return outcome;
}

OrRefused<FieldFile> SetEfficiency(Ask& ask, const std::string& efficiency) {
    const auto change = [&](FieldFile& file) -> std::optional<Refused> {
        const std::optional<double> percent = Percentage(efficiency);
        if (!percent) return NotAPercentage(Given::Efficiency);
        file.Header().IrrEff = ToSingle(*percent / 100, "the irrigation efficiency");
        return std::nullopt;
    };
    OrRefused<FieldFile> outcome = ChangeHeader(ask, change);
    if (outcome.IsDone()) ask.Tell("New Irrigation Efficiency set to: " + efficiency + "%", "");
    return outcome;
}

OrRefused<FieldChange> SetDepletion(Ask& ask, const std::string& depletion) {
    std::optional<Refused> refused;
    float water = 0;
    const auto change = [&](FieldInHand& field) {
        const RootZoneNow zone = LookAtRootZone(field.File);
        const std::optional<double> percent = Percentage(depletion);
        refused = percent ? ResetWater(field, zone, ToInteger16(*percent, "the depletion"))
                          : NotAPercentage(Given::Depletion);
        if (!refused) water = field.File.Days[zone.View.Row].Available;
        return !refused;
    };
    std::optional<FieldChange> done = ChangeAndRun(ask, change);
    if (refused || !done) return refused.value_or(Refused{});
    ask.Tell(
        "New depletion set to: " + depletion + "%\nNew water content in root zone set to: " + RootZoneWaterText(water),
        "");
    return *std::move(done);
}

std::string LossesOfReset(const FieldFile& file) {
    const auto count = [](const std::vector<EventRecord>& events, std::string_view what) {
        return fmt::format("{} {}{}", events.size(), what, events.size() == 1 ? "" : "s");
    };
    std::string losses = "\nWhat goes: " + count(file.Lists.Rain, "rain");
    losses += (file.IsHay ? ", " : " and ") + count(file.Lists.Irrigation, "irrigation");
    if (file.IsHay) losses += " and " + count(file.Lists.Cuttings, "cutting");
    return losses + ".";
}

OrRefused<FieldChange> ResetField(Ask& ask, const std::string& losses) {
    if (!ask.YesNo("This will reset depletion and irrigation--it starts your crop over from day 1.  Do you "
                   "wish to continue?" +
                       losses,
                   "Crop Reinitialization", Icon::Question, true))
        return Refused{};
    std::optional<FieldChange> done = ChangeAndRun(ask, [](FieldInHand& field) {
        FieldFile start = field.File;
        start.Soil.Content = AsOf(start, start.Header().PlantDay).Content;
        start.Hay.NextCutDay = 0;
        field = InFile(FieldFileTitle(State.CurrentField), [&start] { return NewField(start); });
        return true;
    });
    if (!done) return Refused{};
    ask.Tell("Depletion has been reset");
    return *std::move(done);
}

}  // namespace veraqua
