#pragma once

#include <map>
#include <string>

#include "core/field_in_work.h"
#include "engine/season.h"
#include "engine/season_run.h"
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

/// The field in row 1 and measured weather of 2003, 6 mm of reference evapotranspiration a day.
struct UpdateFieldTest : SeasonTest {
    /// Stores the field, and measured weather through `lastReal`.
    void Plant(const AField& field, JulianValue lastReal) {
        field.StoreAt(1);
        AWeatherYear("06", 2003).Through(lastReal - JulianFromDate(12, 31, 2002)).Store();
    }

    RunOutcome Update(JulianValue lastReal) {
        State.TodayJulian = lastReal + 1;
        State.WeatherLastJulian = lastReal;
        State.WeatherCoeff = DefaultWeather;
        SelectField(User, 1);
        return UpdateField(User).Outcome;
    }

    std::map<std::string, std::string> Files() const {
        std::map<std::string, std::string> contents;
        for (const std::string& name : files::Names()) contents[name] = Directory.Raw(name);
        return contents;
    }

    static FieldFile Stored() { return LoadFieldFile(1); }
};

/// A whole season with all that a field meets: rain on growing roots, irrigation, leaching, snapshots.
inline AField LivelyField(AField field = {}) {
    field.Content({140, 90, 60, 60}).Irrigation(Planting + 40, 30);
    for (const int day : {4, 5, 6, 15, 16, 25, 26, 33, 60}) field.Rain(Planting + day, 25);
    return field;
}

}  // namespace veraqua
