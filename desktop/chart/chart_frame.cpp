#include "desktop/chart/chart_frame.h"

#include <QPainter>

#include "desktop/chart/chart_look.h"
#include "desktop/chart/chart_type.h"
#include "desktop/text.h"

namespace veraqua {

namespace {

using Tone = ChartLayout::Tone;

constexpr double CornerRadius = 8;

}  // namespace

ChartFrame::ChartFrame(const ChartContent& chart, QGraphicsItem* parent) : QGraphicsItem(parent), chart_(&chart) {}

void ChartFrame::Show(const ChartLayout& layout, const QPalette& palette, const QFont& font) {
    prepareGeometryChange();
    layout_ = layout;
    palette_ = palette;
    font_ = font;
    update();
}

QRectF ChartFrame::boundingRect() const { return parentItem()->boundingRect(); }

void ChartFrame::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(GridColour(palette_), 1));
    painter->setBrush(palette_.color(QPalette::Base));
    painter->drawRoundedRect(boundingRect().adjusted(0.5, 0.5, -0.5, -0.5), CornerRadius, CornerRadius);
    if (layout_.Plot.IsEmpty()) return;
    painter->setBrush(Qt::NoBrush);
    for (const ChartLine& line : layout_.Grid) painter->drawLine(InQt(line));
    painter->setPen(QPen(Blended(GridColour(palette_), QuietText(palette_), 0.5F), 1));
    painter->drawRect(InQt(layout_.Plot));
    painter->setPen(QPen(QuietText(palette_), 1.2, Qt::DashLine));
    for (const ChartLine& line : layout_.Marks) painter->drawLine(InQt(line));
    for (const ChartLayout::Sample& sample : layout_.Samples) PaintSample(*painter, sample);
    for (const ChartLayout::Words& words : layout_.Texts) PaintWords(*painter, words);
}

void ChartFrame::PaintSample(QPainter& painter, const ChartLayout::Sample& sample) const {
    const SeriesLook look = LookOf(*chart_, sample.Series, palette_);
    const QRectF box = InQt(sample.Box);
    const QPointF centre = box.center();
    if (look.Fill != Qt::NoBrush) {
        // Two bars.
        const double width = box.width() / 5;
        const QRectF bar(centre.x() - 1.5 * width, box.top() + 2, width, box.height() - 4);
        painter.fillRect(bar, look.Fill);
        painter.fillRect(bar.adjusted(2 * width, bar.height() / 3, 2 * width, 0), look.Fill);
        return;
    }
    painter.setPen(look.Line);
    painter.drawLine(QPointF(box.left(), centre.y()), QPointF(box.right(), centre.y()));
}

void ChartFrame::PaintWords(QPainter& painter, const ChartLayout::Words& words) const {
    painter.setFont(words.Is == Tone::Title ? Bold(font_) : font_);
    if (words.Is == Tone::MarkName) painter.fillRect(InQt(words.Box), palette_.color(QPalette::Base));
    painter.setPen(words.Is == Tone::Quiet ? QuietText(palette_) : palette_.color(QPalette::Text));
    painter.drawText(InQt(words.Box), static_cast<int>(Qt::AlignCenter) | Qt::TextDontClip | Qt::TextSingleLine,
                     ToQt(words.Text));
}

}  // namespace veraqua
