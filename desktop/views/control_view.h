#pragma once

#include <QWidget>
#include <memory>

#include "screen/form.h"

namespace veraqua {

/// What a control tells the window that it is in.
class ControlEvents {
  public:
    virtual ~ControlEvents() = default;

    /// The user is about to use `control`. False where the check of the one they come from keeps them there.
    virtual bool Reach(const ControlEntry& control) = 0;

    /// Runs an event of `control` after the user has reached it.
    virtual void Happened(const ControlEntry& control, Event event) = 0;

    /// The user has typed into `control` and its record has the text.
    virtual void Typed(const ControlEntry& control) = 0;
};

/// One control of a form, made real: shows what its record says, and takes into the record what the user does.
class ControlView {
  public:
    virtual ~ControlView() = default;

    /// Brings the record to the screen.
    virtual void Bring() = 0;

    /// The widget that stands for the control; null for an entry of a menu and for the heading of a column.
    virtual QWidget* Widget() const { return nullptr; }
};

/// The view of `control` in `window`, by the widget or action of its name. Null where the design lacks it.
std::unique_ptr<ControlView> MakeView(ControlEntry& control, QWidget& window, FormTable& form, ControlEvents& events);

/// The name of the widget that stands for a control: "txtcap_2" for "txtcap(2)".
QString WidgetName(const std::string& controlName);

}  // namespace veraqua
