#include "weather/default_days.h"

#include "weather/default_weather.h"
#include "weather/weather_file.h"

namespace veraqua {

int DefaultDaysBefore(std::string_view stationCode, JulianValue from, JulianValue through) {
    JulianValue day = through;
    for (int year = YearOf(through); day >= from; --year) {
        const WeatherFile file(stationCode, year);
        for (; day >= from && YearOf(day) == year; --day)
            if (file.Day(DayOfYearFromJulian(day).DayOfYear).Source.Text() != DefaultSource) return through - day;
    }
    return through - day;
}

int MeasuredDays(std::string_view stationCode, const DayRange& range) {
    int measured = 0;
    JulianValue julian = range.From;
    while (julian <= range.To) {
        const WeatherFile file(stationCode, YearOf(julian));
        for (; julian <= range.To && YearOf(julian) == file.Year(); ++julian) {
            const WeatherDay day = file.Day(DayOfYearFromJulian(julian).DayOfYear);
            if (day.DayOfYear != 0 && day.Source.Text() != DefaultSource) ++measured;
        }
    }
    return measured;
}

int DefaultDaysBefore(const HeaderCommon& header, JulianValue through) {
    return DefaultDaysBefore(header.StationCode.Text(), header.PlantDay + 1, through);
}

}  // namespace veraqua
