#pragma once

#include <QMouseEvent>
#include <QObject>
#include <QWidget>
#include <memory>
#include <vector>

#include "desktop/views/control_view.h"
#include "desktop/views/field_note.h"
#include "screen/form.h"

namespace veraqua {

class PanelArea;

/// What a bound window tells the screen that it is on.
class WindowEvents {
  public:
    virtual ~WindowEvents() = default;

    /// An event of a form begins: nothing has been told in it yet.
    virtual void EventBegins() = 0;

    /// It is over: all windows show their records.
    virtual void EventEnds() = 0;

    /// What the user was told last in the event that runs; empty if nothing.
    virtual QString ToldInEvent() const = 0;
};

/// A form's window tied to its record. What the user types stands in the record before an event runs; `Bring` shows the
/// record, after each event and whenever a message or another window comes up. What the events do is the form's affair.
class BoundWindow : public QObject, public ControlEvents {
  public:
    BoundWindow(FormTable& form, WindowEvents& events);
    ~BoundWindow() override;
    BoundWindow(const BoundWindow&) = delete;
    BoundWindow& operator=(const BoundWindow&) = delete;

    FormTable& Table() const { return *form_; }
    QWidget& Window() const { return *window_; }

    /// Brings the record to the screen, and the records of the windows inside this one.
    void Bring();

    void PutFocus(const ControlEntry& control, bool selectText);

    /// The window has come up: puts the keyboard where the form has put it or the user has left it, else on the first
    /// input; where there is none, on the default button.
    void TakeFocus();

    bool Reach(const ControlEntry& control) override;
    void Happened(const ControlEntry& control, Event event) override;
    void Typed(const ControlEntry& control) override;

    /// Controls that the design lacks, by name.
    const std::vector<std::string>& Lacking() const { return lacking_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void BindControls();
    void HoldLayout(bool held);
    void BringContainers();
    ControlEntry* EntryOf(const QObject* widget) const;
    ControlView* ViewOf(const ControlEntry& control) const;
    bool ClickedByName(QObject* watched, const QMouseEvent& release);
    bool KeyPressed(QObject* watched, int key);
    bool EnterPressed(QWidget* at);
    bool DeletePressed(QWidget* at);
    void EscapePressed();
    void FocusArrived(const ControlEntry& control);
    void KeepFocus(const ControlEntry& wanted);
    void Leave();
    template <class Function>
    void InEvent(Function function);
    QWidget* FirstInput() const;
    void FocusOn(QWidget* place);

    FormTable* form_;
    WindowEvents* events_;
    std::unique_ptr<QWidget> window_;
    std::vector<std::unique_ptr<ControlView>> views_;  ///< by the place of their controls in the table
    std::vector<std::string> lacking_;
    std::unique_ptr<PanelArea> panels_;  ///< of the windows inside this one, where the design has room for them
    FieldNote note_;                     ///< why a check has refused an input
    bool isReaching_ = false;
};

}  // namespace veraqua
