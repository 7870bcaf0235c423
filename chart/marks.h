#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "core/shown/chart.h"

namespace veraqua {

/// The name of a mark, set beside its line.
struct PlacedMark {
    std::size_t Mark = 0;  ///< its place in the chart
    double X = 0;          ///< of its line, which hangs down from the name's lane
    double Left = 0;       ///< of its name
    double Right = 0;
    int Lane = 0;  ///< 0 is the top one
};

/// Places the names of `marks`, whose lines stand at the xs from `xOf` and whose names are as wide as those from
/// `widthOf`, between `left` and `right`. No name touches another; no line runs through a name as far as it can be
/// helped. Marks outside are left out.
std::vector<PlacedMark> PlaceMarks(const std::vector<ChartMark>& marks, const std::function<double(JulianValue)>& xOf,
                                   const std::function<double(const ChartMark&)>& widthOf, double left, double right);

}  // namespace veraqua
