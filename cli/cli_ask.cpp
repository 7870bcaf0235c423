#include "cli/cli_ask.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <fmt/format.h>

#include "catch_up/weather_commands.h"
#include "core/base/characters.h"

namespace veraqua {

namespace {

/// Work shorter than this shows no progress.
constexpr std::chrono::milliseconds Patience{300};

/// Onto stderr. Where that is closed or full there is nobody to be told, and the work goes on.
void Say(const std::string& text) { static_cast<void>(std::fputs(text.c_str(), stderr)); }

/// A message as one line, which steers no terminal whatever file or word it quotes.
std::string OneLine(std::string_view title, std::string_view text) {
    std::string line = fmt::format("{}: {}", title.empty() ? ProgramTitle : title, text);
    std::ranges::replace_if(line, IsControlCharacter, ' ');
    return line;
}

}  // namespace

void CliAsk::Tell(std::string_view text, std::string_view title, Icon) {
    ClearLine();
    Say(OneLine(title, text) + "\n");
}

bool CliAsk::YesNo(std::string_view text, std::string_view title, Icon, bool) {
    ClearLine();
    Say(fmt::format("{} [{}]\n", OneLine(title, text), answer_ ? "yes" : "no"));
    return answer_;
}

WeatherChoice CliAsk::ChooseWeatherSource(const DayRange& wanted) {
    if (!answer_) return WeatherChoice::Left;
    BringDefaultWeather(wanted);
    return WeatherChoice::Taken;
}

void CliAsk::Progress(std::string_view what, std::size_t done, std::size_t total) {
    if (done >= total)
        ClearLine();
    else
        ShowState(fmt::format("{} {} of {}", what, done + 1, total));
}

void CliAsk::ShowState(std::string_view text) {
    if (!progressAllowed_ || std::chrono::steady_clock::now() - begun_ < Patience || isatty(STDERR_FILENO) == 0) return;
    Say(fmt::format("\r\033[K{}", text));
    std::fflush(stderr);
    lineShown_ = true;
}

void CliAsk::ClearLine() {
    if (lineShown_) Say("\r\033[K");
    lineShown_ = false;
}

void CliAsk::EndProgram() {
    ClearLine();
    std::exit(1);
}

}  // namespace veraqua
