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

int DefaultDaysBefore(const HeaderCommon& header, JulianValue through) {
    return DefaultDaysBefore(header.StationCode.Text(), header.PlantDay + 1, through);
}

}  // namespace veraqua
