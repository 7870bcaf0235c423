#include "reports/report_text.h"

#include "core/numbers.h"

namespace veraqua {

std::string ReportDate(JulianValue day, std::string_view none) {
    return day == 0 ? std::string(none) : JulianToShortText(day);
}

std::string IrrigationAmount(int millimetres, bool english) {
    return english ? Plain(HundredthsOfInches(millimetres)) + " inches" : Plain(millimetres) + " mm";
}

std::string RoundedCell(double value, double perUnit, std::string_view mask) {
    return Masked(RoundedTo(value, perUnit), mask);
}

}  // namespace veraqua
