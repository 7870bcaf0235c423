#include "desktop/views/drawing_widget.h"

#include <QPainter>
#include <QStringList>
#include <QSvgRenderer>
#include <algorithm>

#include "desktop/text.h"

namespace veraqua {

namespace {

using Kind = Drawing::Kind;
using Shape = Drawing::Shape;

constexpr double PaperMargin = 8;   ///< pixels around the drawing
constexpr double PaperRadius = 8;   ///< of the paper's corners
constexpr double LineWidth = 1.6;   ///< in the drawing's units, as the sizes below
constexpr double TextHeight = 10;   ///< but never smaller than the widget's own text, so that it stays readable
constexpr double SmallestText = 6;  ///< pixels; where lines leave no room for that there is no text
constexpr double TextShare = 0.85;  ///< that text may have of its box's height

const QColor PaperColour = "#fbfaf6";
const QColor PaperEdge = "#d5d0c3";

QRectF BoxOf(const Shape& shape) { return {QPointF(shape.Left, shape.Top), QPointF(shape.Right, shape.Bottom)}; }

QColor InkOf(const Shape& shape) { return {shape.Ink.Red, shape.Ink.Green, shape.Ink.Blue}; }

void DrawLine(QPainter& painter, const Shape& shape) {
    painter.setPen(QPen(InkOf(shape), LineWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(shape.Left, shape.Top), QPointF(shape.Right, shape.Bottom));
}

/// Text is set in pixels, where fonts are sharp. It is centred in its box and may stand over the sides, not over top
/// and bottom, where the next box has its own.
void DrawText(QPainter& painter, const Shape& shape, QFont font) {
    const QTransform toPixels = painter.transform();
    const QRectF box = toPixels.mapRect(BoxOf(shape));
    const double wished = std::max<double>(QFontInfo(font).pixelSize(), TextHeight * toPixels.m11());
    const double fitting = std::min(wished, box.height() * TextShare);
    if (fitting < SmallestText) return;
    font.setPixelSize(static_cast<int>(fitting));
    painter.save();
    painter.resetTransform();
    painter.setFont(font);
    painter.setPen(InkOf(shape));
    painter.drawText(box, static_cast<int>(Qt::AlignCenter) | Qt::TextDontClip, ToQt(shape.Text));
    painter.restore();
}

/// The family that a drawing asks for, or any other without serifs.
QFont FontOf(const Drawing& drawing, QFont font) {
    if (!drawing.FontFamily.empty()) font.setFamilies({ToQt(drawing.FontFamily)});
    font.setStyleHint(QFont::SansSerif);
    return font;
}

}  // namespace

DrawingWidget::DrawingWidget(QWidget* parent) : QWidget(parent) {
    // The drawing is fitted into whatever room there is. A height that follows the width would make a wide window high.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

DrawingWidget::~DrawingWidget() = default;

void DrawingWidget::ShowDrawing(const Drawing& drawing) {
    drawing_ = drawing;
    QStringList texts;
    for (const Shape& shape : drawing.Shapes)
        if (shape.Is == Kind::Text) texts.append(ToQt(shape.Text));
    setAccessibleDescription(texts.join(", "));
    updateGeometry();
    update();
}

QSize DrawingWidget::sizeHint() const {
    constexpr double usual = 1.2;  // pixels for a unit
    return QSizeF(drawing_.Width * usual + 2 * PaperMargin, drawing_.Height * usual + 2 * PaperMargin).toSize();
}

QSize DrawingWidget::minimumSizeHint() const { return sizeHint() / 2; }

QRectF DrawingWidget::Paper() const {
    const QSizeF margins(2 * PaperMargin, 2 * PaperMargin);
    const QSizeF fitted = QSizeF(drawing_.Width, drawing_.Height).scaled(size() - margins, Qt::KeepAspectRatio);
    QRectF paper(QPointF(), fitted + margins);
    paper.moveCenter(QRectF(rect()).center());
    return paper;
}

QSvgRenderer& DrawingWidget::Picture(const std::string& name) {
    std::unique_ptr<QSvgRenderer>& picture = pictures_[name];
    if (!picture) {
        picture = std::make_unique<QSvgRenderer>(QString(":/pictures/%1.svg").arg(ToQt(name)));
        picture->setAspectRatioMode(Qt::KeepAspectRatio);
    }
    return *picture;
}

void DrawingWidget::paintEvent(QPaintEvent*) {
    const QRectF paper = Paper();
    if (drawing_.Width <= 0 || drawing_.Height <= 0 || paper.width() <= 2 * PaperMargin) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(PaperEdge);
    painter.setBrush(PaperColour);
    painter.drawRoundedRect(paper.adjusted(0.5, 0.5, -0.5, -0.5), PaperRadius, PaperRadius);
    painter.translate(paper.topLeft() + QPointF(PaperMargin, PaperMargin));
    const double scale = (paper.width() - 2 * PaperMargin) / drawing_.Width;
    painter.scale(scale, scale);
    for (const Shape& shape : drawing_.Shapes) {
        if (shape.Is == Kind::Line) DrawLine(painter, shape);
        if (shape.Is == Kind::Text) DrawText(painter, shape, FontOf(drawing_, font()));
        if (shape.Is == Kind::Picture) Picture(shape.Text).render(&painter, BoxOf(shape));
    }
}

}  // namespace veraqua
