#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "core/records.h"

/// The eight numbers of a day of weather as the user sees them.
namespace veraqua {

/// The rows in their order on the weather windows.
enum class DayRow { TempMax, TempMin, HumidityMax, HumidityMin, Wind, DayNightRatio, Radiation, ReferenceET };

constexpr std::array AllDayRows{DayRow::TempMax, DayRow::TempMin,       DayRow::HumidityMax, DayRow::HumidityMin,
                                DayRow::Wind,    DayRow::DayNightRatio, DayRow::Radiation,   DayRow::ReferenceET};

constexpr std::size_t IndexOf(DayRow row) { return static_cast<std::size_t>(row); }

/// What stands before the number, with its unit: degrees, percent, mph or km per hour, langleys or MJ per square metre,
/// inches or mm.
std::string_view LabelOf(DayRow row, bool english);

/// The number by `mask`, in these units.
std::string TextOf(const WeatherDay& day, DayRow row, bool english, std::string_view mask);

/// The same for a window. A number that was not measured, and the reference ET that came of it, is `missing` there, not
/// the mark that stands for it.
std::string TextOrMissing(const WeatherDay& day, DayRow row, bool english, std::string_view mask,
                          std::string_view missing);

/// Puts into `day` what the user has entered in these units. RunTimeFailure if it doesn't fit a single.
void Enter(WeatherDay& day, DayRow row, double entered, bool english);

}  // namespace veraqua
