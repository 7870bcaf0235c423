#include "workbench/soil_copy.h"

namespace veraqua {

CopiedSoil CopySoilOf(const FieldFile& source) {
    const HeaderCommon& header = source.Header();
    return {.SoilCopied = true,
            .CopiedDepths = source.Soil.Bounds,
            .CopiedCapacity = source.Soil.Capacity,
            .CopiedContent = source.Soil.Content,
            .CopiedCapTop = header.CapacityTop,
            .CopiedConTop = header.ContentTop,
            .CopiedInterval1 = header.CapacityInterval,
            .CopiedInterval2 = header.ContentInterval};
}

}  // namespace veraqua
