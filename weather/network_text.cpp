#include "weather/network_text.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/calendar.h"

namespace veraqua {

namespace {

// Columns of a line, counted from 1 as the network does.
constexpr std::size_t YearColumn = 1;
constexpr std::size_t DayColumn = 2;
constexpr std::size_t StationColumn = 3;
constexpr std::size_t TempMaxColumn = 4;
constexpr std::size_t TempMinColumn = 5;
constexpr std::size_t HumidityMaxColumn = 7;
constexpr std::size_t HumidityMinColumn = 8;
constexpr std::size_t RadiationColumn = 11;
constexpr std::size_t RainColumn = 12;
constexpr std::size_t WindColumn = 19;
constexpr std::size_t PublishedETColumn = 24;  ///< only tested for a missing value
constexpr std::size_t LastColumn = 28;

using Columns = std::array<std::string_view, LastColumn + 1>;

std::string_view TakeLine(std::string_view& rest) {
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return Trimmed(line);
}

Columns SplitLine(std::string_view line) {
    Columns columns;
    for (std::size_t column = 1; column <= LastColumn; ++column) {
        const std::size_t comma = line.find(',');
        columns[column] = Trimmed(line.substr(0, comma));
        if (comma == std::string_view::npos) break;
        line.remove_prefix(comma + 1);
    }
    return columns;
}

std::optional<float> Measurement(std::string_view column) {
    const std::optional<double> value = Numeric(column);
    if (!value || !FitsSingle(*value)) return std::nullopt;
    return static_cast<float>(*value);
}

NetworkLine LineOf(std::string_view text, int daysInYear) {
    const Columns columns = SplitLine(text);
    NetworkLine line;
    line.Text = text;
    line.Year = columns[YearColumn];
    line.Station = WholeNumber(columns[StationColumn]);
    const int day = WholeNumber(columns[DayColumn]).value_or(0);
    line.DayOfYear = day >= 1 && day <= daysInYear ? day : 0;

    const auto needed = [&](std::size_t column) {
        const float value = Measurement(columns[column]).value_or(MissingMeasurement);
        if (value == MissingMeasurement) line.Bad = true;
        return value;
    };
    line.TempMax = needed(TempMaxColumn);
    line.TempMin = needed(TempMinColumn);
    line.HumidityMax = needed(HumidityMaxColumn);
    line.HumidityMin = needed(HumidityMinColumn);
    line.Radiation = needed(RadiationColumn);
    line.Rain = Measurement(columns[RainColumn]);
    needed(PublishedETColumn);
    const std::optional<float> wind = Measurement(columns[WindColumn]);
    line.Wind = wind.value_or(MissingMeasurement);
    line.WindMissing = line.Wind == MissingMeasurement;
    if (!wind) line.Bad = true;
    return line;
}

}  // namespace

float WindRunOf(float wind) { return ToSingle(wind * KilometresPerDay * WindHeightFactor, "the wind run"); }

float RadiationOf(float radiation) { return ToSingle(radiation * LangleysPerMegajoule, "the solar radiation"); }

std::optional<NetworkLine> NetworkText::Next() {
    while (!rest_.empty()) {
        const std::string_view line = TakeLine(rest_);
        if (!line.empty()) return LineOf(line, DaysInYear(year_));
    }
    return std::nullopt;
}

std::string LineOfDay(std::string_view text, const DayInYear& day) {
    for (int column = 1; column < static_cast<int>(StationColumn); ++column)
        text.remove_prefix(std::min(text.find(','), text.size() - 1) + 1);
    return fmt::format("{},{},{}", day.Year, day.DayOfYear, text);
}

int CountLines(std::string_view bytes) {
    int count = 0;
    while (!bytes.empty())
        if (!TakeLine(bytes).empty()) ++count;
    return count;
}

std::string WithPlainLineEnds(std::string_view body) {
    std::string text;
    text.reserve(body.size() + body.size() / 64);
    bool atLineEnd = false;
    for (const char c : body) {
        const bool control = static_cast<unsigned char>(c) < ' ';
        if (!control)
            text += c;
        else if (!atLineEnd)
            text += "\r\n";
        atLineEnd = control;
    }
    return text;
}

}  // namespace veraqua
