#include "desktop/app.h"

#include <fontconfig/fontconfig.h>

#include <QIcon>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <thread>

#include "desktop/qt_screen.h"
#include "desktop/theme.h"
#include "reports/forms/forms.h"
#include "screen/forms.h"
#include "shell/forms/forms.h"
#include "shell/forms/main_menu.h"
#include "weather/forms/forms.h"
#include "workbench/forms/forms.h"

/// What the linker would leave out of a library; by the toolkit's rule outside of all namespaces.
static void TakeResources() {
    Q_INIT_RESOURCE(pictures);
    Q_INIT_RESOURCE(manual);
}

namespace veraqua {

namespace {

std::thread& FontReader() {
    static std::thread reader;
    return reader;
}

}  // namespace

void ReadFontsAhead() {
    FontReader() = std::thread([] { FcInit(); });
}

void PrepareApplication(QApplication& app) {
    TakeResources();
    // Whoever asks for fonts before they are there would read them all once more.
    if (FontReader().joinable()) FontReader().join();
    QApplication::setOrganizationName("veraqua");
    QApplication::setApplicationName("veraqua");
    QApplication::setApplicationDisplayName({});  // the windows have titles of their own
    QGuiApplication::setDesktopFileName("veraqua");
    QApplication::setWindowIcon(QIcon(":/pictures/veraqua.svg"));
    QApplication::setQuitOnLastWindowClosed(false);  // a form that hides another one is no end
    ApplyTheme(app, ThemeOfDesktop());
    AddWorkbenchForms();
    AddReportForms();
    AddWeatherForms();
    AddShellForms();
}

int RunDesktop(QApplication&, const StartOptions& options) {
    QtScreen screen;
    StartIn(options.DataDirectory);
    try {
        Show(FormName::frmVeraqua);
    } catch (const RunTimeFailure& failure) {
        screen.Failed(failure);
        return EXIT_FAILURE;
    }
    QTimer minute;
    QObject::connect(&minute, &QTimer::timeout, &minute, [&screen] { screen.PassMinute(); });
    minute.start(std::chrono::minutes(1));
    return QApplication::exec();
}

}  // namespace veraqua
