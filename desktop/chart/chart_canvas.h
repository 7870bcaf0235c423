#pragma once

#include <QChartView>
#include <functional>

#include "desktop/chart/chart_plot.h"

class QRubberBand;

namespace veraqua {

/// A chart under the mouse. The pointer shows the values of its day. Dragging zooms into a stretch of days, the wheel
/// about the pointer; dragging with Shift or the middle button moves along the season, as the wheel does with Shift; a
/// double click goes back to the whole season.
class ChartCanvas : public QChartView {
  public:
    /// `daysChanged` is called when other days are shown.
    ChartCanvas(QWidget* parent, std::function<void()> daysChanged);

    /// While title and season stay the same, so do the days that are shown. False if `chart` is there already.
    bool ShowChart(const ChartContent& chart);

    /// Null while there is no chart with a day.
    ChartPlot* Plot() const { return plot_ != nullptr && plot_->Season().Length() > 0 ? plot_ : nullptr; }

    void ShowDays(AxisRange days);
    void ShowSeason();
    void Zoom(double factor, double day);
    void Move(double days);

    /// Points at a day of the season, the nearest to `day`, and moves it into sight.
    void PointAt(JulianValue day);

    /// Whether the keyboard has come here.
    void ShowFocus(bool focused);

  protected:
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void drawForeground(QPainter* painter, const QRectF& rect) override;

  private:
    enum class Dragging { Nothing, Range, Season };

    double XIn(const QPointF& position) const;
    void Drag(const QPointF& position);

    std::function<void()> daysChanged_;
    ChartPlot* plot_ = nullptr;  ///< null until there is a chart; belongs to the view
    QRubberBand* band_;
    bool focused_ = false;
    Dragging dragging_ = Dragging::Nothing;
    QPointF dragStart_;
    AxisRange dragDays_;  ///< shown when it began
};

}  // namespace veraqua
