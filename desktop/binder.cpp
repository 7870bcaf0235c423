#include "desktop/binder.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMdiArea>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include "desktop/manual/manual_window.h"
#include "desktop/panel_area.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "desktop/views/date_popup.h"
#include "desktop/windows.h"
#include "screen/forms.h"

namespace veraqua {

namespace {

/// The user goes from one control to another, not from one program or window to another.
bool IsMoveOfFocus(const QEvent& event) {
    const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
}

/// Enter means something of its own there: a line break, or the row in a list whose rows are picked.
bool TakesEnterItself(const QWidget* at, const ControlEntry* entry) {
    const auto* page = qobject_cast<const QPlainTextEdit*>(at);
    const bool picks = entry == nullptr || entry->Events.contains(Event::Click);
    return (qobject_cast<const QAbstractItemView*>(at) != nullptr && picks) || (page != nullptr && !page->isReadOnly());
}

bool IsUsable(const QWidget& widget, const QWidget& window) {
    return widget.isEnabled() && widget.isVisibleTo(&window);
}

/// A mere button is no place to begin: Enter would press it.
bool IsInput(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) == nullptr ||
           qobject_cast<const QRadioButton*>(&widget) != nullptr;
}

QPushButton* DefaultButtonOf(const QWidget& window) {
    for (QPushButton* button : window.findChildren<QPushButton*>())
        if (button->isDefault() && button->isVisible() && button->isEnabled()) return button;
    return nullptr;
}

bool IsDecoration(const QWidget& widget) { return widget.objectName().startsWith("deco"); }

}  // namespace

BoundWindow::BoundWindow(FormTable& form, WindowEvents& events)
    : form_(&form), events_(&events), window_(MakeWindow(form.Name)) {
    BindControls();
    window_->installEventFilter(this);
    for (QWidget* widget : window_->findChildren<QWidget*>()) {
        widget->installEventFilter(this);
        if (widget->focusPolicy() == Qt::WheelFocus) widget->setFocusPolicy(Qt::StrongFocus);
    }
    for (QLineEdit* line : window_->findChildren<QLineEdit*>())
        if (line->property("date").toBool()) AddDatePopup(*line);
    if (auto* area = window_->findChild<QMdiArea*>()) panels_ = std::make_unique<PanelArea>(*area, events);
}

BoundWindow::~BoundWindow() = default;

void BoundWindow::BindControls() {
    for (ControlEntry& entry : form_->Controls) {
        views_.push_back(MakeView(entry, *window_, *form_, *this));
        if (!views_.back()) lacking_.push_back(entry.Name);
    }
}

void BoundWindow::Bring() {
    const QPointer<QWidget> at = window_->focusWidget();
    window_->setWindowTitle(PlainCaption(form_->Record->Caption));
    ShowBackground(*window_, form_->Record->Background);
    HoldLayout(true);
    for (const auto& view : views_)
        if (view) view->Bring();
    BringContainers();
    HoldLayout(false);
    if (panels_) panels_->Bring(form_->Record->Children);
    // The toolkit would put the keyboard on whatever comes next, be it the button by which the window is left.
    if (at != nullptr && at != window_.get() && !IsUsable(*at, *window_)) FocusOn(FirstInput());
}

/// While some of what goes away still stands beside what comes, the window would grow for both.
void BoundWindow::HoldLayout(bool held) {
    QLayout* const layout = window_->layout();
    if (layout == nullptr) return;
    layout->setEnabled(!held);
    if (!held) layout->invalidate();
}

/// A decorative container is there for what is shown in it.
void BoundWindow::BringContainers() {
    for (QWidget* container : window_->findChildren<QWidget*>()) {
        if (!IsDecoration(*container)) continue;
        bool holds = false;
        bool shows = false;
        for (const auto& view : views_) {
            const QWidget* widget = view ? view->Widget() : nullptr;
            if (widget == nullptr || !container->isAncestorOf(widget)) continue;
            holds = true;
            shows = shows || !widget->isHidden();
        }
        if (holds) container->setVisible(shows);
    }
}

void BoundWindow::PutFocus(const ControlEntry& control, bool selectText) {
    const ControlView* view = ViewOf(control);
    QWidget* widget = view == nullptr ? nullptr : view->Widget();
    if (widget == nullptr) return;
    widget->setFocus(Qt::OtherFocusReason);
    if (auto* line = qobject_cast<QLineEdit*>(widget); line != nullptr && selectText) line->selectAll();
    const QString told = events_->ToldInEvent();
    if (!told.isEmpty()) note_.Show(*widget, told);
}

void BoundWindow::TakeFocus() {
    const ControlEntry* kept = form_->Focused == nullptr ? nullptr : form_->Find(*form_->Focused);
    const ControlView* view = kept == nullptr || kept->IsExit ? nullptr : ViewOf(*kept);
    QWidget* place = view == nullptr ? nullptr : view->Widget();
    if (place != nullptr && IsUsable(*place, *window_)) return place->setFocus(Qt::OtherFocusReason);
    place = FirstInput();
    FocusOn(place == nullptr ? DefaultButtonOf(*window_) : place);
}

QWidget* BoundWindow::FirstInput() const {
    for (QWidget* widget = window_->nextInFocusChain(); widget != window_.get(); widget = widget->nextInFocusChain()) {
        const bool takesIt = (widget->focusPolicy() & Qt::TabFocus) != 0 && IsUsable(*widget, *window_);
        if (takesIt && IsInput(*widget) && EntryOf(widget) != nullptr) return widget;
    }
    return nullptr;
}

void BoundWindow::FocusOn(QWidget* place) {
    const ControlEntry* entry = place == nullptr ? nullptr : EntryOf(place);
    form_->Focused = entry == nullptr ? nullptr : &entry->Shared();
    (place == nullptr ? window_.get() : place)->setFocus(Qt::OtherFocusReason);
}

bool BoundWindow::Reach(const ControlEntry& control) {
    if (form_->Focused == &control.Shared()) return true;
    if (isReaching_) return false;
    isReaching_ = true;
    events_->EventBegins();
    const bool moved = MoveFocus(*form_, &control);
    if (moved)
        note_.Clear();
    else
        KeepFocus(control);
    isReaching_ = false;
    events_->EventEnds();
    return moved;
}

/// A check keeps the user where they were, and says why.
void BoundWindow::KeepFocus(const ControlEntry& wanted) {
    if (const ControlView* view = ViewOf(wanted))
        if (auto* button = qobject_cast<QAbstractButton*>(view->Widget())) button->setDown(false);
    const ControlEntry* kept = form_->Focused == nullptr ? nullptr : form_->Find(*form_->Focused);
    if (kept != nullptr) PutFocus(*kept, true);
}

template <class Function>
void BoundWindow::InEvent(Function function) {
    note_.Clear();
    events_->EventBegins();
    function();
    events_->EventEnds();
}

void BoundWindow::Happened(const ControlEntry& control, Event event) {
    if (isReaching_) return;
    InEvent([&] { RunEvent(*form_, control, event); });
}

void BoundWindow::Typed(const ControlEntry& control) {
    Reach(control);
    note_.Clear();
}

ControlEntry* BoundWindow::EntryOf(const QObject* widget) const {
    for (const QObject* at = widget; at != nullptr && at != window_.get(); at = at->parent())
        for (std::size_t i = 0; i < views_.size(); ++i)
            if (views_[i] && views_[i]->Widget() == at) return &form_->Controls[i];
    return nullptr;
}

ControlView* BoundWindow::ViewOf(const ControlEntry& control) const {
    for (std::size_t i = 0; i < views_.size(); ++i)
        if (&form_->Controls[i] == &control) return views_[i].get();
    return nullptr;
}

bool BoundWindow::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Close:
            if (watched != window_.get()) return false;
            event->ignore();
            Leave();
            return true;
        case QEvent::FocusIn:
            if (const ControlEntry* entry = EntryOf(watched); entry != nullptr && IsMoveOfFocus(*event))
                // Not in the middle of the toolkit's own work: the check behind it may show a message.
                QTimer::singleShot(0, this, [this, entry] { FocusArrived(*entry); });
            return false;
        case QEvent::Resize:
            if (const ControlEntry* entry = EntryOf(watched); entry != nullptr)
                if (std::holds_alternative<Image*>(entry->Where)) ViewOf(*entry)->Bring();
            return false;
        case QEvent::MouseButtonRelease: return ClickedByName(watched, static_cast<const QMouseEvent&>(*event));
        case QEvent::KeyPress: return KeyPressed(watched, static_cast<QKeyEvent*>(event)->key());
        default: return false;
    }
}

/// The name beside a button or an option stands for it.
bool BoundWindow::ClickedByName(QObject* watched, const QMouseEvent& release) {
    const auto* name = qobject_cast<const QLabel*>(watched);
    auto* button = name == nullptr ? nullptr : qobject_cast<QAbstractButton*>(name->buddy());
    const bool clicked = button != nullptr && button->isEnabled() && release.button() == Qt::LeftButton &&
                         name->rect().contains(release.position().toPoint());
    if (clicked) button->click();
    return clicked;
}

void BoundWindow::FocusArrived(const ControlEntry& control) {
    const QWidget* at = window_->focusWidget();
    if (window_->isVisible() && at != nullptr && EntryOf(at) == &control) Reach(control);
}

bool BoundWindow::KeyPressed(QObject* watched, int key) {
    QWidget* const at = qobject_cast<QWidget*>(watched);
    if (at == nullptr) return false;
    const bool isPanel = !window_->isWindow();
    // What a panel inside has left over comes to its window.
    if (key == Qt::Key_Escape && !isPanel && (at->hasFocus() || at == window_.get())) return EscapePressed(), true;
    if (!at->hasFocus()) return false;
    switch (key) {
        case Qt::Key_F1: ShowManual(window_->window(), window_->window()->property("help").toString()); return true;
        case Qt::Key_Return:
        case Qt::Key_Enter: return EnterPressed(at);
        case Qt::Key_Delete: return DeletePressed(at);
        default: return false;
    }
}

bool BoundWindow::EnterPressed(QWidget* at) {
    const ControlEntry* entry = EntryOf(at);
    if (TakesEnterItself(at, entry)) return false;
    if (entry != nullptr) {
        if (!Reach(*entry)) return true;
        bool hasMeaning = false;
        InEvent([&] { hasMeaning = PressEnter(*form_, *entry); });
        if (hasMeaning) return true;
    }
    if (auto* button = qobject_cast<QPushButton*>(at)) return button->click(), true;
    if (QPushButton* button = DefaultButtonOf(*window_)) return button->click(), true;
    return false;
}

bool BoundWindow::DeletePressed(QWidget* at) {
    const ControlEntry* entry = EntryOf(at);
    if (entry == nullptr || !entry->Events.contains(Event::DeleteKey)) return false;
    if (Reach(*entry)) Happened(*entry, Event::DeleteKey);
    return true;
}

void BoundWindow::EscapePressed() {
    InEvent([this] { PressEscape(*form_); });
}

/// By the window's frame.
void BoundWindow::Leave() {
    InEvent([this] { CloseForm(*form_); });
}

}  // namespace veraqua
