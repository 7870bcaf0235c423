#pragma once

#include <QFont>
#include <QLineF>
#include <QRectF>

#include "chart/layout.h"

/// The toolkit's side of a chart's layout.
namespace veraqua {

/// The measures of `font` on the screen.
ChartType TypeOf(const QFont& font);

inline QRectF InQt(const ChartBox& box) { return {box.Left, box.Top, box.Width, box.Height}; }
inline QLineF InQt(const ChartLine& line) { return {line.X1, line.Y1, line.X2, line.Y2}; }

QFont Bold(QFont font);

}  // namespace veraqua
