#pragma once

#include <QWidget>
#include <map>
#include <memory>
#include <string>

#include "screen/controls.h"

class QSvgRenderer;

namespace veraqua {

/// Shows a drawing as large as the widget allows, centred, on light paper in a dark theme too: its inks are made for
/// that.
class DrawingWidget : public QWidget {
  public:
    explicit DrawingWidget(QWidget* parent = nullptr);
    ~DrawingWidget() override;
    DrawingWidget(const DrawingWidget&) = delete;
    DrawingWidget& operator=(const DrawingWidget&) = delete;

    void ShowDrawing(const Drawing& drawing);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QRectF Paper() const;
    QSvgRenderer& Picture(const std::string& name);

    Drawing drawing_;
    std::map<std::string, std::unique_ptr<QSvgRenderer>> pictures_;
};

}  // namespace veraqua
