#include "reports/soil_lines.h"

#include <fmt/format.h>

#include "core/base/failure.h"
#include "core/base/numbers.h"
#include "core/base/units.h"
#include "engine/refill.h"

namespace veraqua {

namespace {

std::string ZoneLine(const SoilZone& zone, bool isHay, bool english) {
    const std::string_view mask = english ? (isHay ? "00.0" : "0.00") : (isHay ? "00" : "0.0");
    return fmt::format("{} to {} {}  {}", Masked(SoilDepth(zone.Top, english), "000"),
                       Masked(SoilDepth(zone.Bottom, english), "000"),
                       english ? "in.  (in/ft):" : "mm.  (mm/m):", Masked(WaterPerDepth(zone.Water, english), mask));
}

std::string LayerLine(const SoilZone& layer, bool english) {
    return fmt::format("{} to {}{}:  {}{}", Masked(SoilDepth(layer.Top, english), "0.0"),
                       Masked(SoilDepth(layer.Bottom, english), "0.0"), english ? "inches" : "mm",
                       Masked(WaterPerDepth(layer.Water, english), english ? "0.00" : "0.0"),
                       english ? "in/ft" : "mm/m");
}

}  // namespace

std::vector<SoilZone> SoilZones(const ZoneGrid& grid, const Zones& values) {
    const LayerBottoms bottoms = BottomsOf(grid.Bounds);
    if (grid.Variable() && grid.Top >= static_cast<int>(bottoms.size()))
        throw RunTimeFailure(
            fmt::format("The soil has {} layers, but {} are described.", grid.Top + 1, bottoms.size()));
    std::vector<SoilZone> zones;
    for (std::size_t zone = 0; zone <= static_cast<std::size_t>(grid.Top); ++zone) {
        const double top = zone == 0 ? 0 : zones.back().Bottom;
        const double bottom =
            grid.Variable() ? bottoms[zone] : static_cast<double>(zone + 1) * static_cast<double>(grid.Interval);
        zones.push_back({top, bottom, values[zone]});
    }
    return zones;
}

double SoilDepth(double metres, bool english) { return english ? metres / MetresPerInch : metres * 1000; }

double WaterPerDepth(std::int16_t millimetresPerMetre, bool english) {
    return english ? millimetresPerMetre / 83.3333 : millimetresPerMetre;
}

std::vector<std::string> SoilLines(const ZoneGrid& grid, const Zones& values, bool isHay, bool english) {
    std::vector<std::string> lines;
    for (const SoilZone& zone : SoilZones(grid, values))
        lines.push_back(grid.Variable() ? LayerLine(zone, english) : ZoneLine(zone, isHay, english));
    return lines;
}

std::vector<std::string> DivisionLines(const ZoneGrid& grid, bool english) {
    const std::string_view unit = english ? "inches" : "millimeters";
    if (!grid.Variable())
        return {
            fmt::format(" Fixed depth soil layers: interval = {} {}", Plain(SoilDepth(grid.Interval, english)), unit)};
    std::vector<std::string> lines{" Soil Layers"};
    for (std::size_t i = 0; i < grid.Bounds.size() && i <= static_cast<std::size_t>(grid.Top); ++i)
        lines.push_back(
            fmt::format(" Layer {}:   {} {}", i + 1, Masked(SoilDepth(grid.Bounds[i], english), "0.00"), unit));
    return lines;
}

}  // namespace veraqua
