#include "weather/day_rows.h"

#include <algorithm>

#include "core/base/numbers.h"
#include "core/base/units.h"
#include "weather/network_text.h"

namespace veraqua {

namespace {

/// A unit of display: what is stored times `Multiplier` through `Divisor`, and `Zero` more.
struct Unit {
    double Multiplier = 1;
    double Divisor = 1;
    double Zero = 0;

    bool operator==(const Unit&) const = default;
};

constexpr Unit AsStored;
constexpr Unit Fahrenheit{1.8, 1, 32};
constexpr Unit MilesPerHour{0.6214, 24, 0};
constexpr Unit KilometresPerHour{1, 24, 0};
constexpr Unit Megajoules{1, LangleysPerMegajoule, 0};
constexpr Unit Inches{1, MillimetresPerInch, 0};

struct Description {
    float WeatherDay::*Member;
    std::string_view EnglishLabel;
    std::string_view MetricLabel;
    Unit English;
    Unit Metric;
};

// clang-format off
constexpr std::array Descriptions{
    Description{&WeatherDay::TempMax,
                "Daily Max Temp (deg. F). . . . . . . . . . . . . . . ",
                "Daily Max Temp (deg. C). . . . . . . . . . . . . . .  ", Fahrenheit, AsStored},
    Description{&WeatherDay::TempMin,
                "Daily Min Temp (deg. F). . . . . . . . . . . . . . . ",
                "Daily Min Temp (deg. C). . . . . . . . . . . . . . .  ", Fahrenheit, AsStored},
    Description{&WeatherDay::HumidityMax,
                "Daily Max Rel. Humidity (%). . . . . . . . . . . . . ",
                "Daily Max Rel. Humidity (%). . . . . . . . . . . . . ", AsStored, AsStored},
    Description{&WeatherDay::HumidityMin,
                "Daily Min Rel. Humidity (%). . . . . . . . . . . . . ",
                "Daily Min Rel. Humidity (%). . . . . . . . . . . . . ", AsStored, AsStored},
    Description{&WeatherDay::WindRun,
                "Daily Avg Wind Velocity (mph). . . . . . . . . . . . ",
                "Daily Avg Wind Velocity (km/hr). . . . . . . . . . .  ", MilesPerHour, KilometresPerHour},
    Description{&WeatherDay::DayNightRatio,
                "Day/Night Wind Velocity Ratio. . . . . . . . . . . . ",
                "Day/Night Wind Velocity Ratio. . . . . . . . . . . . ", AsStored, AsStored},
    Description{&WeatherDay::SolarRadiation,
                "Solar Radiation (Langleys/day) . . . . . . . . . . . ",
                "Solar Radiation (MJ/sq. meter/day) . . . . . . . . .  ", AsStored, Megajoules},
    Description{&WeatherDay::ReferenceET,
                "Reference Evavoptranspiration (in) . . . . . . . . . . . ",
                "Reference Evavoptranspiration (mm) . . . . . . . . . . . ", Inches, AsStored},
};
// clang-format on
static_assert(Descriptions.size() == AllDayRows.size());

/// Whether the number bears the mark of a missing measurement, as the import stores it. The ratio is never measured.
bool IsMarked(const WeatherDay& day, DayRow row) {
    switch (row) {
        case DayRow::TempMax: return day.TempMax == MissingDayMark;
        case DayRow::TempMin: return day.TempMin == MissingMeasurement;
        case DayRow::HumidityMax: return day.HumidityMax == MissingMeasurement;
        case DayRow::HumidityMin: return day.HumidityMin == MissingMeasurement;
        case DayRow::Wind: return day.WindRun == WindRunOf(MissingMeasurement);
        case DayRow::DayNightRatio: return false;
        case DayRow::Radiation: return day.SolarRadiation == RadiationOf(MissingMeasurement);
        case DayRow::ReferenceET:
            return std::ranges::any_of(
                AllDayRows, [&day](DayRow other) { return other != DayRow::ReferenceET && IsMarked(day, other); });
    }
    return false;
}

}  // namespace

std::string_view LabelOf(DayRow row, bool english) {
    const Description& description = Descriptions[IndexOf(row)];
    return english ? description.EnglishLabel : description.MetricLabel;
}

std::string TextOf(const WeatherDay& day, DayRow row, bool english, std::string_view mask) {
    const Description& description = Descriptions[IndexOf(row)];
    const Unit& unit = english ? description.English : description.Metric;
    const float stored = day.*description.Member;
    // A number that is shown as it is stored is rounded on the decimal form of the single.
    if (unit == AsStored) return Masked(stored, mask);
    return Masked(static_cast<double>(stored) * unit.Multiplier / unit.Divisor + unit.Zero, mask);
}

std::string TextOrMissing(const WeatherDay& day, DayRow row, bool english, std::string_view mask,
                          std::string_view missing) {
    return IsMarked(day, row) ? std::string(missing) : TextOf(day, row, english, mask);
}

void Enter(WeatherDay& day, DayRow row, double entered, bool english) {
    const Description& description = Descriptions[IndexOf(row)];
    const Unit& unit = english ? description.English : description.Metric;
    day.*description.Member =
        ToSingle((entered - unit.Zero) * unit.Divisor / unit.Multiplier, "a number of the day's weather");
}

}  // namespace veraqua
