#pragma once

#include <QWidget>

#include "core/shown/chart.h"

class QLabel;
class QMenu;
class QPushButton;

namespace veraqua {

class ChartCanvas;
enum class ChartFormat;

/// A chart to explore, with the mouse (`ChartCanvas`) or by keys: the arrows point at one day after the other (with
/// Ctrl at one week), the page keys move along the season, + and - zoom, Home shows all of it and Ctrl+S saves it.
class ChartWidget : public QWidget {
  public:
    explicit ChartWidget(QWidget* parent = nullptr);

    void ShowChart(const ChartContent& chart);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void FillMenus();
    void LayOut();
    void Save(ChartFormat format);
    void DaysChanged();

    /// Points `days` further than before, at first at the last day measured.
    void Step(int days);

    /// Tells a screen reader of a day.
    void Describe(JulianValue day);

    ChartCanvas* canvas_;
    QLabel* hint_;
    QPushButton* wholeSeason_;
    QPushButton* save_;
    QMenu* formats_;
};

}  // namespace veraqua
