#pragma once

#include <string>
#include <vector>

#include "engine/soil_water.h"

/// The soil of a field as text: its zones or layers from the surface down.
namespace veraqua {

/// A zone or layer.
struct SoilZone {
    double Top = 0;  ///< m
    double Bottom = 0;
    std::int16_t Water = 0;  ///< mm/m
};

/// RunTimeFailure if there are more layers than have thicknesses.
std::vector<SoilZone> SoilZones(const ZoneGrid& grid, const Zones& values);

/// Depths in inches or mm, and water in inches per foot or mm per m.
double SoilDepth(double metres, bool english);
double WaterPerDepth(std::int16_t millimetresPerMetre, bool english);

/// A line for each zone or layer: its depths, and its water in `values`. RunTimeFailure as above.
std::vector<std::string> SoilLines(const ZoneGrid& grid, const Zones& values, bool isHay, bool english);

/// How the soil is divided: its interval, or its layers with their thicknesses.
std::vector<std::string> DivisionLines(const ZoneGrid& grid, bool english);

}  // namespace veraqua
