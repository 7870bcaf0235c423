#include "desktop/binder.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMdiArea>
#include <QPlainTextEdit>
#include <QPushButton>
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

/// Enter means something of its own there.
bool TakesEnterItself(const QWidget* at) {
    const auto* page = qobject_cast<const QPlainTextEdit*>(at);
    return qobject_cast<const QAbstractItemView*>(at) != nullptr || (page != nullptr && !page->isReadOnly());
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
    for (QWidget* widget : window_->findChildren<QWidget*>()) widget->installEventFilter(this);
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
    window_->setWindowTitle(PlainCaption(form_->Record->Caption));
    ShowBackground(*window_, form_->Record->Background);
    HoldLayout(true);
    for (const auto& view : views_)
        if (view) view->Bring();
    BringContainers();
    HoldLayout(false);
    if (panels_) panels_->Bring(form_->Record->Children);
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

void BoundWindow::FocusFirst() {
    if (form_->Focused != nullptr || window_->focusWidget() != nullptr) return;
    for (QWidget* widget = window_->nextInFocusChain(); widget != window_.get(); widget = widget->nextInFocusChain()) {
        const bool takesIt = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isEnabled();
        if (!takesIt || !widget->isVisibleTo(window_.get()) || EntryOf(widget) == nullptr) continue;
        return widget->setFocus(Qt::OtherFocusReason);
    }
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

bool BoundWindow::IsLeaving() const {
    const ControlEntry* at = EntryOf(QApplication::focusWidget());
    return at != nullptr && at->IsExit;
}

/// A check keeps the user where they were, and says why.
void BoundWindow::KeepFocus(const ControlEntry& wanted) {
    if (const ControlView* view = ViewOf(wanted))
        if (auto* button = qobject_cast<QAbstractButton*>(view->Widget())) button->setDown(false);
    const ControlEntry* kept = form_->Focused == nullptr ? nullptr : form_->Find(*form_->Focused);
    if (kept != nullptr) PutFocus(*kept, true);
}

void BoundWindow::Happened(const ControlEntry& control, Event event) {
    if (isReaching_) return;
    note_.Clear();
    events_->EventBegins();
    RunEvent(*form_, control, event);
    events_->EventEnds();
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
    if (at == nullptr || !at->hasFocus()) return false;
    const bool isPanel = !window_->isWindow();
    switch (key) {
        case Qt::Key_F1: ShowManual(window_->window(), window_->window()->property("help").toString()); return true;
        case Qt::Key_Return:
        case Qt::Key_Enter: return EnterPressed(at);
        case Qt::Key_Escape:
            if (isPanel) return false;
            Leave();
            return true;
        default: return false;
    }
}

bool BoundWindow::EnterPressed(QWidget* at) {
    if (TakesEnterItself(at)) return false;
    const ControlEntry* entry = EntryOf(at);
    if (entry != nullptr && entry->Events.contains(Event::EnterKey)) {
        if (Reach(*entry)) Happened(*entry, Event::EnterKey);
        return true;
    }
    if (qobject_cast<QComboBox*>(at) != nullptr) return false;
    // What was typed into a list is taken by the first Enter.
    const auto* line = qobject_cast<QLineEdit*>(at);
    if (entry != nullptr && line != nullptr)
        if (ComboBox* const* list = std::get_if<ComboBox*>(&entry->Where))
            if (FromQt(line->text()) != (*list)->Text) return false;
    if (auto* button = qobject_cast<QPushButton*>(at)) return button->click(), true;
    if (QPushButton* button = DefaultButtonOf(*window_)) return button->click(), true;
    return false;
}

/// By the window's frame or Esc, unless the control in focus has a meaning of its own for Esc.
void BoundWindow::Leave() {
    const ControlEntry* entry = form_->Focused == nullptr ? nullptr : form_->Find(*form_->Focused);
    if (entry != nullptr && entry->Events.contains(Event::EscapeKey)) return Happened(*entry, Event::EscapeKey);
    events_->EventBegins();
    CloseForm(*form_);
    events_->EventEnds();
}

}  // namespace veraqua
