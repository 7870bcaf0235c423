#include "catch_up/weather_check.h"

#include "core/state.h"
#include "weather/coverage.h"

namespace veraqua {

namespace {

/// The user has picked another station where he brought the weather in: that of the field comes back, with its own
/// coverage and default weather, and how the work has ended stays.
void ReturnToStation(Ask& ask, const std::string& code, const std::string& name, int startYear) {
    State.StationCode = code;
    State.StationName = name;
    const bool failed = State.DownloadFailed;
    const bool cancelled = State.ReportCancelled;
    const bool known = FindCoverage(ask, startYear) != Coverage::RegionMissing;
    State.DownloadFailed = failed || !known;
    State.ReportCancelled = cancelled;
}

}  // namespace

void CheckWeather(Ask& ask, int startYear) {
    if (FindCoverage(ask, startYear) != Coverage::WeatherNeeded) return;
    const std::string code = State.StationCode;
    const std::string name = State.StationName;
    ask.Tell("Weather data required from " + JulianToShortText(State.WeatherNeedFrom) + " to " +
                 JulianToShortText(State.WeatherNeedTo),
             "Weather Info");
    do {
        ask.ChooseWeatherSource();
    } while (State.DownloadFailed && !State.ReportCancelled);
    if (State.StationCode != code) ReturnToStation(ask, code, name, startYear);
}

}  // namespace veraqua
