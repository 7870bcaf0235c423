#pragma once

#include <map>
#include <string>

#include "engine/season_run.h"
#include "tests/engine/season_fixture.h"

namespace veraqua {

/// The field in row 1 and measured weather of 2003, 6 mm of reference evapotranspiration a day.
struct UpdateFieldTest : SeasonTest {
    /// Stores the field, and measured weather through `lastReal`.
    void Plant(const AField& field, JulianValue lastReal) {
        field.StoreAt(1);
        if (lastReal >= Planting) AWeatherYear("06", 2003).Through(lastReal - JulianFromDate(12, 31, 2002)).Store();
    }

    RunOutcome Update(JulianValue lastReal) {
        State.TodayJulian = lastReal + 1;
        State.WeatherLastJulian = lastReal;
        State.WeatherCoeff = DefaultWeather;
        SelectField(User, 1);
        return UpdateField(User);
    }

    /// The user sets the depletion on `day`.
    static void Reset(JulianValue day, float available) {
        FieldFile file = LoadFieldFile(1);
        file.Days.at(static_cast<std::size_t>(day - file.Header().PlantDay)).Available = available;
        StoreFieldFile(1, file);
        State.Updates[1] = day;
        ScriptAsk nobody;
        SaveFieldRow(nobody, 1);
    }

    std::map<std::string, std::string> Files() const {
        std::map<std::string, std::string> contents;
        for (const std::string& name : files::Names()) contents[name] = Directory.Raw(name);
        return contents;
    }

    static FieldFile Stored() { return LoadFieldFile(1); }
};

/// A whole season with all that a field meets: rain on growing roots, irrigation, leaching, snapshots.
inline AField LivelyField() {
    AField field;
    field.Content({140, 90, 60, 60}).Irrigation(Planting + 40, 30);
    for (const int day : {4, 5, 6, 15, 16, 25, 26, 33, 60}) field.Rain(Planting + day, 25);
    return field;
}

}  // namespace veraqua
