#pragma once

#include <vector>

#include "core/calendar.h"
#include "core/shown/chart.h"

/// The scales of a chart. On the day axis a day lies at its Julian Value and reaches half a day to both sides.
namespace veraqua {

/// A stretch of the day axis, in days and parts of days.
struct AxisRange {
    double First = 0;
    double Last = 0;

    double Length() const { return Last - First; }
    bool Holds(double day) const { return day >= First && day <= Last; }
    bool operator==(const AxisRange&) const = default;
};

/// The days of all series, each as a whole; an empty range if there are none. Marks don't count.
AxisRange SeasonOf(const ChartContent& chart);

/// The chart without the values of other days; its marks stay.
ChartContent CutTo(ChartContent chart, AxisRange days);

/// `wished`, moved and if need be shortened into `season`, and no shorter than a week or the season.
AxisRange RangeWithin(AxisRange season, AxisRange wished);

/// `shown` stretched by `factor` about `day`, which keeps its place unless an end of the season is met; within the
/// limits of `RangeWithin`.
AxisRange Zoomed(AxisRange season, AxisRange shown, double factor, double day);

/// Days of `range` to write dates at, no more than `most`: each day, every second, week or fortnight, or the first days
/// of months. They stay the same days when the range moves.
std::vector<JulianValue> TickDays(AxisRange range, int most);

/// The smallest step of 1, 2 or 5 times a power of ten that goes at most `most` times into `span`.
double NiceStep(double span, double most);

}  // namespace veraqua
