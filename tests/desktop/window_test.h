#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/files/files.h"
#include "core/state.h"
#include "desktop/qt_screen.h"
#include "desktop/text.h"
#include "desktop/views/control_view.h"
#include "screen/forms.h"
#include "tests/support/data_directory.h"

namespace veraqua {

/// The program with real windows, before a user whose data home is a directory of the test. They answer messages,
/// and do on the windows that are shown to them alone what was said beforehand.
struct WindowTest : testing::Test {
    static constexpr JulianValue Today = JulianFromDate(7, 15, 2025);

    TestDirectory Directory;
    QtScreen Screen;

    std::vector<std::string> Said;                        ///< "title: text" of each message
    std::vector<QMessageBox::StandardButton> Answers;     ///< to the next messages; then what Enter presses
    std::map<FormName, std::function<void()>> WhenShown;  ///< once, when the window is modal

    WindowTest() {
        setenv("XDG_DATA_HOME", (Directory.Path() + "home").c_str(), 1);
        files::Close();
        Screen.SetNow(Today);
        hand_.setInterval(1);
        QObject::connect(&hand_, &QTimer::timeout, &hand_, [this] { Attend(); });
        hand_.start();
    }
    ~WindowTest() override {
        for (FormTable* form : AllForms()) form->Loaded = form->Shown = false;
        files::Close();
        unsetenv("XDG_DATA_HOME");
    }
    WindowTest(const WindowTest&) = delete;
    WindowTest& operator=(const WindowTest&) = delete;

    /// The program's start, where the user wants the sample fields.
    void StartWithSample() {
        WhenShown[FormName::frmPath] = [this] { Click(FormName::frmPath, "cmd_Sample"); };
        Show(FormName::frmVeraqua);
    }

    QWidget& Window(FormName form) { return Screen.WindowOf(FormOf(form)).Window(); }

    template <class W = QWidget>
    W& The(FormName form, const char* name) {
        W* widget = Window(form).findChild<W*>(name);
        if (widget == nullptr) throw std::logic_error(std::string("There is no ") + name);
        return *widget;
    }

    void Click(FormName form, const char* button) {
        QTest::mouseClick(&The(form, button), Qt::LeftButton);
        Settle();
    }

    void Choose(FormName form, const char* menuEntry) {
        The<QAction>(form, menuEntry).trigger();
        Settle();
    }

    void Type(FormName form, const char* box, const char* text) {
        auto& line = The<QLineEdit>(form, box);
        QTest::mouseClick(&line, Qt::LeftButton);
        Settle();
        line.selectAll();
        QTest::keyClicks(&line, text);
        Settle();
    }

    void Pick(FormName form, const char* list, int row) {
        auto& combo = The<QComboBox>(form, list);
        combo.setCurrentIndex(row);
        Q_EMIT combo.activated(row);
        Settle();
    }

    void Press(FormName form, const char* widget, Qt::Key key) {
        The(form, widget).setFocus();
        Settle();
        QTest::keyClick(&The(form, widget), key);
        Settle();
    }

    bool IsUp(FormName form) { return Window(form).isVisible(); }

    std::string LastSaid() const { return Said.empty() ? "" : Said.back(); }

    /// Lets all that is due happen, and looks whether the windows show what the forms say.
    void Settle() {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        Look();
    }

    /// The colour that is on the screen near the upper left corner of `place` in `widget`.
    static QColor ColourIn(QWidget& widget, const QRect& place) {
        return widget.grab().toImage().pixelColor(place.topLeft() + QPoint(1, 1));
    }

  private:
    /// Which windows are there, and which of their controls can be seen and used, in which colours.
    void Look() {
        std::set<std::string> up;
        for (const QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && window->objectName().startsWith("frm")) up.insert(FromQt(window->objectName()));
        std::set<std::string> shown;
        for (FormTable* form : AllForms()) {
            if (!form->Shown) continue;
            shown.emplace(form->Text);
            for (const ControlEntry& entry : form->Controls) LookAt(Window(form->Name), entry);
        }
        EXPECT_EQ(up, shown);
    }

    static void LookAt(QWidget& window, const ControlEntry& entry) {
        const Control& control = entry.Shared();
        const QString name = WidgetName(entry.Name);
        const QString place = window.objectName() + '.' + name;
        if (std::holds_alternative<MenuItem*>(entry.Where)) {
            const auto* menu = window.findChild<QMenu*>(name);
            const auto* action = menu != nullptr ? menu->menuAction() : window.findChild<QAction*>(name);
            EXPECT_EQ(action->isVisible(), control.Visible) << FromQt(place);
            EXPECT_EQ(action->isEnabled(), control.Enabled) << FromQt(place);
        } else if (auto* widget = window.findChild<QWidget*>(name)) {
            EXPECT_EQ(widget->isVisibleTo(&window), control.Visible) << FromQt(place);
            EXPECT_EQ(widget->isEnabledTo(widget->parentWidget()), control.Enabled) << FromQt(place);
            if (!widget->isVisible()) return;
            const bool named =
                !QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).trimmed().isEmpty();
            EXPECT_TRUE(named || (widget->focusPolicy() & Qt::TabFocus) == 0) << FromQt(place) << " has no name";
            if (!control.Background) return;
            const Colour& colour = *control.Background;
            EXPECT_EQ(ColourIn(*widget, widget->rect()).rgb(), qRgb(colour.Red, colour.Green, colour.Blue))
                << FromQt(place);
        }
    }

    /// The user looks at what stands before all else.
    void Attend() {
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* box = qobject_cast<QMessageBox*>(modal)) return Answer(*box);
        for (const auto& [form, doing] : WhenShown) {
            if (modal != &Window(form)) continue;
            const std::function<void()> now = doing;
            WhenShown.erase(form);
            // Later: a timer isn't heard again while it is being answered.
            return QTimer::singleShot(0, now);
        }
    }

    void Answer(QMessageBox& box) {
        Said.push_back(FromQt(box.windowTitle() + ": " + box.text()));
        if (Answers.empty()) return QTest::keyClick(&box, Qt::Key_Return);
        QAbstractButton* button = box.button(Answers.front());
        Answers.erase(Answers.begin());
        button->click();
    }

    QTimer hand_;
};

}  // namespace veraqua
