#pragma once

#include <string>
#include <string_view>

#include "core/calendar.h"

/// Wording that the reports share.
namespace veraqua {

/// "mm-dd-yy", or `none` where the day isn't known.
std::string ReportDate(JulianValue day, std::string_view none = {});

/// "2003-05-04", for other programs.
std::string IsoDate(JulianValue day);

/// Water in the printed schedule: "01.69 in." of `inches`, or "043.00 mm".
std::string PrintedWater(double inches, int millimetres, bool english);

/// `line` with blanks for tabs, which reach to the next multiple of eight columns.
std::string WithoutTabs(std::string_view line);

/// A cell of a table: `value` is rounded to one part of `perUnit`, halves to even, before it is put into its mask.
std::string RoundedCell(double value, double perUnit, std::string_view mask);

}  // namespace veraqua
