#pragma once

#include <QFont>
#include <QGraphicsItem>
#include <QPalette>

#include "chart/layout.h"

namespace veraqua {

/// Paints what lies around and behind the series of a chart.
class ChartFrame : public QGraphicsItem {
  public:
    /// `chart` outlives it.
    ChartFrame(const ChartContent& chart, QGraphicsItem* parent);

    void Show(const ChartLayout& layout, const QPalette& palette, const QFont& font);

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    void PaintSample(QPainter& painter, const ChartLayout::Sample& sample) const;
    void PaintWords(QPainter& painter, const ChartLayout::Words& words) const;

    const ChartContent* chart_;
    ChartLayout layout_;
    QPalette palette_;
    QFont font_;
};

}  // namespace veraqua
