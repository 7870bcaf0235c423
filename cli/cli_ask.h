#pragma once

#include <chrono>
#include <string>

#include "core/ask.h"
#include "core/clock.h"

namespace veraqua {

/// The command line as the outside of the calculating rooms: messages go to stderr, one line each; every question gets
/// the one answer that was given as an option.
class CliAsk : public Ask {
  public:
    void SetAnswer(bool yes) { answer_ = yes; }

    /// Whether long work may show a progress line; it does so only where stderr is a terminal.
    void AllowProgress(bool allowed) { progressAllowed_ = allowed; }

    void Tell(std::string_view text, std::string_view title = ProgramTitle, Icon icon = Icon::None) override;
    bool YesNo(std::string_view text, std::string_view title, Icon icon, bool noIsDefault) override;
    JulianValue Now() const override { return now_; }
    void Progress(std::string_view what, std::size_t done, std::size_t total) override;
    /// The answer yes takes default weather; no leaves without a choice.
    WeatherChoice ChooseWeatherSource(const DayRange& wanted) override;
    [[noreturn]] void EndProgram() override;

    /// Puts `today` in the place of the computer's date.
    void SetNow(JulianValue today) { now_ = today; }

    /// Shows a passing text in the progress line.
    void ShowState(std::string_view text);

  private:
    void ClearLine();

    JulianValue now_ = ClockDate();
    bool answer_ = false;
    bool progressAllowed_ = true;
    bool lineShown_ = false;
    std::chrono::steady_clock::time_point begun_ = std::chrono::steady_clock::now();
};

}  // namespace veraqua
