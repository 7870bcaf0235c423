#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "chart/days.h"
#include "core/shown/chart.h"

namespace veraqua {

/// The type that a chart is lettered in. All lengths are in pixels, y downwards.
struct ChartType {
    std::function<double(const std::string& text)> WidthOf;
    double Height = 0;
    std::function<double(const std::string& text)> BoldWidthOf;  ///< of the title
    double BoldHeight = 0;
};

struct ChartBox {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;

    double Right() const { return Left + Width; }
    double Bottom() const { return Top + Height; }
    bool IsEmpty() const { return Width <= 0 || Height <= 0; }
};

struct ChartLine {
    double X1 = 0;
    double Y1 = 0;
    double X2 = 0;
    double Y2 = 0;
};

/// Where everything of a chart lies around its series, in pixels: title, legend, axes with their ticks, and the marks
/// with their names, which have a band of their own in the upper part of the plot.
struct ChartLayout {
    enum class Tone { Title, Plain, Quiet, MarkName };

    struct Words {
        ChartBox Box;  ///< no larger than the text
        std::string Text;
        Tone Is = Tone::Plain;
    };

    /// A piece of a series in the legend.
    struct Sample {
        ChartBox Box;
        std::size_t Series = 0;
    };

    /// The bars of a series: so far beside their day, and so wide. Those of several series stand side by side.
    struct Bars {
        std::size_t Series = 0;
        double Offset = 0;  ///< days
        double Width = 0;   ///< days
    };

    ChartBox Plot;
    AxisRange Days;       ///< of the plot from side to side
    double ValueLow = 0;  ///< of the plot from bottom to top, on the axis to the left
    double ValueHigh = 1;
    double AmountHigh = 0;   ///< the same on the axis of the bars to the right, from 0; 0 if there are no bars
    double NamesBottom = 0;  ///< the lower edge of the band for the names
    std::vector<Words> Texts;
    std::vector<Sample> Samples;
    std::vector<ChartLine> Grid;
    std::vector<ChartLine> Marks;
    std::vector<Bars> AllBars;

    double XOf(double day) const { return Plot.Left + (day - Days.First) / Days.Length() * Plot.Width; }
    double DayAt(double x) const { return Days.First + (x - Plot.Left) / Plot.Width * Days.Length(); }
    double YOf(double value, double low, double high) const {
        return Plot.Bottom() - (value - low) / (high - low) * Plot.Height;
    }
};

/// Lays `chart` out on `width` by `height`, with the days of `shown`. Names have their room by the whole season, so
/// that nothing moves up or down while the user zooms.
ChartLayout LayOut(const ChartContent& chart, AxisRange shown, double width, double height, const ChartType& type);

}  // namespace veraqua
