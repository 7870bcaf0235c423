#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/calendar.h"

/// The text that the weather network serves: a file per station and year, a line per day, fields separated by commas.
namespace veraqua {

/// The largest text that is taken, bytes: a year has some 40 KB.
constexpr std::size_t LargestNetworkText = std::size_t{4} << 20;

/// Marks a missing measurement.
constexpr float MissingMeasurement = 999;

/// The wind is measured above the 2 m that the equation for reference ET is made for.
constexpr double WindHeightFactor = 0.93;
constexpr double KilometresPerDay = 86.4;       ///< in one metre per second
constexpr double LangleysPerMegajoule = 23.89;  ///< per square metre

/// What the wind and the radiation of a line are in a day of weather: km per day at 2 m, langleys. RunTimeFailure where
/// that doesn't fit a single.
float WindRunOf(float wind);
float RadiationOf(float radiation);

/// One line, as it stands.
struct NetworkLine {
    std::string_view Text;  ///< the whole line
    std::string_view Year;  ///< column 1 without blanks, not yet compared with anything
    int DayOfYear = 0;      ///< 0 if column 2 is no day of the year
    std::optional<int> Station;
    float TempMax = 0;  ///< degrees C
    float TempMin = 0;
    float HumidityMax = 0;  ///< percent
    float HumidityMin = 0;
    float Radiation = 0;        ///< MJ per square metre
    float Wind = 0;             ///< m/s
    std::optional<float> Rain;  ///< mm, column 12; the sample season's alone: growers read their own gauges
    bool Bad = false;           ///< a value that the day can't do without is missing
    bool WindMissing =
        false;  ///< the wind bears the mark of a missing measurement, which alone doesn't make a line bad
};

/// Reads the lines one after the other. Columns that are no number count as missing, and those beyond the known ones
/// are ignored.
class NetworkText {
  public:
    /// `bytes` must outlive it. Days of the year end with that of `year`.
    NetworkText(std::string_view bytes, int year) : rest_(bytes), year_(year) {}

    /// The next line that isn't empty; nothing at the end of the text.
    std::optional<NetworkLine> Next();

  private:
    std::string_view rest_;
    int year_;
};

/// The line `text` as that of another day: what stands behind its first two columns, year and day, is kept.
std::string LineOfDay(std::string_view text, const DayInYear& day);

/// Lines of the text that aren't empty.
int CountLines(std::string_view bytes);

/// `body` with each run of control characters as one CR LF: the form in which the downloaded text is kept.
std::string WithPlainLineEnds(std::string_view body);

}  // namespace veraqua
