#pragma once

#include <QMdiArea>
#include <QObject>
#include <memory>
#include <vector>

#include "screen/form.h"

namespace veraqua {

class BoundWindow;
class WindowEvents;

/// The windows inside another one, side by side in rows.
class PanelArea : public QObject {
  public:
    PanelArea(QMdiArea& area, WindowEvents& events);
    ~PanelArea() override;
    PanelArea(const PanelArea&) = delete;
    PanelArea& operator=(const PanelArea&) = delete;

    /// Shows the forms that are `Shown`, in their order.
    void Bring(const std::vector<std::shared_ptr<FormTable>>& forms);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Panel {
        std::shared_ptr<FormTable> Form;
        std::unique_ptr<BoundWindow> Bound;
        QMdiSubWindow* Frame = nullptr;
    };

    void Make(const std::vector<std::shared_ptr<FormTable>>& forms);
    void Arrange();

    QMdiArea* area_;
    WindowEvents* events_;
    std::vector<Panel> panels_;
};

}  // namespace veraqua
