#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/files/files.h"
#include "core/state.h"
#include "desktop/qt_screen.h"
#include "desktop/text.h"
#include "screen/forms.h"
#include "tests/support/data_directory.h"

namespace veraqua {

/// The program with real windows, before a user whose data home is a directory of the test. He answers messages, and
/// does on the windows that are shown to him alone what was said beforehand.
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

    /// Lets all that is due happen.
    static void Settle() {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

  private:
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
        QAbstractButton* button = box.defaultButton();
        if (!Answers.empty()) {
            button = box.button(Answers.front());
            Answers.erase(Answers.begin());
        }
        if (button != nullptr) button->click();
    }

    QTimer hand_;
};

}  // namespace veraqua
