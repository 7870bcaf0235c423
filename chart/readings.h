#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "core/shown/chart.h"

/// What a chart says in words.
namespace veraqua {

struct Reading {
    std::size_t Series = 0;  ///< its place in the chart
    double Value = 0;
    std::string Text;  ///< the value with its unit
};

/// The values of all series that have one on `day`.
std::vector<Reading> ReadingsOn(const ChartContent& chart, JulianValue day);

/// "07-20-26", with the names of the marks that stand there.
std::string DayTitle(const ChartContent& chart, JulianValue day);

/// The same and the readings, in one line.
std::string DayInWords(const ChartContent& chart, JulianValue day);

/// The last day of the first line, which is the last one measured; the chart's last day if it has no line, 0 if it has
/// no day.
JulianValue LatestDay(const ChartContent& chart);

/// The chart as comma-separated values for a spreadsheet: a heading line, then a line for each day of the season with
/// its date (mm-dd-yyyy) and the value of each series, nothing where it has none that day.
std::string ChartCsv(const ChartContent& chart);

}  // namespace veraqua
