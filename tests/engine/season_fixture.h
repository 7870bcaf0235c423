#pragma once

#include "engine/season.h"
#include "tests/support/builders.h"
#include "tests/support/data_directory.h"

namespace veraqua {

/// Default weather that is that of `day` all the year round.
inline WeatherCoefficients SteadyWeather(const WeatherDay& day) {
    WeatherCoefficients coefficients{};
    std::size_t row = 0;
    for (const float value : {day.TempMax, day.TempMin, day.HumidityMax, day.HumidityMin, day.WindRun,
                              day.DayNightRatio, day.SolarRadiation, day.ReferenceET})
        coefficients[row++][0] = value;
    return coefficients;
}

/// Frost without any evapotranspiration: only events change a field.
inline WeatherDay Frost() { return AWeatherDay().Temperature(-5, 3).ReferenceET(0); }

constexpr JulianValue Planting = JulianFromDate(5, 1, 2003);  ///< that of `AField`; day 121 of its year

/// Seasons in memory. Where no weather was measured every day is that of `DefaultWeather`.
struct SeasonTest : DirectoryTest {
    WeatherCoefficients DefaultWeather = SteadyWeather(AWeatherDay());  // 11 degree days for maize, 16 for alfalfa

    /// From the row of `startDay`, the last real weather being on `lastReal`.
    Season Run(const FieldFile& file, JulianValue startDay = Planting, JulianValue lastReal = Planting,
               std::vector<DayStep>* account = nullptr) {
        const SeasonWeather weather("06", startDay + 1, lastReal, DefaultWeather);
        SeasonStart start;
        start.Day = startDay;
        start.Today = lastReal + 1;
        start.Account = account;
        return RunSeason(file, start, weather, User);
    }
};

/// Soil that can't fill up, dry at planting: a field's water is the sum of what came.
inline AField BottomlessField() { return AField().Capacity(1000).Content(0); }

}  // namespace veraqua
