// weathdef.dat: the names of the stations at its head, the coefficients of each region, and the weather that they give.

#include <array>
#include <string>

#include "core/directory.h"
#include "core/state.h"
#include "fuzz/fuzz_target.h"
#include "fuzz/support.h"
#include "weather/default_weather.h"
#include "weather/weather_file.h"

namespace veraqua {

namespace {

constexpr int Year = 2003;

/// A station of each region, and one of none.
constexpr std::array Stations{"02", "06", "04", "08", "20", "12", "99"};

void WriteDays() {
    const DayRange range{JulianFromDate(12, 28, Year - 1), JulianFromDate(1, 20, Year)};
    if (!EndsWell([&range] { WriteDefaultWeather(range); })) return;
    const WeatherFile file(State.StationCode, Year);
    Require(file.Days() == 20, "days of default weather are missing");
    Require(EndsWell([&file] {
                for (int day = 1; day <= file.Days(); ++day) file.Day(day);
            }),
            "default weather was written that can't be read");
}

void TakeWeather(std::string_view bytes) {
    const MemoryDirectory directory;
    ScriptAsk user;
    files::Write("weathdef.dat", std::string(bytes));
    if (!EndsWell([&user] { StartUp(user); })) return;
    for (const char* station : Stations) {
        State.StationCode = station;
        StationNameOf(station);
        bool isLoaded = false;
        if (EndsWell([&] { isLoaded = LoadWeatherCoefficients(user, RegionOfStation(station)); }) && isLoaded)
            WriteDays();
    }
}

}  // namespace

}  // namespace veraqua

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    veraqua::TakeWeather(veraqua::TextOf(data, size));
    return 0;
}
