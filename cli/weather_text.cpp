#include "cli/weather_text.h"

#include <fmt/format.h>

#include "cli/text_table.h"
#include "core/numbers.h"
#include "core/state.h"
#include "weather/network_text.h"

namespace veraqua {

namespace {

using Side = TextTable::Side;

std::string Temperature(double celsius) { return Masked(State.EnglishUnits ? celsius * 1.8 + 32 : celsius, "0.0"); }

/// Mean wind speed from the run of a day.
std::string Wind(double windRun) { return Masked(State.EnglishUnits ? windRun * 0.6214 / 24 : windRun / 24, "0.0"); }

std::string Radiation(double langleys) {
    return Masked(State.EnglishUnits ? langleys : langleys / LangleysPerMegajoule, "0.0");
}

std::string ReferenceET(double millimetres) {
    return State.EnglishUnits ? Masked(millimetres / 25.4, "0.00") : Masked(millimetres, "0.0");
}

}  // namespace

std::string TextOfWeather(const std::vector<WeatherDay>& days) {
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
    for (const WeatherDay& day : days)
        table.Add({fmt::format("{}", day.DayOfYear), Temperature(static_cast<double>(day.TempMax)),
                   Temperature(static_cast<double>(day.TempMin)), Masked(day.HumidityMax, "0.0"),
                   Masked(day.HumidityMin, "0.0"), Wind(static_cast<double>(day.WindRun)),
                   Masked(day.DayNightRatio, "0.0"), Radiation(static_cast<double>(day.SolarRadiation)),
                   ReferenceET(static_cast<double>(day.ReferenceET)), day.Source.Text()});
    return table.Text();
}

}  // namespace veraqua
