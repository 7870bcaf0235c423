#pragma once

#include <string>
#include <vector>

#include "engine/soil_water.h"

namespace veraqua {

/// A line for each zone or layer of a soil profile, from the surface down: its depths, and its water in `values` (mm
/// per m). RunTimeFailure if there are more layers than have thicknesses.
std::vector<std::string> SoilLines(const ZoneGrid& grid, const Zones& values, bool isHay, bool english);

}  // namespace veraqua
