#include "engine/soil_water.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include <fmt/format.h>

#include "core/base/failure.h"
#include "core/base/numbers.h"
#include "engine/curves.h"
#include "engine/refill.h"

namespace veraqua {

namespace {

/// What `SoilWaterBetween` takes for "below the last layer".
constexpr int BelowAllLayers = 99;

double Value(const Zones& values, int zone) { return values[static_cast<std::size_t>(zone)]; }

float WaterInUniformZones(float from, float to, const ZoneGrid& grid, const Zones& values) {
    const double thickness = grid.Interval;
    const int first = std::min(grid.Top, ZoneAt(from, grid.Interval));
    const int last = std::min(grid.Top, ZoneAt(to, grid.Interval));
    if (first < 0 || last < 0) throw RunTimeFailure(fmt::format("Soil water between the depths {} and {}.", from, to));
    if (first == last) return ToSingle(Value(values, first) * (static_cast<double>(to) - from), "soil water");
    float sum = 0;
    for (int zone = first + 1; zone < last; ++zone) sum = ToSingle(sum + Value(values, zone) * thickness, "soil water");
    sum = ToSingle(sum + ((first + 1) * thickness - from) * Value(values, first), "soil water");
    return ToSingle(sum + (to - last * thickness) * Value(values, last), "soil water");
}

float WaterInLayers(float from, float to, const ZoneGrid& grid, const Zones& values) {
    const LayerBottoms bottoms = BottomsOf(grid.Bounds);
    // A depth below all layers counts as the surface where the interval begins, as the last layer where it ends.
    const int first = std::min(grid.Top, LayerAt(from, bottoms).value_or(0));
    const int last = std::min(grid.Top, LayerAt(to, bottoms).value_or(BelowAllLayers));
    if (first == last) return ToSingle(Value(values, first) * (static_cast<double>(to) - from), "soil water");
    if (last >= static_cast<int>(bottoms.size()))
        throw RunTimeFailure(
            fmt::format("The soil has {} layers, but {} are described.", grid.Top + 1, bottoms.size()));
    const auto bottom = [&bottoms](int layer) -> double {
        return layer < 0 ? 0 : bottoms[static_cast<std::size_t>(layer)];
    };
    float sum = 0;
    for (int layer = first + 1; layer < last; ++layer)
        sum = ToSingle(sum + Value(values, layer) * grid.Bounds[static_cast<std::size_t>(layer)], "soil water");
    sum = ToSingle(sum + Value(values, first) * (bottom(first) - from), "soil water");
    if (to > bottom(last - 1)) sum = ToSingle(sum + Value(values, last) * (to - bottom(last - 1)), "soil water");
    return sum;
}

/// Days since the last wetting, after a day with this much water.
std::int16_t CountFromWetting(std::int16_t daysSinceWet, const DayInput& day) {
    const float water = ToSingle(static_cast<double>(day.Irrigation) + day.Rain, "the water of the day");
    return water < WettingAmount ? ToInteger16(daysSinceWet + 1.0, "the days since the last wetting") : std::int16_t{0};
}

/// Water above `capacity` that leaves a root zone holding `water`: none on the day of a wetting, half on the day after,
/// then all.
float DrainageOf(float water, float capacity, int daysSinceWet) {
    if (water <= capacity || daysSinceWet < 1) return 0;
    const double excess = static_cast<double>(water) - capacity;
    return ToSingle(daysSinceWet == 1 ? excess * 0.5 : excess, "drainage");
}

/// Closes a day: crop use, evaporation and water coming in give the water at its end, before drainage.
float WaterAfterUse(const DayInput& day, float before, float ke, float rootGain, DayStep& step) {
    const double etr = day.Weather.ReferenceET;
    step.Use = static_cast<double>(step.Kc) * step.Kd * etr;
    step.Evaporation = ke * etr;
    step.Rain = day.Rain;
    step.Irrigation = day.Irrigation;
    step.RootGain = rootGain;
    return ToSingle(before - (static_cast<double>(step.Kc) * step.Kd + ke) * etr + day.Irrigation + day.Rain + rootGain,
                    "the water in the root zone");
}

/// Takes the drainage out of `water` and leaves the rest in the root zone.
void Drain(float water, float capacity, RootZone& zone, DayStep& step) {
    step.Leaching = DrainageOf(water, capacity, zone.DaysSinceWet);
    step.Drainage = step.Leaching;
    float left = water;
    if (step.Leaching != 0)
        left = zone.DaysSinceWet == 1 ? ToSingle(static_cast<double>(water) - step.Leaching, "drainage") : capacity;
    zone.Available = std::max(left, 0.0F);
    step.CutOff = static_cast<double>(zone.Available) - left;
}

}  // namespace

ZoneGrid CapacityGrid(const HeaderCommon& header, const LayerBounds& bounds) {
    return {header.CapacityInterval, bounds, header.CapacityTop};
}

ZoneGrid ContentGrid(const HeaderCommon& header, const LayerBounds& bounds) {
    return {header.ContentInterval, bounds, header.ContentTop};
}

int ZoneAt(float depth, float interval) {
    const double zone = std::floor(static_cast<double>(depth) / interval);
    if (!FitsInteger16(zone))
        throw RunTimeFailure(
            fmt::format("There is no soil zone at a depth of {} m in zones of {} m.", depth, interval));
    return static_cast<int>(zone);
}

float SoilWaterBetween(float from, float to, const ZoneGrid& grid, const Zones& values) {
    return grid.Variable() ? WaterInLayers(from, to, grid, values) : WaterInUniformZones(from, to, grid, values);
}

float DrynessCoefficient(float available, float capacity) {
    const double kd = std::log(100.0 * available / capacity + 1) / std::log(101.0);
    return std::min(1.0F, ToSingle(kd, "Kd (by the capacity of the root zone)"));
}

float DepletionPercent(float available, float capacity) {
    return ToInteger16(100.0 * (1 - static_cast<double>(available) / capacity),
                       "the depletion, percent (by the capacity of the root zone and the rain and irrigation entered)");
}

float WetSoilEvaporation(float kc, float gddSum, int gddLimit, int daysSinceWet) {
    constexpr std::array<double, 4> shareOfDay{0, 0.8, 0.5, 0.3};
    if (kc > 0.9 || gddSum >= static_cast<float>(gddLimit) || daysSinceWet < 0 || daysSinceWet > 3) return 0;
    return ToSingle((0.9 - kc) * shareOfDay[static_cast<std::size_t>(daysSinceWet)], "Ke");
}

DayStep DayStepCrop(const FieldHeader& field, float kcAtHarvest, const DayInput& day, RootZone& zone,
                    SoilProfile& soil) {
    const ZoneGrid capacityGrid = CapacityGrid(field, soil.Bounds);
    const ZoneGrid contentGrid = ContentGrid(field, soil.Bounds);
    const float before = zone.Available;
    const float rootsBefore = zone.RootDepth;
    DayStep step;

    const float degreeDays =
        DegreeDaysBetween(day.Weather.TempMax, day.Weather.TempMin, field.GddUpper, field.GddLower);
    zone.GddSum = ToSingle(static_cast<double>(zone.GddSum) + degreeDays, "the degree-day sum");
    step.Kc = KcCrop(field, zone.GddSum);
    zone.RootDepth = RootDepth(field, zone.GddSum, step.Kc, kcAtHarvest);

    step.Kd = DrynessCoefficient(before, SoilWaterBetween(0, rootsBefore, capacityGrid, soil.Capacity));
    zone.DaysSinceWet = CountFromWetting(zone.DaysSinceWet, day);
    const float ke = WetSoilEvaporation(step.Kc, zone.GddSum, field.GddHarvest, zone.DaysSinceWet);
    const float rootGain =
        zone.RootDepth != rootsBefore ? SoilWaterBetween(rootsBefore, zone.RootDepth, contentGrid, soil.Content) : 0;
    const float water = WaterAfterUse(day, before, ke, rootGain, step);

    Drain(water, SoilWaterBetween(0, zone.RootDepth, capacityGrid, soil.Capacity), zone, step);
    if (zone.RootDepth < field.RootMax) {
        step.Leaching = RefillBelowRoots(zone.RootDepth, field.RootMax, capacityGrid, contentGrid, step.Leaching, soil);
        step.Refill = step.Drainage - static_cast<double>(step.Leaching);
    }
    return step;
}

DayStep DayStepHay(const HayHeader& hay, const DayInput& day, RootZone& zone, const SoilProfile& soil) {
    DayStep step;
    const float degreeDays = DegreeDaysBetween(day.Weather.TempMax, day.Weather.TempMin, hay.GddUpper, hay.GddLower);
    zone.GddSum = ToSingle(static_cast<double>(zone.GddSum) + degreeDays, "the degree-day sum");
    step.Kc = KcHay(hay, day.Weather.HumidityMin, day.Weather.WindRun, zone.GddSum);

    const float capacity = SoilWaterBetween(0, hay.RootMax, CapacityGrid(hay, soil.Bounds), soil.Capacity);
    step.Kd = DrynessCoefficient(zone.Available, capacity);
    zone.DaysSinceWet = CountFromWetting(zone.DaysSinceWet, day);
    const float ke = WetSoilEvaporation(step.Kc, zone.GddSum, hay.GddCut, zone.DaysSinceWet);
    Drain(WaterAfterUse(day, zone.Available, ke, 0, step), capacity, zone, step);
    return step;
}

}  // namespace veraqua
