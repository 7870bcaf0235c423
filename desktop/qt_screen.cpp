#include "desktop/qt_screen.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QMessageBox>
#include <QSettings>
#include <QUrl>
#include <cstdlib>

#include "desktop/print/printing.h"
#include "desktop/text.h"
#include "desktop/window_place.h"
#include "screen/forms.h"
#include "weather/forms/station_chooser.h"

namespace veraqua {

namespace {

/// Work longer than this shows that it goes on.
constexpr int PatienceMs = 500;

QString KeptKey(const std::string& name) { return "kept/" + ToQt(name); }

QMessageBox::Icon IconOf(Icon icon) {
    switch (icon) {
        case Icon::Information: return QMessageBox::Information;
        case Icon::Question: return QMessageBox::Question;
        case Icon::Warning: return QMessageBox::Warning;
        case Icon::Stop: return QMessageBox::Critical;
        case Icon::None: break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton AnswerTo(std::string_view text, std::string_view title, Icon icon,
                                     QMessageBox::StandardButtons buttons, QMessageBox::StandardButton standard) {
    QWidget* const over = QApplication::activeWindow();
    QMessageBox box(IconOf(icon), ToQt(title), ToQt(text), buttons, over);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(standard);
    const int answer = box.exec();
    if (over != nullptr) over->activateWindow();
    return static_cast<QMessageBox::StandardButton>(answer);
}

}  // namespace

QtScreen::QtScreen() { InstallScreen(*this); }

QtScreen::~QtScreen() = default;

BoundWindow& QtScreen::WindowOf(FormTable& form) {
    std::unique_ptr<BoundWindow>& window = windows_[form.Name];
    if (!window) window = std::make_unique<BoundWindow>(form, *this);
    return *window;
}

void QtScreen::BringAll() {
    for (const auto& [name, window] : windows_)
        if (window->Table().Shown) window->Bring();
}

void QtScreen::PassMinute() {
    if (QApplication::activeModalWidget() != nullptr) return;
    EventBegins();
    MinutePassed();
    EventEnds();
}

void QtScreen::ShowWindow(FormTable& form, Qt::WindowModality modality) {
    BoundWindow& bound = WindowOf(form);
    QWidget& window = bound.Window();
    bound.Bring();
    if (window.isVisible() && window.windowModality() != modality) window.hide();
    if (!window.isVisible()) {
        window.setWindowModality(modality);
        PlaceWindow(window, ToQt(form.Text), QApplication::activeWindow());
        window.show();
    }
    window.raise();
    window.activateWindow();
    bound.TakeFocus();
}

void QtScreen::Present(FormTable& form) {
    BringAll();
    ShowWindow(form, Qt::NonModal);
}

void QtScreen::RunModal(FormTable& form) {
    BringAll();
    QEventLoop loop;
    const auto waiting = modalLoops_.emplace(form.Name, &loop);
    ShowWindow(form, Qt::ApplicationModal);
    if (form.Shown) loop.exec();
    modalLoops_.erase(waiting);
}

void QtScreen::Withdraw(FormTable& form) {
    const auto known = windows_.find(form.Name);
    if (known == windows_.end()) return;
    QWidget& window = known->second->Window();
    if (window.isVisible()) RememberWindow(window, ToQt(form.Text));
    window.hide();
    const auto [first, last] = modalLoops_.equal_range(form.Name);
    for (auto loop = first; loop != last; ++loop) loop->second->quit();
}

void QtScreen::PutFocus(FormTable& form, ControlEntry& control, bool selectText) {
    const auto known = windows_.find(form.Name);
    if (known == windows_.end()) return;
    known->second->Bring();
    known->second->PutFocus(control, selectText);
}

PrintOutcome QtScreen::PrintImage(FormTable& form) {
    BringAll();
    return PrintWindow(&WindowOf(form).Window(), PlainCaption(form.Record->Caption));
}

PrintOutcome QtScreen::Print(const PrintedDocument& document) {
    BringAll();
    return PrintDocumentOn(QApplication::activeWindow(), document);
}

void QtScreen::StartGet(const std::string& url, std::function<void(const HttpProgress&)> progress) {
    request_.Start(url, [this, progress = std::move(progress)](const HttpProgress& state) {
        EventBegins();
        progress(state);
        EventEnds();
    });
}

void QtScreen::CancelGet() { request_.Cancel(); }

std::vector<std::string> QtScreen::Kept(const std::string& name) const {
    std::vector<std::string> values;
    for (const QString& value : QSettings().value(KeptKey(name)).toStringList()) values.push_back(FromQt(value));
    return values;
}

void QtScreen::Keep(const std::string& name, const std::vector<std::string>& values) {
    QStringList texts;
    for (const std::string& value : values) texts.append(ToQt(value));
    QSettings settings;
    if (texts.isEmpty())
        settings.remove(KeptKey(name));
    else
        settings.setValue(KeptKey(name), texts);
}

bool QtScreen::OpenDocument(const std::string& path) {
    const QFileInfo file(ToQt(path));
    return file.exists() && QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
}

void QtScreen::Failed(const RunTimeFailure& failure) { Tell(failure.what(), ProgramTitle, Icon::Stop); }

void QtScreen::Tell(std::string_view text, std::string_view title, Icon icon) {
    told_ = ToQt(text);
    EndProgress();
    BringAll();
    AnswerTo(text, title, icon, QMessageBox::Ok, QMessageBox::Ok);
}

bool QtScreen::YesNo(std::string_view text, std::string_view title, Icon icon, bool noIsDefault) {
    EndProgress();
    BringAll();
    return AnswerTo(text, title, icon, QMessageBox::Yes | QMessageBox::No,
                    noIsDefault ? QMessageBox::No : QMessageBox::Yes) == QMessageBox::Yes;
}

void QtScreen::Progress(std::string_view what, std::size_t done, std::size_t total) {
    if (done >= total) return EndProgress();
    if (!working_.isValid()) working_.start();
    if (!progress_ && working_.elapsed() > PatienceMs) {
        progress_ = std::make_unique<QProgressDialog>(QApplication::activeWindow());
        progress_->setWindowTitle(ToQt(ProgramTitle));
        progress_->setWindowModality(Qt::ApplicationModal);
        progress_->setCancelButton(nullptr);  // a half-done walk over the fields helps nobody
        progress_->setMinimumDuration(0);
        progress_->setAutoReset(false);
    }
    if (!progress_) return;
    progress_->setLabelText(ToQt(what));
    progress_->setMaximum(static_cast<int>(total));
    progress_->setValue(static_cast<int>(done));
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtScreen::EndProgress() {
    progress_.reset();
    working_.invalidate();
}

WeatherChoice QtScreen::ChooseWeatherSource(const DayRange& wanted) { return AskForWeatherSource(wanted); }

void QtScreen::EndProgram() {
    for (const auto& [name, window] : windows_)
        if (window->Window().isVisible()) RememberWindow(window->Window(), ToQt(window->Table().Text));
    QSettings().sync();
    // Nothing is left to be written, and the toolkit is in the middle of an event: its own end would come too early.
    std::_Exit(EXIT_SUCCESS);
}

}  // namespace veraqua
