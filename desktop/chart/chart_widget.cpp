#include "desktop/chart/chart_widget.h"

#include <QAccessible>
#include <QAction>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include "chart/readings.h"
#include "desktop/chart/chart_canvas.h"
#include "desktop/chart/chart_export.h"
#include "desktop/text.h"

namespace veraqua {

namespace {

constexpr double ZoomPerKey = 1.5;
constexpr double MovePerKey = 0.5;  // of the days shown
constexpr int Week = 7;

}  // namespace

ChartWidget::ChartWidget(QWidget* parent)
    : QWidget(parent),
      canvas_(new ChartCanvas(this, [this] { DaysChanged(); })),
      hint_(new QLabel("Drag or turn the wheel to zoom, drag with Shift to move", this)),
      wholeSeason_(new QPushButton("&Whole season", this)),
      save_(new QPushButton("&Save as", this)),
      formats_(new QMenu(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    hint_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // it keeps no window from being small
    hint_->setProperty("role", "hint");
    hint_->setProperty("standsAlone", true);
    FillMenus();
    LayOut();
    DaysChanged();
}

void ChartWidget::FillMenus() {
    const auto add = [this](const QString& text, ChartFormat format) {
        QAction* action = formats_->addAction(text);
        connect(action, &QAction::triggered, this, [this, format] { Save(format); });
        return action;
    };
    QAction* picture = add("Save as &PNG...", ChartFormat::Png);
    picture->setShortcut(QKeySequence::Save);
    add("Save as S&VG...", ChartFormat::Svg);
    add("Save as &CSV...", ChartFormat::Csv);
    save_->setMenu(formats_);
    connect(wholeSeason_, &QPushButton::clicked, canvas_, &ChartCanvas::ShowSeason);
    auto* season = new QAction("&Whole season", this);
    connect(season, &QAction::triggered, canvas_, &ChartCanvas::ShowSeason);
    addAction(season);
    addActions(formats_->actions());
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void ChartWidget::LayOut() {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(2, 0, 0, 0);
    row->addWidget(hint_, 1);
    row->addStretch();
    row->addWidget(wholeSeason_);
    row->addWidget(save_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(canvas_, 1);
    column->addLayout(row);
}

void ChartWidget::ShowChart(const ChartContent& chart) {
    if (canvas_->ShowChart(chart)) Describe(LatestDay(chart));
}

QSize ChartWidget::sizeHint() const { return {900, 540}; }

QSize ChartWidget::minimumSizeHint() const { return {420, 300}; }

void ChartWidget::keyPressEvent(QKeyEvent* event) {
    const ChartPlot* plot = canvas_->Plot();
    if (plot == nullptr) return event->ignore();
    const AxisRange days = plot->Days();
    const double centre = plot->PointedDay().value_or(static_cast<JulianValue>((days.First + days.Last) / 2));
    const int step = event->modifiers().testFlag(Qt::ControlModifier) ? Week : 1;
    switch (event->key()) {
        case Qt::Key_Left: return Step(-step);
        case Qt::Key_Right: return Step(step);
        case Qt::Key_PageUp: return canvas_->Move(-days.Length() * MovePerKey);
        case Qt::Key_PageDown: return canvas_->Move(days.Length() * MovePerKey);
        case Qt::Key_Plus:
        case Qt::Key_Equal: return canvas_->Zoom(1 / ZoomPerKey, centre);
        case Qt::Key_Minus: return canvas_->Zoom(ZoomPerKey, centre);
        case Qt::Key_Home: return canvas_->ShowSeason();
        default: event->ignore();
    }
}

void ChartWidget::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    canvas_->ShowFocus(reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                       reason == Qt::ShortcutFocusReason);
}

void ChartWidget::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    canvas_->ShowFocus(false);
}

void ChartWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const bool isCompact = property("compact").toBool();  // its menu has the rest
    for (QWidget* button : {wholeSeason_, save_}) button->setVisible(!isCompact);
    // Where it doesn't fit the hint stays away.
    const int buttons = wholeSeason_->sizeHint().width() + save_->sizeHint().width();
    hint_->setVisible(!isCompact && width() > hint_->sizeHint().width() + buttons + 3 * layout()->spacing());
}

void ChartWidget::Save(ChartFormat format) {
    const ChartPlot* plot = canvas_->Plot();
    if (plot != nullptr) AskAndSaveChart(this, format, {&plot->Shown(), plot->Days(), canvas_->size()});
}

void ChartWidget::DaysChanged() {
    const ChartPlot* plot = canvas_->Plot();
    wholeSeason_->setEnabled(plot != nullptr && plot->Days() != plot->Season());
}

void ChartWidget::Step(int days) {
    const ChartPlot* plot = canvas_->Plot();
    const std::optional<JulianValue> pointed = plot->PointedDay();
    canvas_->PointAt(pointed ? *pointed + days : LatestDay(plot->Shown()));
    Describe(plot->PointedDay().value_or(0));
}

void ChartWidget::Describe(JulianValue day) {
    const ChartPlot* plot = canvas_->Plot();
    if (plot == nullptr || day == 0) return setAccessibleDescription({});
    setAccessibleDescription(ToQt(DayInWords(plot->Shown(), day)));
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

}  // namespace veraqua
