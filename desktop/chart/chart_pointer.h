#pragma once

#include <QFont>
#include <QGraphicsItem>
#include <QPalette>
#include <optional>

#include "chart/layout.h"

namespace veraqua {

/// Points at a day of a chart: an upright line with a dot on each series, and a box with the values.
class ChartPointer : public QGraphicsItem {
  public:
    /// `chart` outlives it.
    ChartPointer(const ChartContent& chart, QGraphicsItem* parent);

    void Show(const ChartLayout& layout, const QPalette& palette, const QFont& font);

    /// A day outside the plot isn't pointed at.
    void PointAt(std::optional<JulianValue> day);
    std::optional<JulianValue> Day() const { return day_; }

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    void PaintDots(QPainter& painter) const;
    void PaintBox(QPainter& painter) const;

    const ChartContent* chart_;
    ChartLayout layout_;
    QPalette palette_;
    QFont font_;
    std::optional<JulianValue> day_;
};

}  // namespace veraqua
