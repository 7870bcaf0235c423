#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "core/calendar.h"

/// The farms of the sample season: what their parcels carry through the year, and in which soil. One crop follows the
/// other on a parcel, as a grower of the region would have them; while a parcel lies fallow it isn't listed.
namespace veraqua {

/// A day of every year.
struct MonthDay {
    int Month = 0;
    int Day = 0;
};

/// The first such day after `day`, and the last one before it.
JulianValue NextAfter(JulianValue day, MonthDay when);
JulianValue LatestBefore(JulianValue day, MonthDay when);

struct SampleFarm {
    std::string_view Station;  ///< code of its weather station
    MonthDay WaterFrom;        ///< the season of its irrigation water
    MonthDay WaterTo;
};

struct SoilLayer {
    int Inches = 0;    ///< thickness
    int Capacity = 0;  ///< available water, mm per m
};

/// A soil, from the surface down, as deep as the roots of what grows in it.
struct SampleSoil {
    std::array<SoilLayer, 3> Layers;
    int ZoneInches = 0;  ///< it is described in uniform zones of this thickness; 0: in its own layers
};

/// A crop on a parcel.
struct SamplePlanting {
    std::string_view Parcel;  ///< the field ID
    std::string_view Crop;    ///< as in crop.dat
    const SampleFarm* Farm = nullptr;
    MonthDay Planted;    ///< of hay the onset of growth
    MonthDay Harvested;  ///< the last day on which it stands in the growers' list
    const SampleSoil* Soil = nullptr;
    int MAD = 0;         ///< percent
    int Efficiency = 0;  ///< of irrigation, percent
    int WaterAbove = 0;  ///< water content of the first layer at planting, percent of its capacity
    int WaterBelow = 0;  ///< of the layers under it
};

/// A planting in its year.
struct CropSeason {
    const SamplePlanting* Planting = nullptr;
    JulianValue PlantDay = 0;
    JulianValue HarvestDay = 0;
};

/// What is in the ground on `day`, planted before it and not harvested: 10 to 13 crops, hay first.
std::vector<CropSeason> SeasonsInTheGround(JulianValue day);

/// What was harvested last before `day`.
CropSeason LastHarvest(JulianValue day);

}  // namespace veraqua
