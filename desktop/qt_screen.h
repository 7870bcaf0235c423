#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QProgressDialog>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "core/clock.h"
#include "desktop/binder.h"
#include "desktop/http_request.h"
#include "screen/screen.h"

namespace veraqua {

/// The program's screen with real windows. A window is made when its form is first shown, and kept.
class QtScreen : public Screen, public WindowEvents {
  public:
    QtScreen();
    ~QtScreen() override;
    QtScreen(const QtScreen&) = delete;
    QtScreen& operator=(const QtScreen&) = delete;

    void Present(FormTable& form) override;
    void RunModal(FormTable& form) override;
    void Withdraw(FormTable& form) override;
    void PutFocus(FormTable& form, ControlEntry& control, bool selectText) override;
    PrintOutcome PrintImage(FormTable& form) override;
    PrintOutcome Print(const PrintedDocument& document) override;
    void StartGet(const std::string& url, std::function<void(const HttpProgress&)> progress) override;
    void CancelGet() override;
    void SetNow(JulianValue day) override { now_ = day; }
    std::vector<std::string> Kept(const std::string& name) const override;
    void Keep(const std::string& name, const std::vector<std::string>& values) override;
    bool OpenDocument(const std::string& path) override;
    void Failed(const RunTimeFailure& failure) override;

    void Tell(std::string_view text, std::string_view title = ProgramTitle, Icon icon = Icon::None) override;
    bool YesNo(std::string_view text, std::string_view title, Icon icon, bool noIsDefault) override;
    JulianValue Now() const override { return now_.value_or(ClockDate()); }
    void Progress(std::string_view what, std::size_t done, std::size_t total) override;
    WeatherChoice ChooseWeatherSource(const DayRange& wanted) override;
    [[noreturn]] void EndProgram() override;

    /// The window of a form, made if it isn't yet.
    BoundWindow& WindowOf(FormTable& form);

    /// Tells the forms that a minute has passed, unless the user is in the middle of something.
    void PassMinute();

    /// Brings all forms that are shown to the screen.
    void BringAll();

  private:
    void EventBegins() override { told_.clear(); }
    void EventEnds() override { BringAll(); }
    QString ToldInEvent() const override { return told_; }

    void ShowWindow(FormTable& form, Qt::WindowModality modality);
    void EndProgress();

    std::map<FormName, std::unique_ptr<BoundWindow>> windows_;
    std::multimap<FormName, QEventLoop*> modalLoops_;  ///< that wait for their form to go
    QString told_;                                     ///< the last message of the event that runs
    std::optional<JulianValue> now_;                   ///< in place of the computer's date
    HttpRequest request_;
    QElapsedTimer working_;  ///< since the work in progress has begun
    std::unique_ptr<QProgressDialog> progress_;
};

}  // namespace veraqua
