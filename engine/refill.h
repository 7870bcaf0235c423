#pragma once

#include <array>
#include <optional>

#include "engine/soil_water.h"

/// Water that drains past growing roots refills the soil between the root tip and the deepest root depth, zone by zone.
namespace veraqua {

/// Bottoms of the six layers of a soil with variable layers, m: running sums of their thicknesses, as singles.
using LayerBottoms = std::array<float, 6>;

LayerBottoms BottomsOf(const LayerBounds& thicknesses);

/// The layer that `depth` lies in, nothing below the last; the boundary belongs to the layer below it.
std::optional<int> LayerAt(float depth, const LayerBottoms& bottoms);

/// Lets `water` mm run into the soil between the root tip and `rootMax` and returns what found no place. With no water,
/// zones above capacity are set to it all the same, and what is returned grows by that.
float RefillBelowRoots(float rootTip, float rootMax, const ZoneGrid& capacityGrid, const ZoneGrid& contentGrid,
                       float water, SoilProfile& soil);

}  // namespace veraqua
