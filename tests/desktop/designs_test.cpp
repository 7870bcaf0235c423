#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QCalendarWidget>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <set>

#include "desktop/manual/manual_window.h"
#include "desktop/views/control_view.h"
#include "reports/forms/graphs.h"
#include "tests/desktop/window_test.h"

/// What every design must keep, whatever the form does.
namespace veraqua {
namespace {

struct DesignsTest : WindowTest {
    frmFieldGraph PanelRecord;
    FormTable Panel = TableOf(PanelRecord);

    std::vector<FormTable*> Forms() {
        std::vector<FormTable*> forms = AllForms();
        forms.push_back(&Panel);
        return forms;
    }
};

bool IsInput(const QWidget& widget) {
    return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
           qobject_cast<const QCalendarWidget*>(&widget) != nullptr;
}

/// What the designer has named, not what the toolkit has put into its widgets.
bool IsNamedByUs(const QWidget& widget) {
    const QString name = widget.objectName();
    return !name.isEmpty() && !name.startsWith("qt_") && !name.startsWith("deco") && name != "centralwidget";
}

std::set<QString> ControlNames(const FormTable& form) {
    std::set<QString> names;
    for (const ControlEntry& entry : form.Controls) names.insert(WidgetName(entry.Name));
    return names;
}

TEST_F(DesignsTest, HaveTheControlsOfTheirForms) {
    for (FormTable* form : Forms()) {
        const BoundWindow& bound = Screen.WindowOf(*form);
        EXPECT_EQ(bound.Lacking(), std::vector<std::string>{}) << form->Text;
        const std::set<QString> names = ControlNames(*form);
        for (const QWidget* widget : bound.Window().findChildren<QWidget*>()) {
            const bool isControl = IsInput(*widget) || qobject_cast<const QLabel*>(widget) != nullptr;
            const bool isOfUs = widget->parentWidget()->property("headings").isNull() && IsNamedByUs(*widget);
            const bool isOfCalendar = qobject_cast<QCalendarWidget*>(widget->parentWidget()->parentWidget()) != nullptr;
            EXPECT_TRUE(!isControl || !isOfUs || isOfCalendar || names.contains(widget->objectName()))
                << form->Text << " has no control " << FromQt(widget->objectName());
        }
        EXPECT_TRUE(ManualAnchors().contains(bound.Window().property("help").toString()) || form == &Panel)
            << form->Text << ": F1 leads nowhere";
    }
}

TEST_F(DesignsTest, NameTheirInputsForAllUsers) {
    for (FormTable* form : Forms()) {
        for (ControlEntry& entry : form->Controls)
            if (Label** label = std::get_if<Label*>(&entry.Where); label != nullptr && (*label)->Caption.empty())
                (*label)->Caption = "said when the form is in use";
        BoundWindow& bound = Screen.WindowOf(*form);
        bound.Bring();
        const std::set<QString> names = ControlNames(*form);
        for (QWidget* widget : bound.Window().findChildren<QWidget*>()) {
            const auto* label = qobject_cast<const QLabel*>(widget);
            EXPECT_TRUE(label == nullptr || !IsNamedByUs(*widget) || label->buddy() != nullptr ||
                        label->property("standsAlone").toBool() || label->property("picture").isValid())
                << form->Text << "." << FromQt(widget->objectName()) << " names nothing";
            if (!IsInput(*widget) || !names.contains(widget->objectName())) continue;
            const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
            EXPECT_FALSE(interface->text(QAccessible::Name).trimmed().isEmpty())
                << form->Text << "." << FromQt(widget->objectName()) << " has no accessible name";
        }
    }
}

/// Every input of a form is reached by Tab, and what leaves the form comes behind all that can be entered in it.
TEST_F(DesignsTest, LeadByTabThroughAllInputsToTheExit) {
    for (FormTable* form : AllForms()) {
        const QWidget& window = Screen.WindowOf(*form).Window();
        std::vector<QString> chain;
        for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain())
            chain.push_back(at->objectName());
        std::size_t lastInput = 0;
        std::size_t firstExit = chain.size();
        for (const ControlEntry& entry : form->Controls) {
            const auto* widget = window.findChild<QWidget*>(WidgetName(entry.Name));
            if (widget == nullptr || !IsInput(*widget) || (widget->focusPolicy() & Qt::TabFocus) == 0) continue;
            const auto place = static_cast<std::size_t>(
                std::distance(chain.begin(), std::find(chain.begin(), chain.end(), widget->objectName())));
            EXPECT_LT(place, chain.size()) << form->Text << "." << entry.Name;
            if (entry.IsExit) firstExit = std::min(firstExit, place);
            if (std::holds_alternative<TextBox*>(entry.Where) || std::holds_alternative<ComboBox*>(entry.Where))
                lastInput = std::max(lastInput, place);
        }
        EXPECT_TRUE(firstExit == chain.size() || lastInput < firstExit || form->Name == FormName::frmField)
            << form->Text;
    }
}

}  // namespace
}  // namespace veraqua
