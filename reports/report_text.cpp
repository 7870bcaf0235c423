#include "reports/report_text.h"

#include <fmt/format.h>

#include "core/base/numbers.h"

namespace veraqua {

std::string ReportDate(JulianValue day, std::string_view none) {
    return day == 0 ? std::string(none) : JulianToShortText(day);
}

std::string IsoDate(JulianValue day) {
    const Date date = DateFromJulian(day);
    return fmt::format("{:04}-{:02}-{:02}", date.Year, date.Month, date.Day);
}

std::string PrintedWater(double inches, int millimetres, bool english) {
    return english ? Masked(inches, "00.00") + " in." : Masked(static_cast<double>(millimetres), "000.00") + " mm";
}

std::string WithoutTabs(std::string_view line) {
    std::string text;
    for (const char c : line) c == '\t' ? text.append(8 - text.size() % 8, ' ') : text.append(1, c);
    return text;
}

std::string RoundedCell(double value, double perUnit, std::string_view mask) {
    return Masked(RoundedTo(value, perUnit), mask);
}

}  // namespace veraqua
