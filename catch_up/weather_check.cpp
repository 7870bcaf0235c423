#include "catch_up/weather_check.h"

#include "core/state.h"
#include "weather/coverage.h"

namespace veraqua {

void CheckWeather(Ask& ask, int startYear) {
    if (FindCoverage(ask, startYear) != Coverage::WeatherNeeded) return;
    // The screen that the user chooses on lets him pick another station: that of the field comes back.
    const std::string code = State.StationCode;
    const std::string name = State.StationName;
    ask.Tell("Weather data required from " + JulianToShortText(State.WeatherNeedFrom) + " to " +
                 JulianToShortText(State.WeatherNeedTo),
             "Weather Info");
    do {
        ask.ChooseWeatherSource();
    } while (State.DownloadFailed && !State.ReportCancelled);
    State.StationCode = code;
    State.StationName = name;
}

}  // namespace veraqua
