#pragma once

#include <QChart>
#include <QPalette>
#include <map>
#include <optional>

#include "chart/layout.h"
#include "desktop/chart/chart_type.h"

class QLineSeries;
class QValueAxis;

namespace veraqua {

class ChartFrame;
class ChartPointer;

/// A chart as an item of a graphics scene, at any size: series, axes, legend and marks, and the pointer at a day.
class ChartPlot : public QChart {
  public:
    ChartPlot(ChartContent chart, const QPalette& palette, const QFont& font);
    ~ChartPlot() override;
    ChartPlot(const ChartPlot&) = delete;
    ChartPlot& operator=(const ChartPlot&) = delete;

    const ChartContent& Shown() const { return chart_; }
    AxisRange Season() const { return season_; }

    /// The days from side to side: at first the season. `ShowDays` keeps within it.
    AxisRange Days() const { return days_; }
    void ShowDays(AxisRange days);

    void Restyle(const QPalette& palette, const QFont& font);

    /// Where the values are, in the item's pixels.
    QRectF Plot() const { return InQt(layout_.Plot); }
    double DayAt(double x) const { return layout_.DayAt(x); }

    /// The day that is pointed at.
    void PointAt(std::optional<JulianValue> day);
    std::optional<JulianValue> PointedDay() const;

  protected:
    void resizeEvent(QGraphicsSceneResizeEvent* event) override;

  private:
    void AddSeries(std::size_t series);
    void Colour();
    void Arrange();

    ChartContent chart_;
    QPalette palette_;
    QFont font_;
    AxisRange season_;
    AxisRange days_;
    ChartLayout layout_;
    QValueAxis* dayAxis_;
    QValueAxis* valueAxis_;
    QValueAxis* amountAxis_;
    std::map<std::size_t, QLineSeries*> barEdges_;  ///< the upper edge of bars by their series
    ChartFrame* frame_;
    ChartPointer* pointer_;
};

}  // namespace veraqua
