#pragma once

#include <array>
#include <cstddef>
#include <span>

namespace veraqua {

constexpr std::size_t TableDimensions = 4;

/// The axis points of a table, rising along each axis. An axis that a table doesn't need has a single point.
using TableAxes = std::array<std::span<const float>, TableDimensions>;
using TablePoint = std::array<float, TableDimensions>;

/// Multilinear interpolation in a table of up to four dimensions, at `point`.
///   axes   their lengths are the table's dimensions
///   table  the values, first dimension fastest; as many as the product of the dimensions
/// Nothing is clamped: outside the table the line through the nearest two axis points goes on. Between two equal axis
/// points, and along an axis of one point, the coordinate has no effect.
/// Table, axes and point are singles; fractions, reduced values and the result are in double precision, and the caller
/// rounds the result as it stores it. A coordinate that isn't finite gives a result that isn't.
double TableInterpolate(const TableAxes& axes, std::span<const float> table, const TablePoint& point);

}  // namespace veraqua
