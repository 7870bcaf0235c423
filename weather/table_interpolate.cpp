#include "weather/table_interpolate.h"

#include <algorithm>
#include <cassert>

namespace veraqua {

namespace {

/// Where a coordinate lies along its axis: the two points around it, and how far it is from the lower to the upper one
/// (below 0 or above 1 outside the table).
struct Interval {
    std::size_t Low = 0;
    std::size_t High = 0;
    double Fraction = 0;
};

Interval IntervalAround(std::span<const float> axis, double coordinate) {
    const std::size_t last = axis.size() - 1;
    std::size_t high = 0;
    while (high < last && coordinate > axis[high]) ++high;
    high = std::min(std::max<std::size_t>(high, 1), last);
    const std::size_t low = high > 0 ? high - 1 : 0;
    const double from = axis[low];
    const double to = axis[high];
    return {low, high, to > from ? (coordinate - from) / (to - from) : 0};
}

}  // namespace

double TableInterpolate(const TableAxes& axes, std::span<const float> table, const TablePoint& point) {
    constexpr std::size_t cornerCount = std::size_t{1} << TableDimensions;

    // Bit d of a corner's number says on which side of the cell it lies along dimension d.
    std::array<std::size_t, cornerCount> place{};
    std::array<double, TableDimensions> fractions{};
    std::size_t stride = 1;
    for (std::size_t d = 0; d < TableDimensions; ++d) {
        const auto [low, high, fraction] = IntervalAround(axes[d], point[d]);
        for (std::size_t n = 0; n < cornerCount; ++n) place[n] += ((n >> d & 1U) != 0 ? high : low) * stride;
        fractions[d] = fraction;
        stride *= axes[d].size();
    }
    assert(table.size() == stride);

    std::array<double, cornerCount> corner{};
    std::transform(place.begin(), place.end(), corner.begin(), [table](std::size_t i) { return table[i]; });
    for (std::size_t d = TableDimensions; d-- > 0;) {
        const std::size_t half = std::size_t{1} << d;
        for (std::size_t n = 0; n < half; ++n) corner[n] += fractions[d] * (corner[n + half] - corner[n]);
    }
    return corner[0];
}

}  // namespace veraqua
