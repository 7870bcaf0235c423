#pragma once

#include <string>
#include <string_view>

#include "core/calendar.h"

/// Wording that the reports share.
namespace veraqua {

/// "mm-dd-yy", or `none` where the day isn't known.
std::string ReportDate(JulianValue day, std::string_view none = {});

/// An amount of irrigation as the grower sets it: "1.69 inches", in hundredths, or "43 mm".
std::string IrrigationAmount(int millimetres, bool english);

/// `line` with blanks for tabs, which reach to the next multiple of eight columns.
std::string WithoutTabs(std::string_view line);

/// A cell of a table: `value` is rounded to one part of `perUnit`, halves to even, before it is put into its mask.
std::string RoundedCell(double value, double perUnit, std::string_view mask);

}  // namespace veraqua
