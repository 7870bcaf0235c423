#pragma once

#include <optional>
#include <string_view>

#include "core/ask.h"
#include "core/calendar.h"
#include "core/records.h"

/// Weather where none was measured: each member of a day is a three-harmonic Fourier series of the day of the year,
/// with coefficients per region from weathdef.dat.
namespace veraqua {

/// `Source` of a synthesised day.
constexpr std::string_view DefaultSource = "default";

/// The series of row `row` (0 `TempMax` to 7 `ReferenceET`) on `dayOfYear`, in the member's unit. Nothing is clipped.
float HarmonicValue(const WeatherCoefficients& coefficients, int row, int dayOfYear);

/// A whole day of default weather.
WeatherDay DefaultDay(const WeatherCoefficients& coefficients, int dayOfYear);

/// Ratio of day wind to night wind of a measured day: the network's text has none.
float DefaultDayNightRatio(const WeatherCoefficients& coefficients, int dayOfYear);

/// Default-weather region of a station by its two-digit code, as the weather check and the season runs take it; empty
/// for a station of no region.
std::string_view RegionOfStation(std::string_view stationCode);

/// The first block of weathdef.dat whose header line holds `region`; without a region, the first block. Nothing if
/// there is none. RunTimeFailure if the file is missing or short, or a number doesn't parse.
std::optional<WeatherCoefficients> WeatherCoefficientsOf(std::string_view region);

/// Loads `WeatherCoeff` with those of `region`. False if there are none, after the user has been told: no field may run
/// on foreign weather then, and `DownloadFailed` is true.
bool LoadWeatherCoefficients(Ask& ask, std::string_view region);

/// Writes default weather for `range` into the files of the station in work, over whatever stands there. Records past
/// the range stay; without a day in it, the file of its first year is made if there is none.
void WriteDefaultWeather(const DayRange& range);

}  // namespace veraqua
