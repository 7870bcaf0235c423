#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QCalendarWidget>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <map>
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
        form->Reset();
        BoundWindow& bound = Screen.WindowOf(*form);
        bound.Bring();
        const std::set<QString> names = ControlNames(*form);
        std::set<const QWidget*> namedInUse;  // by labels that the form fills: the stories look at those
        for (const QLabel* label : bound.Window().findChildren<QLabel*>())
            if (label->text().isEmpty() && label->buddy() != nullptr) namedInUse.insert(label->buddy());
        for (QWidget* widget : bound.Window().findChildren<QWidget*>()) {
            const auto* label = qobject_cast<const QLabel*>(widget);
            EXPECT_TRUE(label == nullptr || !IsNamedByUs(*widget) || label->buddy() != nullptr ||
                        label->property("standsAlone").toBool() || label->property("picture").isValid())
                << form->Text << "." << FromQt(widget->objectName()) << " names nothing";
            if (!IsInput(*widget) || !names.contains(widget->objectName())) continue;
            const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
            EXPECT_TRUE(!interface->text(QAccessible::Name).trimmed().isEmpty() || namedInUse.contains(widget))
                << form->Text << "." << FromQt(widget->objectName()) << " has no accessible name";
        }
    }
}

/// Every input of a form is reached by Tab. What leaves a form, or one of the cards of its entries, comes behind all
/// that can be entered there, and is not a key away from a deletion.
TEST_F(DesignsTest, LeadByTabThroughAllInputsToTheExit) {
    for (FormTable* form : AllForms()) {
        const QWidget& window = Screen.WindowOf(*form).Window();
        std::vector<QString> chain;
        for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain())
            chain.push_back(at->objectName());
        std::map<const QWidget*, std::size_t> inputs;
        std::map<const QWidget*, std::size_t> exits;
        for (const ControlEntry& entry : form->Controls) {
            const auto* widget = window.findChild<QWidget*>(WidgetName(entry.Name));
            if (widget == nullptr || !IsInput(*widget) || (widget->focusPolicy() & Qt::TabFocus) == 0) continue;
            const auto place = static_cast<std::size_t>(
                std::distance(chain.begin(), std::find(chain.begin(), chain.end(), widget->objectName())));
            EXPECT_LT(place, chain.size()) << form->Text << "." << entry.Name;
            if (entry.IsExit) exits[widget] = place;
            if (std::holds_alternative<TextBox*>(entry.Where) || std::holds_alternative<ComboBox*>(entry.Where))
                inputs[widget] = place;
            const auto* button = qobject_cast<const QPushButton*>(widget);
            EXPECT_FALSE(button != nullptr && button->isDefault() && button->objectName().contains("Delete"));
        }
        for (const auto& [exit, place] : exits)
            for (const auto& [input, before] : inputs)
                EXPECT_TRUE(before < place || !exit->parentWidget()->isAncestorOf(input))
                    << form->Text << "." << FromQt(exit->objectName()) << " before " << FromQt(input->objectName());
    }
}

}  // namespace
}  // namespace veraqua
