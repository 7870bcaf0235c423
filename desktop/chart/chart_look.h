#pragma once

#include <QBrush>
#include <QPalette>
#include <QPen>
#include <cstddef>

#include "core/shown/chart.h"

/// Colours and pens of a chart, by the palette.
namespace veraqua {

struct SeriesLook {
    QPen Line;
    QBrush Fill;  ///< of bars, which have no line
};

/// The look of a series of `chart`. Colours are apart for the colour blind, too (after Okabe and Ito, 2008, "Color
/// Universal Design"), and besides by brightness or line style.
SeriesLook LookOf(const ChartContent& chart, std::size_t series, const QPalette& palette);

/// Text and lines that stay behind the values.
QColor QuietText(const QPalette& palette);
QColor GridColour(const QPalette& palette);

/// `a` with a share of `b`, 0 to 1.
QColor Blended(const QColor& a, const QColor& b, float share);

}  // namespace veraqua
