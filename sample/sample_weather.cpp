#include "sample/sample_weather.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <map>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/files/files.h"
#include "core/state.h"
#include "data/embedded.h"
#include "weather/default_weather.h"
#include "weather/import.h"
#include "weather/network_text.h"
#include "weather/weather_file.h"

namespace veraqua {

namespace {

/// A measured year, as the network served it. It has no 29 February.
struct MeasuredYear {
    std::string_view Station;
    int Year;
    std::string_view File;  ///< below data/shipped
};

constexpr std::array MeasuredYears{
    MeasuredYear{"06", 2002, "sample/0602rd.txt"},
    MeasuredYear{"15", 2022, "sample/1522rd.txt"},
};

constexpr double LeastRain = 1;  ///< mm; a gauge's reading below it isn't written down

using Lines = std::map<int, NetworkLine>;  ///< by day of the measured year

Lines LinesOf(const MeasuredYear& year) {
    Lines lines;
    NetworkText text(EmbeddedFile(year.File), year.Year);
    while (const auto line = text.Next()) lines[line->DayOfYear] = *line;
    return lines;
}

const MeasuredYear& MeasuredYearOf(std::string_view station) {
    const auto year = std::ranges::find(MeasuredYears, station, &MeasuredYear::Station);
    assert(year != MeasuredYears.end());
    return *year;
}

/// The line that stands for `day`, or null.
const NetworkLine* LineFor(const Lines& lines, const MeasuredYear& year, JulianValue day) {
    const Date date = DateFromJulian(day);
    if (date.Month == 2 && date.Day == 29) return nullptr;
    const JulianValue measured = JulianFromDate(date.Month, date.Day, year.Year);
    const auto line = lines.find(DayOfYearFromJulian(measured).DayOfYear);
    return line == lines.end() ? nullptr : &line->second;
}

/// The network's text of `year`'s station from `first` to `last`, both of one year.
std::string TextOf(const MeasuredYear& year, JulianValue first, JulianValue last) {
    const Lines lines = LinesOf(year);
    std::string text;
    for (JulianValue day = first; day <= last; ++day)
        if (const NetworkLine* line = LineFor(lines, year, day))
            text += LineOfDay(line->Text, DayOfYearFromJulian(day)) + "\n";
    return text;
}

/// Imports `text` as that of the days `range`. A text of another station that waits under the same name stays.
void ImportText(Ask& ask, const DayRange& range, std::string text) {
    const std::string name = NetworkTextName(YearOf(range.From));
    const auto waiting = files::Read(name);
    files::Write(name, std::move(text));
    constexpr ImportWording nothingToTell{};
    ImportWeather(ask, nothingToTell, range);
    if (waiting)
        files::Write(name, *waiting);
    else
        files::Remove(name);
}

void ImportYear(Ask& ask, int year, JulianValue last) {
    DayRange range{JulianFromDate(1, 1, year), std::min(JulianFromDate(12, 31, year), last)};
    if (range.To < range.From || WeatherFile(State.StationCode, year).Days() > 0) return;
    ImportText(ask, range, TextOf(MeasuredYearOf(State.StationCode), range.From, range.To));
    // Where the last days weren't measured the text ends before them.
    range.From = LastWeatherJulian(State.StationCode, year) + 1;
    if (range.From <= range.To) WriteDefaultWeather(range);
}

}  // namespace

std::string StationsOfSample(std::string_view weathdef) {
    std::string marked;
    for (int line = 0; !weathdef.empty(); ++line) {  // line 0 holds the counts, line n the name of station n
        const std::size_t end = std::min(weathdef.find('\n'), weathdef.size());
        marked += weathdef.substr(0, end);
        if (std::ranges::find(MeasuredYears, fmt::format("{:02}", line), &MeasuredYear::Station) != MeasuredYears.end())
            marked += SampleMark;
        marked += weathdef.substr(end, 1);
        weathdef.remove_prefix(std::min(end + 1, weathdef.size()));
    }
    return marked;
}

bool ImportSampleWeather(Ask& ask, int firstYear, JulianValue last) {
    if (!LoadWeatherCoefficients(ask, RegionOfStation(State.StationCode))) return false;
    for (int year = firstYear; year <= YearOf(last + 1); ++year) ImportYear(ask, year, last);
    return true;
}

std::vector<EventRecord> SampleRain(std::string_view stationCode, JulianValue first, JulianValue last) {
    const MeasuredYear& year = MeasuredYearOf(stationCode);
    const Lines lines = LinesOf(year);
    std::vector<EventRecord> rain;
    for (JulianValue day = first; day <= last; ++day) {
        const NetworkLine* line = LineFor(lines, year, day);
        const float measured = line == nullptr ? 0 : line->Rain.value_or(0);
        if (measured >= LeastRain) rain.push_back({day, ToInteger16(measured, "the rain")});
    }
    return rain;
}

}  // namespace veraqua
