#include "catch_up/weather_check.h"

#include "core/field_in_work.h"
#include "core/state.h"
#include "weather/coverage.h"

namespace veraqua {

namespace {

/// Sends the user to bring the days `needed` in until they have done so or leave.
WeatherChoice BringIn(Ask& ask, const DayRange& needed) {
    ask.Tell("Weather data required from " + JulianToShortText(needed.From) + " to " + JulianToShortText(needed.To),
             "Weather Info");
    WeatherChoice choice = WeatherChoice::Failed;
    while (choice == WeatherChoice::Failed) choice = ask.ChooseWeatherSource(needed);
    return choice;
}

}  // namespace

WeatherCheck CheckWeather(Ask& ask, int startYear) {
    const InWork before;
    const Coverage coverage = FindCoverage(ask, startYear);
    if (!coverage.IsKnown()) return WeatherCheck::Abandoned;
    if (coverage.Reach == Coverage::Kind::Current) return WeatherCheck::Ready;
    const bool left = BringIn(ask, coverage.Needed) == WeatherChoice::Left;
    bool known = true;
    if (!before.HasStation()) {
        // The user has picked another one where the weather was brought in.
        before.ReturnStation();
        known = FindCoverage(ask, startYear).IsKnown();
    }
    const bool abandoned = left || !known;
    State.ReportCancelled = left;
    State.DownloadFailed = abandoned;
    return abandoned ? WeatherCheck::Abandoned : WeatherCheck::Ready;
}

}  // namespace veraqua
