#include "workbench/soil_zones.h"

#include <algorithm>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/base/units.h"
#include "core/state.h"
#include "engine/soil_water.h"

namespace veraqua {

namespace {

/// Eleven feet, m: a root depth divided by it is an eleventh of that depth in feet.
constexpr double ElevenFeet = 3.3528;

std::size_t Zone(int zone) { return static_cast<std::size_t>(zone); }

/// Metres of an interval as entered.
float IntervalMetres(double interval) {
    return ToSingle(State.EnglishUnits ? interval / InchesPerFoot * MetresPerFoot : interval / 1000,
                    "the depth interval");
}

/// The most water that `zone` may be entered with: its capacity, in inches per foot with a hundredth to spare.
double ZoneMax(int zone, const EnteredSoil& soil) {
    const ZoneGrid grid{soil.Interval, soil.Profile.Bounds, soil.Top};
    const float top = ToSingle(static_cast<double>(grid.Interval) * zone, "a soil depth");
    const float bottom = ToSingle(static_cast<double>(grid.Interval) * (zone + 1), "a soil depth");
    const double capacity =
        SoilWaterBetween(top, bottom, grid, soil.Profile.Capacity) / (static_cast<double>(bottom) - top);
    // Without the noise of the singles, so that a zone can be entered as full.
    const double most = EnteredWater(RoundedTo(capacity, 1000));
    return State.EnglishUnits ? most + 0.01 : most;
}

std::optional<Refused> RefusedContent(int zone, const TypedWater& typed, double zoneMax) {
    const auto refuse = [zone](std::string text) {
        return Refused{std::move(text), "Water Content Input Error", Given::Content, Zone(zone)};
    };
    const std::optional<double> content = Numeric(typed.Content);
    if (!content || *content < 0 || *content > zoneMax)
        return refuse("Please enter a value between 0 and " + Plain(zoneMax));
    if (*content > EnteredValue(typed.Capacity))
        return refuse("Please enter a value less than or equal to " + typed.Capacity);
    return std::nullopt;
}

}  // namespace

ZoneEntry::ZoneEntry(float rootMax)
    : RootMax(rootMax),
      // In metric use the least interval is a tenth of an eleventh of the depth.
      IntervalMin(State.EnglishUnits ? rootMax / ElevenFeet * InchesPerFoot : rootMax * 100.0 / MostZones),
      IntervalMax(State.EnglishUnits ? 396 : 1000) {}

int ZoneEntry::ZoneTopFor(double interval) const { return ZoneAt(RootMax, IntervalMetres(interval)); }

/// The smallest interval of one decimal with which the soil has no more zones than there is room for, as entered.
double ZoneEntry::SmallestInterval() const {
    const double depth = State.EnglishUnits ? RootMax / MetresPerFoot * InchesPerFoot : RootMax * 1000.0;
    int tenths = std::max(1, static_cast<int>(depth / MostZones * 10));
    while (ZoneTopFor(tenths / 10.0) >= MostZones) ++tenths;
    return tenths / 10.0;
}

std::optional<Refused> ZoneEntry::RefusedInterval(std::optional<double> interval) const {
    const auto between = [this](double smallest) {
        return Refused{
            fmt::format("Please enter a value between {} and {}", Masked(smallest, "0.0"), Masked(IntervalMax, "0.0")),
            "Depth Interval Error", Given::Interval};
    };
    if (!interval || *interval < IntervalMin || *interval > IntervalMax) return between(IntervalMin);
    if (ZoneTopFor(*interval) >= MostZones) return between(SmallestInterval());
    return std::nullopt;
}

std::optional<Refused> ZoneEntry::TakeInterval(std::optional<double> interval) {
    if (std::optional<Refused> refused = RefusedInterval(interval)) return refused;
    Interval = IntervalMetres(*interval);
    ZoneTop = ZoneTopFor(*interval);
    return std::nullopt;
}

StartingZones ZoneEntry::StartFrom(Ask& ask, const CopiedSoil& copied) {
    ask.Tell("Using copied data");
    const double metres = copied.CopiedInterval1;
    StartingZones start;
    start.Interval = State.EnglishUnits ? metres / MetresPerFoot * InchesPerFoot : metres * 1000;
    start.IntervalText = Masked(start.Interval, State.EnglishUnits ? "0.00" : "000");
    start.Top = TakeInterval(start.Interval) ? copied.CopiedCapTop : ZoneTop;
    const int last = std::min({start.Top, static_cast<int>(copied.CopiedCapTop), MostZones - 1});
    for (int i = 0; i <= last; ++i)
        start.Water[Zone(i)] = StartingWater(copied.CopiedCapacity[Zone(i)], copied.CopiedContent[Zone(i)]);
    return start;
}

OrRefused<EnteredSoil> ZoneEntry::Soil(Ask& ask, std::string_view interval, const TypedZones& typed) const {
    if (ZoneTop < 0) {
        std::optional<Refused> refused = RefusedInterval(Numeric(interval));
        return refused ? *refused : *RefusedInterval(std::nullopt);
    }
    EnteredSoil soil{{}, ZoneTop, Interval};
    const double capMin = State.EnglishUnits ? 0.1 : 7;
    const std::string tooLow = fmt::format("Please enter a Capacity Value equal to or greater than {}{}", Plain(capMin),
                                           State.EnglishUnits ? " inches/foot." : " mm/meter.");
    for (int i = 0; i <= ZoneTop; ++i) {
        const std::string& entered = typed[Zone(i)].Capacity;
        const OrRefused<std::int16_t> capacity = TakeCapacity(
            ask, entered, Zone(i), EnteredValue(entered) < capMin,
            {"Your 'Capacity' value is greater than 3 in/ft (250 mm/m).  Do you want to proceed?.", tooLow});
        if (!capacity.IsDone()) return capacity.Why();
        soil.Profile.Capacity[Zone(i)] = *capacity;
    }
    for (int i = 0; i <= ZoneTop; ++i) {
        const TypedWater& water = typed[Zone(i)];
        if (std::optional<Refused> refused = RefusedContent(i, water, ZoneMax(i, soil))) return *refused;
        soil.Profile.Content[Zone(i)] = StoredWater(Numeric(water.Content).value_or(0));
    }
    return soil;
}

}  // namespace veraqua
