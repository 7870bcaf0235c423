#pragma once

#include <cstdint>

#include "core/field_file.h"

namespace veraqua {

/// The soil that was chosen for copying. The entry of the soil starts with it, and the user confirms it there.
struct CopiedSoil {
    bool SoilCopied = false;        ///< the rest holds a choice
    LayerBounds CopiedDepths{};     ///< thicknesses of layers, m; all 0 with fixed layers
    Zones CopiedCapacity{};         ///< mm/m
    Zones CopiedContent{};          ///< mm/m, as the source's file has it now
    std::int16_t CopiedCapTop = 0;  ///< index of the last zone
    std::int16_t CopiedConTop = 0;  ///< likewise
    float CopiedInterval1 = 0;      ///< thickness of a capacity zone, m; 0 with variable layers
    float CopiedInterval2 = 0;      ///< of a content zone

    bool IsVariable() const { return CopiedDepths[0] > 0; }
};

CopiedSoil CopySoilOf(const FieldFile& source);

}  // namespace veraqua
