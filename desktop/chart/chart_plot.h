#pragma once

#include <QChart>
#include <QPalette>
#include <optional>
#include <vector>

#include "desktop/chart/chart_days.h"
#include "desktop/chart/chart_layout.h"

class QLineSeries;
class QValueAxis;

namespace veraqua {

class ChartFrame;
class ChartPointer;

/// A chart as an item of a graphics scene, at any size: series, axes, legend and marks, and the pointer at a day.
class ChartPlot : public QChart {
  public:
    ChartPlot(Chart chart, const QPalette& palette, const QFont& font);
    ~ChartPlot() override;
    ChartPlot(const ChartPlot&) = delete;
    ChartPlot& operator=(const ChartPlot&) = delete;

    const Chart& Shown() const { return chart_; }
    DayRange Season() const { return season_; }

    /// The days from side to side: at first the season. `ShowDays` keeps within it.
    DayRange Days() const { return days_; }
    void ShowDays(DayRange days);

    void Restyle(const QPalette& palette, const QFont& font);

    /// Where the values are, in the item's pixels.
    QRectF Plot() const { return layout_.Plot; }
    double DayAt(double x) const { return layout_.DayAt(x); }

    /// The day that is pointed at.
    void PointAt(std::optional<JulianValue> day);
    std::optional<JulianValue> PointedDay() const;

  protected:
    void resizeEvent(QGraphicsSceneResizeEvent* event) override;

  private:
    /// The upper edge of bars, and the series that they are.
    struct Bars {
        std::size_t Series = 0;
        QLineSeries* Edge = nullptr;
    };

    void AddSeries(std::size_t series);
    void Colour();
    void Arrange();
    void ArrangeBars();

    Chart chart_;
    QPalette palette_;
    QFont font_;
    DayRange season_;
    DayRange days_;
    ChartLayout layout_;
    QValueAxis* dayAxis_;
    QValueAxis* valueAxis_;
    QValueAxis* amountAxis_;
    std::vector<Bars> bars_;
    ChartFrame* frame_;
    ChartPointer* pointer_;
};

}  // namespace veraqua
