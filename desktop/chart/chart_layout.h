#pragma once

#include <QFont>
#include <QLineF>
#include <QList>
#include <QRectF>
#include <QString>
#include <string>
#include <vector>

#include "desktop/chart/chart_days.h"
#include "screen/chart.h"

namespace veraqua {

/// Where everything of a chart lies around its series, in pixels: title, legend, axes with their ticks, and the marks
/// with their names, which have a band of their own in the upper part of the plot.
struct ChartLayout {
    enum class Tone { Title, Plain, Quiet, MarkName };

    struct Words {
        QRectF Box;  ///< no larger than the text
        QString Text;
        Tone Is = Tone::Plain;
    };

    /// A piece of a series in the legend.
    struct Sample {
        QRectF Box;
        std::size_t Series = 0;
    };

    QRectF Plot;
    DayRange Days;        ///< of the plot from side to side
    double ValueLow = 0;  ///< of the plot from bottom to top, on the axis to the left
    double ValueHigh = 1;
    double AmountHigh = 0;   ///< the same on the axis of the bars to the right, from 0; 0 if there are no bars
    double NamesBottom = 0;  ///< the lower edge of the band for the names
    std::vector<Words> Texts;
    std::vector<Sample> Samples;
    QList<QLineF> Grid;
    QList<QLineF> Marks;

    double XOf(double day) const { return Plot.left() + (day - Days.First) / Days.Length() * Plot.width(); }
    double DayAt(double x) const { return Days.First + (x - Plot.left()) / Plot.width() * Days.Length(); }
    double YOf(double value, double low, double high) const {
        return Plot.bottom() - (value - low) / (high - low) * Plot.height();
    }
};

/// Lays `chart` out on `size`, with the days of `shown`. Names have their room by the whole season, so that nothing
/// moves up or down while the user zooms.
ChartLayout LayOut(const Chart& chart, DayRange shown, QSizeF size, const QFont& font);

}  // namespace veraqua
