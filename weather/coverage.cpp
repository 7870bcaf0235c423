#include "weather/coverage.h"

#include <optional>

#include "core/files/files.h"
#include "core/state.h"
#include "weather/default_weather.h"
#include "weather/weather_file.h"

namespace veraqua {

namespace {

/// Last day of weather in the first year from `startYear` to `thisYear` that isn't complete; the end of this year if
/// all are.
JulianValue LastDayWithoutHole(int startYear, int thisYear) {
    std::optional<JulianValue> last;
    for (int year = startYear; year <= thisYear; ++year) {
        State.WeatherYearSuffix = YearSuffix(year);
        const JulianValue inFile = LastWeatherJulian(State.StationCode, year);
        if (!last && inFile < JulianFromDate(12, 31, year)) last = inFile > 0 ? inFile : JulianFromDate(1, 1, year) - 1;
    }
    return last.value_or(JulianFromDate(12, 31, thisYear));
}

}  // namespace

Coverage FindCoverage(Ask& ask, int startYear) {
    using enum Coverage::Kind;
    State.DownloadFailed = false;
    if (!LoadWeatherCoefficients(ask, RegionOfStation(State.StationCode))) return {};

    files::ChangeSet madeByLooking;
    const JulianValue last = LastDayWithoutHole(startYear, YearOf(ask.Now()));
    madeByLooking.Commit();

    State.ReportCancelled = false;
    const JulianValue yesterday = State.TodayJulian - 1;
    Coverage coverage{WeatherNeeded, 0, {JulianFromDate(1, 1, startYear), yesterday}};
    if (last >= 1) {
        State.WeatherLastJulian = last;
        if (last >= yesterday) return {Current, last, {}};
        coverage.LastDay = last;
        coverage.Needed.From = last + 1;
    }
    WantWeather(coverage.Needed);
    return coverage;
}

JulianValue WeatherReaches(const DayRange& range) {
    JulianValue day = range.From;
    for (int year = YearOf(day); day <= range.To; ++year) {
        const WeatherFile file(State.StationCode, year);
        for (; day <= range.To && YearOf(day) == year; ++day) {
            const int dayOfYear = DayOfYearFromJulian(day).DayOfYear;
            if (file.Day(dayOfYear).DayOfYear != dayOfYear) return day - 1;
        }
    }
    return range.To;
}

void WantWeather(const DayRange& range) {
    State.WeatherNeedFrom = range.From;
    State.WeatherNeedTo = range.To;
}

}  // namespace veraqua
