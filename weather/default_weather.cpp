#include "weather/default_weather.h"

#include <array>
#include <cmath>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/base/text_items.h"
#include "core/files/files.h"
#include "core/state.h"
#include "weather/weather_file.h"

namespace veraqua {

namespace {

constexpr std::string_view DefaultWeatherFile = "weathdef.dat";
constexpr int DayNightRow = 5;
constexpr auto StoredDefaultSource = decltype(WeatherDay::Source)::FromAscii(DefaultSource);
constexpr std::size_t CodeWidth = 2;  ///< of a station's code

struct Region {
    std::string_view Name;
    std::string_view Stations;  ///< their codes
};

constexpr std::array Regions{
    Region{"SORA VALLEY", "02 03 14 24"},
    Region{"TELMORAN", "01 06 07 10 11 13 16 19 26"},
    Region{"BRESKIN", "04 05 09 22 33"},
    Region{"DUNMER", "08 23"},
    Region{"KALVIS", "20"},
    Region{"TORV", "12 15 21"},
};

/// Cosines and sines of one day's angle and of its double and treble, in the order of the coefficients a1 to a6.
std::array<double, 6> Harmonics(int dayOfYear) {
    // 365 days in leap years too, and pi to five decimals: the coefficients were fitted with both.
    const double t = static_cast<float>(2.0 * dayOfYear * 3.14159 / 365.0);
    return {std::cos(t), std::sin(t), std::cos(2 * t), std::sin(2 * t), std::cos(3 * t), std::sin(3 * t)};
}

float Sum(const std::array<float, 7>& a, const std::array<double, 6>& harmonics) {
    double value = a[0];
    for (std::size_t i = 0; i < harmonics.size(); ++i) value += static_cast<double>(a[i + 1]) * harmonics[i];
    return ToSingle(value, "a member of the default weather");
}

/// Reads on to behind the first line that holds `region`. False if the file ends before.
bool SkipToRegion(TextItems& items, std::string_view region) {
    while (!items.AtEnd())
        if (items.Line().find(region) != std::string::npos) return true;
    return false;
}

}  // namespace

float HarmonicValue(const WeatherCoefficients& coefficients, int row, int dayOfYear) {
    return Sum(coefficients[static_cast<std::size_t>(row)], Harmonics(dayOfYear));
}

WeatherDay DefaultDay(const WeatherCoefficients& coefficients, int dayOfYear) {
    const std::array<double, 6> harmonics = Harmonics(dayOfYear);
    WeatherDay day;
    day.DayOfYear = static_cast<std::int16_t>(dayOfYear);
    day.TempMax = Sum(coefficients[0], harmonics);
    day.TempMin = Sum(coefficients[1], harmonics);
    day.HumidityMax = Sum(coefficients[2], harmonics);
    day.HumidityMin = Sum(coefficients[3], harmonics);
    day.WindRun = Sum(coefficients[4], harmonics);
    day.DayNightRatio = Sum(coefficients[DayNightRow], harmonics);
    day.SolarRadiation = Sum(coefficients[6], harmonics);
    day.ReferenceET = Sum(coefficients[7], harmonics);
    day.Source = StoredDefaultSource;
    return day;
}

float DefaultDayNightRatio(const WeatherCoefficients& coefficients, int dayOfYear) {
    return HarmonicValue(coefficients, DayNightRow, dayOfYear);
}

std::string_view RegionOfStation(std::string_view stationCode) {
    if (stationCode.size() != CodeWidth) return {};
    for (const Region& region : Regions)
        if (region.Stations.find(stationCode) != std::string_view::npos) return region.Name;
    return {};
}

std::optional<WeatherCoefficients> WeatherCoefficientsOf(std::string_view region) {
    const auto bytes = files::ReadExisting(DefaultWeatherFile);
    TextItems items(*bytes, DefaultWeatherFile);
    const int names = items.Integer16();
    const int notes = items.Integer16();
    for (int i = 0; i < names + notes; ++i) items.Text();
    if (!SkipToRegion(items, region)) return std::nullopt;
    items.Single();  // latitude and height of the place behind the region
    items.Single();
    WeatherCoefficients coefficients;
    for (auto& row : coefficients)
        for (float& coefficient : row) coefficient = items.Single();
    return coefficients;
}

bool LoadWeatherCoefficients(Ask& ask, std::string_view region) {
    const std::optional<WeatherCoefficients> coefficients = WeatherCoefficientsOf(region);
    if (!coefficients) {
        ask.Tell("Your default weather station was not found!", "Weather Error");
        State.DownloadFailed = true;
        return false;
    }
    State.WeatherCoeff = *coefficients;
    return true;
}

void WriteDefaultWeather(const DayRange& range) {
    files::ChangeSet changes;
    WeatherFile file(State.StationCode, YearOf(range.From));
    for (JulianValue day = range.From; day <= range.To; ++day) {
        const DayInYear place = DayOfYearFromJulian(day);
        if (place.Year != file.Year()) {
            file.Save();
            file = WeatherFile(State.StationCode, place.Year);
        }
        file.Put(place.DayOfYear, DefaultDay(State.WeatherCoeff, place.DayOfYear));
    }
    file.Save();
    State.WeatherYearSuffix = YearSuffix(file.Year());
    changes.Commit();
}

}  // namespace veraqua
