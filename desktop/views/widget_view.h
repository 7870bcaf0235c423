#pragma once

#include "desktop/views/control_view.h"
#include "screen/controls.h"

/// Parts that the views of several kinds of controls share.
namespace veraqua {

/// Shows visibility, enabling, tool tip and background of `control`.
void BringControl(const Control& control, QWidget& widget);

template <class C, class W>
class WidgetView : public ControlView {
  public:
    WidgetView(ControlEntry& entry, C& control, W& widget, ControlEvents& events)
        : entry_(&entry), control_(&control), widget_(&widget), events_(&events) {}

    QWidget* Widget() const override { return widget_; }

    void Bring() override {
        bringing_ = true;
        BringControl(*control_, *widget_);
        BringOwn();
        bringing_ = false;
    }

  protected:
    /// What only this kind of control has.
    virtual void BringOwn() = 0;

    const C& Record() const { return *control_; }
    C& Record() { return *control_; }
    W& Shown() const { return *widget_; }

    /// Whether a signal comes from the program, not from the user.
    bool IsBringing() const { return bringing_; }

    /// Takes what the user has picked into the record by `take`, and runs the event.
    template <class Take>
    void Picked(Take take, Event event = Event::Click) {
        if (bringing_) return;
        if (!events_->Reach(*entry_)) return Bring();
        take();
        events_->Happened(*entry_, event);
    }
    void Clicked() {
        Picked([] {});
    }
    void Typed(Event event = Event::Change) {
        events_->Typed(*entry_);
        events_->Happened(*entry_, event);
    }

  private:
    ControlEntry* entry_;
    C* control_;
    W* widget_;
    ControlEvents* events_;
    bool bringing_ = false;
};

/// The view of a control whose widget is a W; null if it is none. `more` goes to the view's constructor as well.
template <class View, class W, class C, class... More>
std::unique_ptr<ControlView> ViewOn(ControlEntry& entry, C& control, QWidget* widget, ControlEvents& events,
                                    More&... more) {
    W* shown = dynamic_cast<W*>(widget);
    return shown == nullptr ? nullptr : std::make_unique<View>(entry, control, *shown, events, more...);
}

std::unique_ptr<ControlView> MakeInput(ControlEntry& entry, TextBox& box, QWidget* widget, ControlEvents& events);
std::unique_ptr<ControlView> MakeInput(ControlEntry& entry, Button& button, QWidget* widget, ControlEvents& events);
std::unique_ptr<ControlView> MakeInput(ControlEntry& entry, CheckBox& box, QWidget* widget, ControlEvents& events);
std::unique_ptr<ControlView> MakeInput(ControlEntry& entry, ComboBox& box, QWidget* widget, ControlEvents& events);
std::unique_ptr<ControlView> MakeInput(ControlEntry& entry, ListBox& list, QWidget* widget, ControlEvents& events);
std::unique_ptr<ControlView> MakeInput(ControlEntry& entry, Calendar& calendar, QWidget* widget, ControlEvents& events);
std::unique_ptr<ControlView> MakeInput(ControlEntry& entry, DirectoryBox& box, QWidget* widget, ControlEvents& events);
std::unique_ptr<ControlView> MakeOption(ControlEntry& entry, OptionButton& option, QWidget* widget, FormTable& form,
                                        ControlEvents& events);

std::unique_ptr<ControlView> MakeDisplay(ControlEntry& entry, Label& label, QWidget* widget, ControlEvents& events);
std::unique_ptr<ControlView> MakeDisplay(ControlEntry& entry, Frame& frame, QWidget* widget, ControlEvents& events);
std::unique_ptr<ControlView> MakeDisplay(ControlEntry& entry, StatusBar& bar, QWidget* widget, ControlEvents& events);
std::unique_ptr<ControlView> MakeDisplay(ControlEntry& entry, ProgressBar& bar, QWidget* widget, ControlEvents& events);
std::unique_ptr<ControlView> MakeDisplay(ControlEntry& entry, Image& image, QWidget* widget, ControlEvents& events);
std::unique_ptr<ControlView> MakeDisplay(ControlEntry& entry, Drawing& drawing, QWidget* widget, ControlEvents& events);
std::unique_ptr<ControlView> MakeDisplay(ControlEntry& entry, Chart& chart, QWidget* widget, ControlEvents& events);

std::unique_ptr<ControlView> MakeMenuEntry(ControlEntry& entry, MenuItem& item, QObject* action, ControlEvents& events);

std::unique_ptr<ControlView> MakeTable(ControlEntry& entry, Table& table, QWidget* widget, ControlEvents& events);
/// A text box that lists lines in columns.
std::unique_ptr<ControlView> MakeListing(ControlEntry& entry, TextBox& box, QWidget* widget, FormTable& form,
                                         ControlEvents& events);

}  // namespace veraqua
