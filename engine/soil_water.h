#pragma once

#include "core/field_file.h"
#include "core/records.h"

/// The soil water of one day of one field. Numbers in, numbers out: no state, no file, no message. Water is in mm,
/// depth in m.
namespace veraqua {

/// Irrigation and rain together of this much, mm, make the soil surface wet.
constexpr double WettingAmount = 15;

/// How the zones of a profile lie: layers of their own thickness where `Bounds[0]` is above 0, else uniform zones.
struct ZoneGrid {
    float Interval = 0;    ///< thickness of a uniform zone
    LayerBounds Bounds{};  ///< thicknesses of layers
    int Top = 0;           ///< index of the last zone

    bool Variable() const { return Bounds[0] > 0; }
};

ZoneGrid CapacityGrid(const HeaderCommon& header, const LayerBounds& bounds);
ZoneGrid ContentGrid(const HeaderCommon& header, const LayerBounds& bounds);

/// Index of the uniform zone that `depth` lies in: floor of their quotient, taken in double of the two singles.
/// RunTimeFailure if it isn't a number.
int ZoneAt(float depth, float interval);

/// Water, mm, of the profile `values` (mm per m) between two depths; negative where `to` lies above `from`. Below the
/// last zone its value holds on.
float SoilWaterBetween(float from, float to, const ZoneGrid& grid, const Zones& values);

/// Soil dryness coefficient Kd, 0 to 1, of a root zone that holds `available` of `capacity` mm. RunTimeFailure where it
/// can't be told, as with a capacity of 0.
float DrynessCoefficient(float available, float capacity);

/// Depletion of the root zone in whole percent, halves to even; negative above capacity. RunTimeFailure where it can't
/// be told.
float DepletionPercent(float available, float capacity);

/// Ke, the evaporation of bare wet soil beside the crop's use, `daysSinceWet` days after a wetting. 0 once Kc is above
/// 0.9 or the crop is past `gddLimit` degree days.
float WetSoilEvaporation(float kc, float gddSum, int gddLimit, int daysSinceWet);

/// What one day did to a field. The account closes: yesterday's water - Use - Evaporation + Rain + Irrigation +
/// RootGain - Drainage
/// + CutOff is today's `Available`, and Drainage is what refilled the soil below the roots and what leached.
struct DayStep {
    float Kc = 0;
    float Kd = 0;
    float Leaching = 0;      ///< mm; negative where a refill took more than there was
    double Use = 0;          ///< crop evapotranspiration, Kc Kd ETR
    double Evaporation = 0;  ///< of wet soil, Ke ETR
    double Rain = 0;
    double Irrigation = 0;  ///< effective
    double RootGain = 0;    ///< water of the soil that the roots have grown into
    double Drainage = 0;    ///< water that left the root zone at its bottom
    double Refill = 0;      ///< share of the drainage that went into the soil below the roots
    double CutOff = 0;      ///< deficit that isn't carried on, since water ends at 0
};

/// Weather and water of one day.
struct DayInput {
    const WeatherDay& Weather;
    float Irrigation = 0;  ///< effective, mm
    float Rain = 0;        ///< mm
};

/// The state of the root zone, carried from day to day.
struct RootZone {
    float Available = 0;
    float GddSum = 0;
    float RootDepth = 0;
    std::int16_t DaysSinceWet = 0;
};

/// One day of an ordinary crop. `soil.Content` takes the water that drains past the roots.
///   kcAtHarvest  Kc at `GddHarvest`, the same for the whole season
DayStep DayStepCrop(const FieldHeader& field, float kcAtHarvest, const DayInput& day, RootZone& zone,
                    SoilProfile& soil);

/// One day of hay. The roots stay at `RootMax`, and all drainage is leaching.
DayStep DayStepHay(const HayHeader& hay, const DayInput& day, RootZone& zone, const SoilProfile& soil);

}  // namespace veraqua
