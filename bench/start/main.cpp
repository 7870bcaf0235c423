/// veraqua-start-bench [ROUNDS]: the time from a program's begin to a window that has been drawn and waits for the
/// user, once for the main menu on the sample season and once for an empty window, by turns; the medians and their
/// ratio.

#include <unistd.h>

#include <QApplication>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "core/files/files.h"
#include "desktop/app.h"
#include "desktop/qt_screen.h"
#include "desktop/text.h"
#include "screen/forms.h"
#include "shell/first_start.h"

namespace {

using namespace veraqua;

/// Ends this program once all that is due has been drawn.
void EndWhenIdle() {
    QTimer::singleShot(0, [] {
        QApplication::processEvents();
        std::_Exit(EXIT_SUCCESS);
    });
}

int StartEmpty() {
    QMainWindow window;
    window.resize(1240, 680);
    window.show();
    EndWhenIdle();
    return QApplication::exec();
}

int StartMainMenu(QApplication& app) {
    PrepareApplication(app);
    QtScreen screen;
    Show(FormName::frmVeraqua);
    EndWhenIdle();
    return QApplication::exec();
}

double MillisecondsOf(const QString& what) {
    const auto begin = std::chrono::steady_clock::now();
    QProcess::execute(QCoreApplication::applicationFilePath(), {what});
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

double Median(std::vector<double> times) {
    std::ranges::sort(times);
    return times[times.size() / 2];
}

void MakeSample(const std::string& home) {
    std::filesystem::create_directories(home + "/veraqua");
    PrepareApplication(*qApp);
    QtScreen screen;
    files::Open(home + "/veraqua", files::Access::Write);
    MakeDataDirectory(screen, true);
    files::Close();
}

int Measure(int rounds) {
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    MakeSample(FromQt(home.path()));
    std::vector<double> empty;
    std::vector<double> mainMenu;
    for (int round = 0; round < rounds; ++round) {
        empty.push_back(MillisecondsOf("empty"));
        mainMenu.push_back(MillisecondsOf("main-menu"));
    }
    fmt::print("empty window {:.1f} ms, main menu {:.1f} ms, ratio {:.2f} (medians of {})\n", Median(empty),
               Median(mainMenu), Median(mainMenu) / Median(empty), rounds);
    return EXIT_SUCCESS;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const std::string what = argumentCount > 1 ? arguments[1] : "30";
    if (what == "main-menu") ReadFontsAhead();
    QApplication app(argumentCount, arguments);
    if (what == "empty") return StartEmpty();
    if (what == "main-menu") return StartMainMenu(app);
    return Measure(std::max(1, std::atoi(what.c_str())));
}
