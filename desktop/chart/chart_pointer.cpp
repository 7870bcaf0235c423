#include "desktop/chart/chart_pointer.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "chart/readings.h"
#include "desktop/chart/chart_look.h"
#include "desktop/chart/chart_type.h"
#include "desktop/text.h"

namespace veraqua {

namespace {

constexpr double DotRadius = 4;
constexpr double Padding = 8;
constexpr double SwatchWidth = 20;
constexpr double Distance = 10;  // of the box from the line

/// One row of the box.
struct Row {
    SeriesLook Look;
    QString Name;
    QString Value;
};

std::vector<Row> RowsOf(const ChartContent& chart, JulianValue day, const QPalette& palette) {
    std::vector<Row> rows;
    for (const Reading& reading : ReadingsOn(chart, day))
        rows.push_back(
            {LookOf(chart, reading.Series, palette), ToQt(chart.Series[reading.Series].Name), ToQt(reading.Text)});
    return rows;
}

/// The widths of the box's columns, and its lines.
struct BoxMeasure {
    double Line = 0;
    double Name = 0;
    double Inner = 0;

    BoxMeasure(const QString& title, const std::vector<Row>& rows, const QFont& font) {
        const QFontMetricsF metrics(font);
        double value = 0;
        for (const Row& row : rows) {
            Name = std::max(Name, metrics.horizontalAdvance(row.Name));
            value = std::max(value, metrics.horizontalAdvance(row.Value));
        }
        Line = metrics.height() + 2;
        Inner = std::max(SwatchWidth + Padding + Name + 2 * Padding + value,
                         QFontMetricsF(Bold(font)).horizontalAdvance(title));
    }
};

void PaintSwatch(QPainter& painter, const SeriesLook& look, const QRectF& line) {
    const QRectF swatch(line.left(), line.center().y() - 4, SwatchWidth, 8);
    if (look.Fill != Qt::NoBrush) return painter.fillRect(swatch.adjusted(5, -1, -5, 1), look.Fill);
    painter.setPen(look.Line);
    painter.drawLine(QPointF(swatch.left(), swatch.center().y()), QPointF(swatch.right(), swatch.center().y()));
}

}  // namespace

ChartPointer::ChartPointer(const ChartContent& chart, QGraphicsItem* parent) : QGraphicsItem(parent), chart_(&chart) {}

void ChartPointer::Show(const ChartLayout& layout, const QPalette& palette, const QFont& font) {
    prepareGeometryChange();
    layout_ = layout;
    palette_ = palette;
    font_ = font;
    update();
}

void ChartPointer::PointAt(std::optional<JulianValue> day) {
    if (day == day_) return;
    day_ = day;
    update();
}

QRectF ChartPointer::boundingRect() const { return parentItem()->boundingRect(); }

void ChartPointer::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    if (!day_ || layout_.Plot.IsEmpty() || !layout_.Days.Holds(*day_)) return;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(palette_.color(QPalette::Text), 1));
    const double x = layout_.XOf(*day_);
    painter->drawLine(QPointF(x, layout_.NamesBottom), QPointF(x, layout_.Plot.Bottom()));
    PaintDots(*painter);
    PaintBox(*painter);
}

void ChartPointer::PaintDots(QPainter& painter) const {
    painter.setPen(QPen(palette_.color(QPalette::Base), 1.5));
    for (const Reading& reading : ReadingsOn(*chart_, *day_)) {
        if (chart_->Series[reading.Series].Shape == ChartSeries::Look::Bars) continue;
        painter.setBrush(LookOf(*chart_, reading.Series, palette_).Line.color());
        const double y = layout_.YOf(reading.Value, layout_.ValueLow, layout_.ValueHigh);
        painter.drawEllipse(QPointF(layout_.XOf(*day_), y), DotRadius, DotRadius);
    }
}

void ChartPointer::PaintBox(QPainter& painter) const {
    const QString title = ToQt(DayTitle(*chart_, *day_));
    const std::vector<Row> rows = RowsOf(*chart_, *day_, palette_);
    const BoxMeasure measure(title, rows, font_);
    const QSizeF size(measure.Inner + 2 * Padding, measure.Line * static_cast<double>(rows.size() + 1) + 2 * Padding);
    const double x = layout_.XOf(*day_);
    const bool fitsRight = x + Distance + size.width() <= boundingRect().right();
    const double left = fitsRight ? x + Distance : std::max(0.0, x - Distance - size.width());
    const double top = std::min(layout_.NamesBottom + 4, boundingRect().bottom() - size.height() - 4);
    const QRectF box(QPointF(left, std::max(0.0, top)), size);

    painter.setPen(QPen(palette_.color(QPalette::Mid), 1));
    QColor ground = palette_.color(QPalette::ToolTipBase);
    ground.setAlphaF(0.94F);
    painter.setBrush(ground);
    painter.drawRoundedRect(box, 6, 6);

    QRectF line(box.left() + Padding, box.top() + Padding, measure.Inner, measure.Line);
    const auto write = [&](const QRectF& place, Qt::Alignment alignment, const QString& text) {
        painter.setPen(palette_.color(QPalette::ToolTipText));
        painter.drawText(place, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextDontClip, text);
    };
    painter.setFont(Bold(font_));
    write(line, Qt::AlignLeft, title);
    painter.setFont(font_);
    for (const Row& row : rows) {
        line.translate(0, measure.Line);
        PaintSwatch(painter, row.Look, line);
        write(line.adjusted(SwatchWidth + Padding, 0, 0, 0), Qt::AlignLeft, row.Name);
        write(line, Qt::AlignRight, row.Value);
    }
}

}  // namespace veraqua
