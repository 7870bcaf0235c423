#include "chart/days.h"

#include <algorithm>
#include <cmath>

namespace veraqua {

namespace {

constexpr double ShortestRange = 7;
constexpr double DaysPerMonth = 30.4;

std::vector<JulianValue> EveryDays(AxisRange range, int step) {
    std::vector<JulianValue> days;
    const int first = static_cast<int>(std::ceil(range.First / step)) * step;
    for (int day = first; day <= range.Last; day += step) days.push_back(day);
    return days;
}

std::vector<JulianValue> EveryMonths(AxisRange range, int step) {
    std::vector<JulianValue> days;
    const Date from = DateFromJulian(static_cast<JulianValue>(std::floor(range.First)));
    int months = (from.Year * 12 + from.Month - 1) / step * step;
    for (;; months += step) {
        const JulianValue day = JulianFromDate(months % 12 + 1, 1, months / 12);
        if (day > range.Last) return days;
        if (range.Holds(day)) days.push_back(day);
    }
}

}  // namespace

AxisRange SeasonOf(const ChartContent& chart) {
    constexpr double half = 0.5;
    bool any = false;
    AxisRange season;
    for (const ChartSeries& series : chart.Series)
        for (const ChartSeries::Point& point : series.Points) {
            season.First = any ? std::min(season.First, point.Day - half) : point.Day - half;
            season.Last = any ? std::max(season.Last, point.Day + half) : point.Day + half;
            any = true;
        }
    return season;
}

ChartContent CutTo(ChartContent chart, AxisRange days) {
    for (ChartSeries& series : chart.Series)
        std::erase_if(series.Points, [&](const ChartSeries::Point& point) { return !days.Holds(point.Day); });
    return chart;
}

AxisRange RangeWithin(AxisRange season, AxisRange wished) {
    const double length = std::min(season.Length(), std::max(wished.Length(), ShortestRange));
    const double centre = (wished.First + wished.Last) / 2;
    const double first = std::clamp(centre - length / 2, season.First, season.Last - length);
    return {first, first + length};
}

AxisRange Zoomed(AxisRange season, AxisRange shown, double factor, double day) {
    const double shortest = std::min(season.Length(), ShortestRange);
    const double possible = std::clamp(factor, shortest / shown.Length(), season.Length() / shown.Length());
    return RangeWithin(season, {day - (day - shown.First) * possible, day + (shown.Last - day) * possible});
}

std::vector<JulianValue> TickDays(AxisRange range, int most) {
    if (range.Length() <= 0 || most < 1) return {};
    for (const int step : {1, 2, 7, 14})
        if (range.Length() / step <= most) return EveryDays(range, step);
    for (const int step : {1, 2, 3, 6})
        if (range.Length() / (step * DaysPerMonth) <= most) return EveryMonths(range, step);
    int step = 12;
    while (range.Length() / (step * DaysPerMonth) > most) step *= 2;
    return EveryMonths(range, step);
}

double NiceStep(double span, double most) {
    if (span <= 0 || most <= 0) return 1;
    const double least = span / most;
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const double factor : {1, 2, 5})
        if (factor * power >= least) return factor * power;
    return 10 * power;
}

}  // namespace veraqua
