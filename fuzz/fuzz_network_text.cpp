// The network's text of a year: its line ends made plain, and its import into an empty year and across the turn of the
// year.

#include <string>

#include "catch_up/weather_commands.h"
#include "core/state.h"
#include "fuzz/fuzz_target.h"
#include "fuzz/support.h"
#include "weather/import.h"
#include "weather/network_text.h"
#include "weather/weather_file.h"

namespace veraqua {

namespace {

constexpr int Year = 2003;

/// The text of the year before, which is never in doubt.
constexpr std::string_view EndOfYearBefore =
    "2002,363,6,9.9,1.1,5.5,99,60,80,0,8.5,2,6,0,0,0,0,0,2.2,0,0,0,0,1.1\n"
    "2002,364,6,9.9,1.1,5.5,99,60,80,0,8.5,2,6,0,0,0,0,0,2.2,0,0,0,0,1.1\n"
    "2002,365,6,9.9,1.1,5.5,99,60,80,0,8.5,2,6,0,0,0,0,0,2.2,0,0,0,0,1.1\n";

/// The weather stored for that year; an import doesn't look at it, but would fill an empty year with default days.
constexpr std::size_t StoredBefore = 362 * StoredSize<WeatherDay>();

/// No day of the year's file is a hole, and each can be read.
void LookAtYear() {
    const WeatherFile file(State.StationCode, Year);
    Require(file.Days() <= DaysInYear(Year), "an import has gone beyond the year");
    const auto look = [&file] {
        for (int day = 1; day <= file.Days(); ++day)
            Require(file.Day(day).DayOfYear == day, "a day was imported in the place of another");
    };
    Require(EndsWell(look), "a day was imported that can't be read");
}

void Import(std::string_view text, const DayRange& range) {
    const WeatherCoefficients& weather = ShippedWeather();
    const MemoryDirectory directory;
    ScriptAsk user;
    user.OtherAnswer = true;
    State.StationCode = "06";
    State.WeatherCoeff = weather;
    files::Write(WeatherFileName(State.StationCode, Year - 1), std::string(StoredBefore, '\0'));
    files::Write(NetworkTextName(Year - 1), std::string(EndOfYearBefore));
    files::Write(NetworkTextName(Year), std::string(text));
    EndsWell([&] { ImportRange(user, WeatherCommand::Append, range); });
    LookAtYear();
}

void TakeText(std::string_view bytes) {
    const std::string text = WithPlainLineEnds(bytes);
    Require(WithPlainLineEnds(text) == text, "plain line ends are made plain again");
    Import(text, {JulianFromDate(1, 1, Year), JulianFromDate(1, 8, Year)});
    Import(bytes, {JulianFromDate(1, 3, Year), JulianFromDate(12, 31, Year)});
    Import(bytes, {JulianFromDate(12, 29, Year - 1), JulianFromDate(1, 4, Year)});
}

}  // namespace

}  // namespace veraqua

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    veraqua::TakeText(veraqua::TextOf(data, size));
    return 0;
}
