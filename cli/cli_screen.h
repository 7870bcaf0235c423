#pragma once

#include <chrono>
#include <string>

#include "core/clock.h"
#include "screen/headless.h"

namespace veraqua {

/// The command line as the outside of the calculating rooms: messages go to stderr, one line each; every question gets
/// the one answer that was given as an option.
class CliScreen : public HeadlessScreen {
  public:
    CliScreen() { InstallScreen(*this); }

    void SetAnswer(bool yes) { answer_ = yes; }

    /// Whether long work may show a progress line; it does so only where stderr is a terminal.
    void AllowProgress(bool allowed) { progressAllowed_ = allowed; }

    void Tell(std::string_view text, std::string_view title = ProgramTitle, Icon icon = Icon::None) override;
    bool YesNo(std::string_view text, std::string_view title, Icon icon, bool noIsDefault) override;
    JulianValue Now() const override { return now_; }
    void Progress(std::string_view what, std::size_t done, std::size_t total) override;
    /// The answer yes takes default weather; no leaves without a choice.
    WeatherChoice ChooseWeatherSource(const DayRange& wanted) override;
    void SetNow(JulianValue today) override { now_ = today; }
    /// Ends the command: there is nobody to go on with the form.
    void Failed(const RunTimeFailure&) override { throw; }
    [[noreturn]] void EndProgram() override;

    /// How often the user was told something or a question was answered no since the program began.
    int Objections() const { return objections_; }

    /// Shows a passing text in the progress line.
    void ShowState(std::string_view text);

  private:
    void ClearLine();

    JulianValue now_ = ClockDate();
    bool answer_ = false;
    bool progressAllowed_ = true;
    bool lineShown_ = false;
    int objections_ = 0;
    std::chrono::steady_clock::time_point begun_ = std::chrono::steady_clock::now();
};

}  // namespace veraqua
