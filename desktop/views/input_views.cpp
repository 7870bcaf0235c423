#include <QAbstractButton>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QScrollBar>
#include <functional>

#include "desktop/days.h"
#include "desktop/text.h"
#include "desktop/views/date_popup.h"
#include "desktop/views/widget_view.h"
#include "screen/forms.h"

namespace veraqua {

namespace {

/// Characters that the data files can hold.
QValidator* Latin1Only(QObject* owner) {
    return new QRegularExpressionValidator(QRegularExpression("[\\x{0000}-\\x{00FF}]*"), owner);
}

class LineView : public WidgetView<TextBox, QLineEdit> {
  public:
    LineView(ControlEntry& entry, TextBox& box, QLineEdit& line, ControlEvents& events)
        : WidgetView(entry, box, line, events) {
        line.setValidator(Latin1Only(&line));
        QObject::connect(&line, &QLineEdit::textEdited, &line, [this](const QString& text) {
            Record().Text = FromQt(text);
            Record().Typed = true;
            Typed();
        });
    }

  private:
    void BringOwn() override {
        Shown().setReadOnly(Record().ReadOnly);
        Shown().setFocusPolicy(Record().ReadOnly ? Qt::ClickFocus : Qt::StrongFocus);
        if (Record().Longest > 0) Shown().setMaxLength(static_cast<int>(Record().Longest));
        const QString text = ToQt(Record().Text);
        if (Shown().text() != text) {
            Shown().setText(text);
            Shown().setCursorPosition(Record().ReadOnly ? 0 : static_cast<int>(text.size()));
        }
    }
};

class PageView : public WidgetView<TextBox, QPlainTextEdit> {
  public:
    PageView(ControlEntry& entry, TextBox& box, QPlainTextEdit& page, ControlEvents& events)
        : WidgetView(entry, box, page, events) {
        page.setTabChangesFocus(true);
        QObject::connect(&page, &QPlainTextEdit::textChanged, &page, [this] {
            if (IsBringing()) return;
            Record().Text = FromQt(Shown().toPlainText());
            Record().Typed = true;
            Typed();
        });
    }

  private:
    void BringOwn() override {
        Shown().setReadOnly(Record().ReadOnly);
        const QString text = ToQt(Record().Text);
        if (Shown().toPlainText() != text) Shown().setPlainText(text);
    }
};

class ButtonView : public WidgetView<Button, QAbstractButton> {
  public:
    ButtonView(ControlEntry& entry, Button& button, QAbstractButton& shown, ControlEvents& events)
        : WidgetView(entry, button, shown, events), designed_(shown.text()) {
        QObject::connect(&shown, &QAbstractButton::clicked, &shown, [this] { Clicked(); });
    }

  private:
    void BringOwn() override {
        if (!Record().Caption.empty()) Shown().setText(CaptionWithMnemonic(Record().Caption, designed_));
    }

    QString designed_;
};

class OptionView : public WidgetView<OptionButton, QRadioButton> {
  public:
    OptionView(ControlEntry& entry, OptionButton& option, QRadioButton& shown, ControlEvents& events, FormTable& form)
        : WidgetView(entry, option, shown, events), designed_(shown.text()) {
        QObject::connect(&shown, &QAbstractButton::clicked, &shown,
                         [this, &form] { Picked([this, &form] { Choose(form, Record()); }); });
    }

  private:
    void BringOwn() override {
        Shown().setText(CaptionWithMnemonic(Record().Caption, designed_));
        // An exclusive button can't be released but by another; the record can leave all of them out.
        Shown().setAutoExclusive(false);
        Shown().setChecked(Record().Chosen);
        Shown().setAutoExclusive(true);
    }

    QString designed_;
};

class CheckView : public WidgetView<CheckBox, QCheckBox> {
  public:
    CheckView(ControlEntry& entry, CheckBox& box, QCheckBox& shown, ControlEvents& events)
        : WidgetView(entry, box, shown, events), designed_(shown.text()) {
        QObject::connect(&shown, &QAbstractButton::clicked, &shown,
                         [this](bool checked) { Picked([this, checked] { Record().Checked = checked; }); });
    }

  private:
    void BringOwn() override {
        Shown().setText(CaptionWithMnemonic(Record().Caption, designed_));
        Shown().setChecked(Record().Checked);
    }

    QString designed_;
};

/// Whether a list shows the rows of its record: `count` of them, each with its `text`.
bool SameRows(const ItemList& record, int count, const std::function<QString(int)>& text) {
    if (static_cast<int>(record.Items.size()) != count) return false;
    for (int i = 0; i < count; ++i)
        if (text(i) != ToQt(record.Items[static_cast<std::size_t>(i)].Text)) return false;
    return true;
}

/// Tells a row that the keys or the wheel have come to in a closed list from one that is picked: to the toolkit both
/// are the same. Without the focus the wheel has no meaning there.
class RowMoves : public QObject {
  public:
    explicit RowMoves(QComboBox& box) : QObject(&box), box_(&box) { box.installEventFilter(this); }

    bool IsMoving() const { return isMoving_; }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        const bool isWheel = event->type() == QEvent::Wheel;
        if (!isWheel && event->type() != QEvent::KeyPress) return false;
        isMoving_ = true;
        if (!isWheel || box_->hasFocus())
            static_cast<QObject*>(box_)->event(event);
        else
            event->ignore();  // it is for what the list stands in
        isMoving_ = false;
        return true;
    }

  private:
    QComboBox* box_;
    bool isMoving_ = false;
};

class ComboView : public WidgetView<ComboBox, QComboBox> {
  public:
    ComboView(ControlEntry& entry, ComboBox& box, QComboBox& shown, ControlEvents& events)
        : WidgetView(entry, box, shown, events), moves_(new RowMoves(shown)) {
        shown.setInsertPolicy(QComboBox::NoInsert);
        shown.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        QObject::connect(&shown, &QComboBox::activated, &shown, [this](int index) { TakeRow(index); });
        shown.setEditable(box.Editable);
        if (shown.lineEdit() == nullptr) return;
        shown.lineEdit()->setValidator(Latin1Only(shown.lineEdit()));
        QObject::connect(shown.lineEdit(), &QLineEdit::textEdited, &shown, [this](const QString& text) {
            Record().Type(FromQt(text));
            Typed(Event::Move);
        });
        // The toolkit completes behind what was typed.
        QObject::connect(shown.lineEdit(), &QLineEdit::textChanged, &shown, [this](const QString& text) {
            if (!IsBringing() && Record().Typed) Record().Type(FromQt(text));
        });
    }

  private:
    void TakeRow(int index) {
        const bool isTyped = Record().Typed && ToQt(Record().Text) == Shown().itemText(index);
        if (isTyped) return;  // the toolkit has found the row, which is taken when the list is left
        if (moves_->IsMoving())
            Picked([this, index] { Record().MoveTo(index); }, Event::Move);
        else
            Picked([this, index] { Record().Select(index); });
    }

    void BringOwn() override {
        if (!SameRows(Record(), Shown().count(), [this](int row) { return Shown().itemText(row); })) {
            Shown().clear();
            for (const ListItem& item : Record().Items) Shown().addItem(ToQt(item.Text));
        }
        QLineEdit* const line = Shown().lineEdit();
        const int cursor = line == nullptr ? 0 : line->cursorPosition();
        Shown().setCurrentIndex(Record().Index);
        if (line == nullptr || line->text() == ToQt(Record().Text)) return;
        line->setText(ToQt(Record().Text));
        line->setCursorPosition(cursor);
    }

    RowMoves* moves_;
};

class ListView : public WidgetView<ListBox, QListWidget> {
  public:
    ListView(ControlEntry& entry, ListBox& list, QListWidget& shown, ControlEvents& events)
        : WidgetView(entry, list, shown, events) {
        // By the keyboard the focus alone makes a row the current one, but doesn't select it.
        QObject::connect(&shown, &QListWidget::itemSelectionChanged, &shown,
                         [this] { Picked([this] { Record().Index = RowSelected(); }, Event::Move); });
        if (shown.property("newestLast").toBool())
            QObject::connect(shown.verticalScrollBar(), &QScrollBar::rangeChanged, &shown,
                             &QListWidget::scrollToBottom);
        QObject::connect(&shown, &QListWidget::itemClicked, &shown, [this] { PickCurrent(); });
        // By the keyboard; the mouse has clicked already.
        QObject::connect(&shown, &QListWidget::itemActivated, &shown, [this] { PickCurrent(); });
    }

  private:
    int RowSelected() const { return Shown().selectedItems().isEmpty() ? -1 : Shown().currentRow(); }

    void PickCurrent() {
        Picked([this] { Record().Index = Shown().currentRow(); });
    }

    void BringOwn() override {
        if (!SameRows(Record(), Shown().count(), [this](int row) { return Shown().item(row)->text(); })) {
            Shown().clear();
            for (const ListItem& item : Record().Items) Shown().addItem(ToQt(item.Text));
        }
        if (RowSelected() == Record().Index) return;
        Shown().clearSelection();
        if (Record().Index >= 0) Shown().setCurrentRow(Record().Index);
    }
};

class CalendarView : public WidgetView<Calendar, QCalendarWidget> {
  public:
    CalendarView(ControlEntry& entry, Calendar& calendar, QCalendarWidget& shown, ControlEvents& events)
        : WidgetView(entry, calendar, shown, events) {
        MakePlain(shown);
        const auto pick = [this](const QDate& day) { Picked([this, day] { Record().Day = DayOf(day); }); };
        QObject::connect(&shown, &QCalendarWidget::clicked, &shown, pick);
        QObject::connect(&shown, &QCalendarWidget::activated, &shown, pick);
    }

  private:
    void BringOwn() override {
        if (Record().Day != 0) Shown().setSelectedDate(DateOf(Record().Day));
    }
};

}  // namespace

std::unique_ptr<ControlView> MakeInput(ControlEntry& entry, TextBox& box, QWidget* widget, ControlEvents& events) {
    auto line = ViewOn<LineView, QLineEdit>(entry, box, widget, events);
    return line ? std::move(line) : ViewOn<PageView, QPlainTextEdit>(entry, box, widget, events);
}

std::unique_ptr<ControlView> MakeInput(ControlEntry& entry, Button& button, QWidget* widget, ControlEvents& events) {
    return ViewOn<ButtonView, QAbstractButton>(entry, button, widget, events);
}

std::unique_ptr<ControlView> MakeInput(ControlEntry& entry, CheckBox& box, QWidget* widget, ControlEvents& events) {
    return ViewOn<CheckView, QCheckBox>(entry, box, widget, events);
}

std::unique_ptr<ControlView> MakeInput(ControlEntry& entry, ComboBox& box, QWidget* widget, ControlEvents& events) {
    return ViewOn<ComboView, QComboBox>(entry, box, widget, events);
}

std::unique_ptr<ControlView> MakeInput(ControlEntry& entry, ListBox& list, QWidget* widget, ControlEvents& events) {
    return ViewOn<ListView, QListWidget>(entry, list, widget, events);
}

std::unique_ptr<ControlView> MakeInput(ControlEntry& entry, Calendar& calendar, QWidget* widget,
                                       ControlEvents& events) {
    return ViewOn<CalendarView, QCalendarWidget>(entry, calendar, widget, events);
}

std::unique_ptr<ControlView> MakeOption(ControlEntry& entry, OptionButton& option, QWidget* widget, FormTable& form,
                                        ControlEvents& events) {
    return ViewOn<OptionView, QRadioButton>(entry, option, widget, events, form);
}

}  // namespace veraqua
