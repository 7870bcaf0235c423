#pragma once

#include <string>
#include <vector>

#include "core/calendar.h"

namespace veraqua {

/// Values over days.
struct ChartSeries {
    enum class Look {
        Line,
        Dashed,  ///< what is expected, not measured
        Limit,   ///< a quiet line that others are held against
        Bars,
    };

    struct Point {
        JulianValue Day = 0;
        double Value = 0;

        bool operator==(const Point&) const = default;
    };

    std::string Name;
    std::string Unit;
    Look Shape = Look::Line;
    std::vector<Point> Points;

    bool operator==(const ChartSeries&) const = default;
};

/// A day of note, drawn as an upright line.
struct ChartMark {
    std::string Name;
    JulianValue Day = 0;

    bool operator==(const ChartMark&) const = default;
};

/// What a picture of values over the days of a season shows.
struct ChartContent {
    std::string Title;
    std::string DayAxis;
    std::string ValueAxis;
    std::vector<ChartSeries> Series;
    std::vector<ChartMark> Marks;

    bool operator==(const ChartContent&) const = default;
};

}  // namespace veraqua
