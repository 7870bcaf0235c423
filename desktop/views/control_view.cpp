#include "desktop/views/control_view.h"

#include "desktop/text.h"
#include "desktop/views/widget_view.h"
#include "screen/overloaded.h"

namespace veraqua {

namespace {

/// A label whose caption heads a column of a listing, which fetches it.
class HeadingView : public ControlView {
  public:
    void Bring() override {}
};

bool IsHeadingOfListing(const QString& name, const QWidget& window) {
    for (const QWidget* widget : window.findChildren<QWidget*>())
        for (const QString& heading : widget->property("headings").toString().split(' ', Qt::SkipEmptyParts))
            if (heading.split('+').contains(name)) return true;
    return false;
}

std::unique_ptr<ControlView> LabelOrHeading(ControlEntry& entry, Label& label, QWidget* widget, QWidget& window,
                                            ControlEvents& events) {
    if (widget == nullptr && IsHeadingOfListing(WidgetName(entry.Name), window)) return std::make_unique<HeadingView>();
    return MakeDisplay(entry, label, widget, events);
}

}  // namespace

QString WidgetName(const std::string& controlName) { return ToQt(controlName).replace('(', '_').remove(')'); }

std::unique_ptr<ControlView> MakeView(ControlEntry& control, QWidget& window, FormTable& form, ControlEvents& events) {
    const QString name = WidgetName(control.Name);
    QWidget* const widget = window.findChild<QWidget*>(name);
    return std::visit(
        Overloaded{
            [&](Label* label) { return LabelOrHeading(control, *label, widget, window, events); },
            [&](TextBox* box) {
                const bool isListing = widget != nullptr && widget->property("headings").isValid();
                return isListing ? MakeListing(control, *box, widget, form, events)
                                 : MakeInput(control, *box, widget, events);
            },
            [&](OptionButton* option) { return MakeOption(control, *option, widget, form, events); },
            [&](MenuItem* item) { return MakeMenuEntry(control, *item, window.findChild<QObject*>(name), events); },
            [&](Button* button) { return MakeInput(control, *button, widget, events); },
            [&](CheckBox* box) { return MakeInput(control, *box, widget, events); },
            [&](ComboBox* box) { return MakeInput(control, *box, widget, events); },
            [&](ListBox* list) { return MakeInput(control, *list, widget, events); },
            [&](Calendar* calendar) { return MakeInput(control, *calendar, widget, events); },
            [&](DirectoryBox* box) { return MakeInput(control, *box, widget, events); },
            [&](Table* table) { return MakeTable(control, *table, widget, events); },
            [&](auto* shown) { return MakeDisplay(control, *shown, widget, events); }},
        control.Where);
}

}  // namespace veraqua
