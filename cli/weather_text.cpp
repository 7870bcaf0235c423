#include "cli/weather_text.h"

#include <utility>

#include <fmt/format.h>

#include "core/base/text_table.h"
#include "core/state.h"
#include "weather/day_rows.h"

namespace veraqua {

std::string TextOfWeather(const std::vector<WeatherDay>& days) {
    using Side = TextTable::Side;
    if (days.empty()) return "No weather.\n";
    const bool english = State.EnglishUnits;
    const std::string degrees = english ? "F" : "C";
    TextTable table({{"Day", Side::Right},
                     {"Max " + degrees, Side::Right},
                     {"Min " + degrees, Side::Right},
                     {"RH max %", Side::Right},
                     {"RH min %", Side::Right},
                     {english ? "Wind mph" : "Wind km/h", Side::Right},
                     {"Day/night", Side::Right},
                     {english ? "Langleys" : "MJ/m2", Side::Right},
                     {english ? "ETR in" : "ETR mm", Side::Right},
                     {"Source"}});
    for (const WeatherDay& day : days) {
        std::vector<std::string> cells{fmt::format("{}", day.DayOfYear)};
        for (const DayRow row : AllDayRows) {
            const bool needsHundredths = english && row == DayRow::ReferenceET;
            cells.push_back(TextOf(day, row, english, needsHundredths ? "0.00" : "0.0"));
        }
        cells.push_back(day.Source.Text());
        table.Add(std::move(cells));
    }
    return table.Text();
}

}  // namespace veraqua
