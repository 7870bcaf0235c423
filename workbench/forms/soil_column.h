#pragma once

#include "core/records.h"
#include "screen/controls.h"

namespace veraqua {

/// Draws a crop on a column of soil. The ground lies a third below the top; each layer has the share of the column
/// below it that its thickness has of `maxDepth`, ends in a line and bears its thickness at the side.
///   thicknesses  of the layers, as entered; layers of 0 are left out
///   maxDepth     in the same unit; at 0 only the crop is drawn
void DrawSoilColumn(Drawing& drawing, const LayerBounds& thicknesses, int maxDepth);

/// Leaves the crop and the ground.
void ClearSoilColumn(Drawing& drawing);

}  // namespace veraqua
