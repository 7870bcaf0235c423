#include "desktop/chart/chart_canvas.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QRubberBand>
#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>

#include "core/base/numbers.h"

namespace veraqua {

namespace {

constexpr double ZoomPerNotch = 1.25;
constexpr double MovePerNotch = 0.1;  // of the days shown
constexpr double Notch = 120;         // of the wheel

}  // namespace

ChartCanvas::ChartCanvas(QWidget* parent, std::function<void()> daysChanged)
    : QChartView(parent),
      daysChanged_(std::move(daysChanged)),
      band_(new QRubberBand(QRubberBand::Rectangle, viewport())) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::NoContextMenu);  // that of the widget around it comes
    setRenderHint(QPainter::Antialiasing);
    setViewportUpdateMode(FullViewportUpdate);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
}

bool ChartCanvas::ShowChart(const ChartContent& chart) {
    if (plot_ != nullptr && plot_->Shown() == chart) return false;
    auto plot = std::make_unique<ChartPlot>(chart, palette(), font());
    if (plot_ != nullptr && plot_->Shown().Title == chart.Title && plot_->Season() == plot->Season())
        plot->ShowDays(plot_->Days());
    plot_ = plot.get();
    const std::unique_ptr<QChart> old(QChartView::chart());
    setChart(plot.release());
    daysChanged_();
    return true;
}

void ChartCanvas::ShowDays(AxisRange days) {
    if (Plot() == nullptr) return;
    plot_->ShowDays(days);
    daysChanged_();
}

void ChartCanvas::ShowSeason() {
    if (Plot() != nullptr) ShowDays(plot_->Season());
}

void ChartCanvas::Zoom(double factor, double day) {
    if (Plot() != nullptr) ShowDays(Zoomed(plot_->Season(), plot_->Days(), factor, day));
}

void ChartCanvas::Move(double days) {
    if (Plot() != nullptr) ShowDays({plot_->Days().First + days, plot_->Days().Last + days});
}

void ChartCanvas::PointAt(JulianValue day) {
    if (Plot() == nullptr) return;
    const double pointed = std::clamp<double>(day, plot_->Season().First + 0.5, plot_->Season().Last - 0.5);
    plot_->PointAt(static_cast<JulianValue>(RoundHalfEven(pointed)));
    const AxisRange days = plot_->Days();
    if (pointed - 0.5 < days.First) Move(pointed - 0.5 - days.First);
    if (pointed + 0.5 > days.Last) Move(pointed + 0.5 - days.Last);
}

void ChartCanvas::ShowFocus(bool focused) {
    focused_ = focused;
    viewport()->update();
}

double ChartCanvas::XIn(const QPointF& position) const {
    return plot_->mapFromScene(mapToScene(position.toPoint())).x();
}

void ChartCanvas::changeEvent(QEvent* event) {
    QChartView::changeEvent(event);
    const bool looksElse = event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
    if (looksElse && plot_ != nullptr) plot_->Restyle(palette(), font());
}

bool ChartCanvas::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave && plot_ != nullptr) plot_->PointAt(std::nullopt);
    return QChartView::viewportEvent(event);
}

void ChartCanvas::mousePressEvent(QMouseEvent* event) {
    const bool left = event->button() == Qt::LeftButton;
    if (Plot() == nullptr || (!left && event->button() != Qt::MiddleButton)) return event->ignore();
    parentWidget()->setFocus(Qt::MouseFocusReason);
    dragging_ = left && !event->modifiers().testFlag(Qt::ShiftModifier) ? Dragging::Range : Dragging::Season;
    dragStart_ = event->position();
    dragDays_ = plot_->Days();
    if (dragging_ == Dragging::Season) viewport()->setCursor(Qt::ClosedHandCursor);
}

void ChartCanvas::mouseMoveEvent(QMouseEvent* event) {
    if (Plot() == nullptr) return;
    if (dragging_ != Dragging::Nothing) return Drag(event->position());
    const double x = XIn(event->position());
    const bool inside = x >= plot_->Plot().left() && x <= plot_->Plot().right();
    plot_->PointAt(inside ? std::optional(static_cast<JulianValue>(RoundHalfEven(plot_->DayAt(x)))) : std::nullopt);
}

void ChartCanvas::Drag(const QPointF& position) {
    const QRectF plot = plot_->Plot();
    if (dragging_ == Dragging::Season) {
        const double days = (dragStart_.x() - position.x()) / plot.width() * dragDays_.Length();
        return ShowDays({dragDays_.First + days, dragDays_.Last + days});
    }
    plot_->PointAt(std::nullopt);
    const QPointF from(dragStart_.x(), plot.top());
    band_->setGeometry(QRectF(from, QPointF(position.x(), plot.bottom())).normalized().toRect() & plot.toRect());
    band_->show();
}

void ChartCanvas::mouseReleaseEvent(QMouseEvent* event) {
    const Dragging ended = std::exchange(dragging_, Dragging::Nothing);
    band_->hide();
    viewport()->unsetCursor();
    const double width = std::fabs(event->position().x() - dragStart_.x());
    if (ended != Dragging::Range || Plot() == nullptr || width < QApplication::startDragDistance()) return;
    const auto [first, last] = std::minmax(plot_->DayAt(XIn(dragStart_)), plot_->DayAt(XIn(event->position())));
    ShowDays({first, last});
}

void ChartCanvas::mouseDoubleClickEvent(QMouseEvent*) { ShowSeason(); }

void ChartCanvas::wheelEvent(QWheelEvent* event) {
    event->accept();
    if (Plot() == nullptr) return;
    const QPoint turned = event->angleDelta();
    const bool sideways = event->modifiers().testFlag(Qt::ShiftModifier) || turned.x() != 0;
    const double notches = (turned.x() != 0 ? turned.x() : turned.y()) / Notch;
    if (sideways) return Move(-notches * MovePerNotch * plot_->Days().Length());
    Zoom(std::pow(ZoomPerNotch, -notches), plot_->DayAt(XIn(event->position())));
}

void ChartCanvas::drawForeground(QPainter* painter, const QRectF&) {
    if (!focused_) return;
    painter->setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter->setBrush(Qt::NoBrush);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->drawRoundedRect(sceneRect().adjusted(1, 1, -1, -1), 8, 8);
}

}  // namespace veraqua
