#pragma once

#include <string_view>

#include "core/calendar.h"
#include "core/records.h"

namespace veraqua {

/// How many days up to and with `through` stand on default weather, back to the latest day with other weather or to
/// `from`. RunTimeFailure if a number in the weather files isn't finite.
int DefaultDaysBefore(std::string_view stationCode, JulianValue from, JulianValue through);

/// Of the days that a field with this header was run with.
int DefaultDaysBefore(const HeaderCommon& header, JulianValue through);

/// How many days of `range` a station has that aren't default weather: measured, or entered by hand.
int MeasuredDays(std::string_view stationCode, const DayRange& range);

}  // namespace veraqua
