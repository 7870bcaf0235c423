#include "reports/soil_lines.h"

#include <fmt/format.h>

#include "core/failure.h"
#include "core/numbers.h"
#include "engine/refill.h"

namespace veraqua {

namespace {

double Depth(double metres, bool english) { return english ? metres / 0.0254 : metres * 1000; }

/// Inches per foot, or mm per m.
double WaterPerDepth(std::int16_t value, bool english) { return english ? value / 83.3333 : value; }

std::string ZoneLine(const ZoneGrid& grid, int zone, std::int16_t value, bool isHay, bool english) {
    const double interval = grid.Interval;
    const std::string_view mask = english ? (isHay ? "00.0" : "0.00") : (isHay ? "00" : "0.0");
    return fmt::format("{} to {} {}  {}", Masked(Depth(zone * interval, english), "000"),
                       Masked(Depth((zone + 1) * interval, english), "000"),
                       english ? "in.  (in/ft):" : "mm.  (mm/m):", Masked(WaterPerDepth(value, english), mask));
}

std::string LayerLine(double top, double bottom, std::int16_t value, bool english) {
    return fmt::format("{} to {}{}:  {}{}", Masked(Depth(top, english), "0.0"), Masked(Depth(bottom, english), "0.0"),
                       english ? "inches" : "mm", Masked(WaterPerDepth(value, english), english ? "0.00" : "0.0"),
                       english ? "in/ft" : "mm/m");
}

}  // namespace

std::vector<std::string> SoilLines(const ZoneGrid& grid, const Zones& values, bool isHay, bool english) {
    const LayerBottoms bottoms = BottomsOf(grid.Bounds);
    if (grid.Variable() && grid.Top >= static_cast<int>(bottoms.size()))
        throw RunTimeFailure(
            fmt::format("The soil has {} layers, but {} are described.", grid.Top + 1, bottoms.size()));
    std::vector<std::string> lines;
    for (std::size_t zone = 0; zone <= static_cast<std::size_t>(grid.Top); ++zone)
        lines.push_back(grid.Variable()
                            ? LayerLine(zone == 0 ? 0 : bottoms[zone - 1], bottoms[zone], values[zone], english)
                            : ZoneLine(grid, static_cast<int>(zone), values[zone], isHay, english));
    return lines;
}

}  // namespace veraqua
