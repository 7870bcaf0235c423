#include "reports/soil_preview.h"

#include <vector>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/base/units.h"
#include "reports/soil_lines.h"

namespace veraqua {

namespace {

/// A depth of fixed layers in feet or metres.
std::string ZoneDepth(double metres, bool english) { return Masked(english ? metres / MetresPerFoot : metres, "00.0"); }

std::vector<std::string> Division(const ZoneGrid& grid, bool english) {
    if (!grid.Variable())
        return {fmt::format("Fixed depth soil layers: interval = {} {}", ZoneDepth(grid.Interval, english),
                            english ? "feet" : "meters")};
    std::vector<std::string> lines = DivisionLines(grid, english);
    lines.front() = "Soil Layers";
    return lines;
}

std::vector<std::string> Waters(const ZoneGrid& grid, const Zones& values, bool english) {
    if (grid.Variable()) return SoilLines(grid, values, false, english);
    std::vector<std::string> lines;
    for (const SoilZone& zone : SoilZones(grid, values))
        lines.push_back(fmt::format("{} to {} {}  {}", ZoneDepth(zone.Top, english), ZoneDepth(zone.Bottom, english),
                                    english ? "ft (in/ft):" : "m (mm/m):",
                                    Masked(WaterPerDepth(zone.Water, english), english ? "0.00" : "0.0")));
    return lines;
}

}  // namespace

std::string SoilPreview(const FieldFile& file, bool english) {
    const SoilProfile& soil = file.Soil;
    const ZoneGrid capacity = CapacityGrid(file.Header(), soil.Bounds);
    const ZoneGrid content = ContentGrid(file.Header(), soil.Bounds);
    return fmt::format(
        "{}\n"
        "Soil Water Capacity\n"
        "{}\n"
        "Initial Soil Water Content\n"
        "{}\n",
        fmt::join(Division(capacity, english), "\n"), fmt::join(Waters(capacity, soil.Capacity, english), "\n"),
        fmt::join(Waters(content, soil.Content, english), "\n"));
}

}  // namespace veraqua
