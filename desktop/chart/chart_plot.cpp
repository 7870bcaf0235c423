#include "desktop/chart/chart_plot.h"

#include <QAreaSeries>
#include <QGraphicsSceneResizeEvent>
#include <QLegend>
#include <QLineSeries>
#include <QValueAxis>
#include <utility>

#include "desktop/chart/chart_frame.h"
#include "desktop/chart/chart_look.h"
#include "desktop/chart/chart_pointer.h"

namespace veraqua {

namespace {

using Look = ChartSeries::Look;

constexpr double FrameDepth = 0.5;    // before the ground, behind the series
constexpr double PointerDepth = 100;  // before everything

QList<QPointF> PointsOf(const ChartSeries& series) {
    QList<QPointF> points;
    for (const ChartSeries::Point& point : series.Points) points.append({static_cast<double>(point.Day), point.Value});
    return points;
}

/// The upper edge of the bars of a series.
QList<QPointF> EdgeOf(const ChartSeries& series, const ChartLayout::Bars& bars) {
    QList<QPointF> edge;
    for (const ChartSeries::Point& point : series.Points) {
        const double left = point.Day + bars.Offset;
        edge << QPointF(left, 0) << QPointF(left, point.Value) << QPointF(left + bars.Width, point.Value)
             << QPointF(left + bars.Width, 0);
    }
    return edge;
}

}  // namespace

ChartPlot::ChartPlot(ChartContent chart, const QPalette& palette, const QFont& font)
    : chart_(std::move(chart)),
      palette_(palette),
      font_(font),
      season_(SeasonOf(chart_)),
      days_(season_),
      dayAxis_(new QValueAxis(this)),
      valueAxis_(new QValueAxis(this)),
      amountAxis_(new QValueAxis(this)),
      frame_(new ChartFrame(chart_, this)),
      pointer_(new ChartPointer(chart_, this)) {
    frame_->setZValue(FrameDepth);
    pointer_->setZValue(PointerDepth);
    legend()->hide();
    // The frame paints the ground and writes the numbers and dates.
    setBackgroundVisible(false);
    setMargins({});
    addAxis(dayAxis_, Qt::AlignBottom);
    addAxis(valueAxis_, Qt::AlignLeft);
    addAxis(amountAxis_, Qt::AlignRight);
    for (QValueAxis* axis : {dayAxis_, valueAxis_, amountAxis_}) axis->setVisible(false);
    // Bars lie behind the lines.
    for (const bool bars : {true, false})
        for (std::size_t i = 0; i < chart_.Series.size(); ++i)
            if ((chart_.Series[i].Shape == Look::Bars) == bars) AddSeries(i);
    Arrange();
}

ChartPlot::~ChartPlot() = default;

void ChartPlot::AddSeries(std::size_t series) {
    const ChartSeries& added = chart_.Series[series];
    auto* line = new QLineSeries(this);
    QAbstractSeries* shown = line;
    if (added.Shape == Look::Bars) {
        barEdges_[series] = line;
        shown = new QAreaSeries(line);
    } else {
        line->replace(PointsOf(added));
    }
    shown->setName(QString::number(series));
    addSeries(shown);
    shown->attachAxis(dayAxis_);
    shown->attachAxis(added.Shape == Look::Bars ? amountAxis_ : valueAxis_);
}

void ChartPlot::ShowDays(AxisRange days) {
    days_ = RangeWithin(season_, days);
    Arrange();
}

void ChartPlot::Restyle(const QPalette& palette, const QFont& font) {
    palette_ = palette;
    font_ = font;
    Arrange();
}

void ChartPlot::PointAt(std::optional<JulianValue> day) { pointer_->PointAt(day); }

std::optional<JulianValue> ChartPlot::PointedDay() const { return pointer_->Day(); }

void ChartPlot::resizeEvent(QGraphicsSceneResizeEvent* event) {
    QChart::resizeEvent(event);
    Arrange();
}

void ChartPlot::Colour() {
    for (QAbstractSeries* shown : series()) {
        const SeriesLook look = LookOf(chart_, shown->name().toUInt(), palette_);
        if (auto* line = dynamic_cast<QLineSeries*>(shown)) line->setPen(look.Line);
        if (auto* area = dynamic_cast<QAreaSeries*>(shown)) {
            area->setPen(Qt::NoPen);
            area->setBrush(look.Fill);
        }
    }
}

void ChartPlot::Arrange() {
    layout_ = LayOut(chart_, days_, size().width(), size().height(), TypeOf(font_));
    Colour();
    frame_->Show(layout_, palette_, font_);
    pointer_->Show(layout_, palette_, font_);
    if (layout_.Plot.IsEmpty()) return;
    setPlotArea(Plot());
    dayAxis_->setRange(layout_.Days.First, layout_.Days.Last);
    valueAxis_->setRange(layout_.ValueLow, layout_.ValueHigh);
    amountAxis_->setRange(0, layout_.AmountHigh);
    for (const ChartLayout::Bars& bars : layout_.AllBars)
        barEdges_.at(bars.Series)->replace(EdgeOf(chart_.Series[bars.Series], bars));
}

}  // namespace veraqua
