#include "core/calendar.h"

#include <algorithm>

#include <fmt/format.h>

namespace veraqua {

namespace {

constexpr std::string_view DateSeparators = " -/.";

constexpr std::string_view BadForm = "Please enter a date (greater than 1900) formated like: MM/DD/YYYY";

std::string LongText(std::int64_t month, std::int64_t day, std::int64_t year) {
    return fmt::format("{:02}-{:02}-{:04}", month, day, year % 10000);
}

/// The second and later bytes of a UTF-8 character.
bool Continues(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

/// The numbers of a typed date, in the order month, day, year.
struct DateNumbers {
    std::int64_t Month = 0;
    std::int64_t Day = 0;
    std::int64_t Year = 0;
};

DateNumbers Scan(std::string_view text) {
    DateNumbers numbers;
    std::int64_t current = 0;
    for (const char c : text) {
        if (Continues(c)) continue;
        const auto code = static_cast<unsigned char>(c);
        if (code < '0') {
            (numbers.Month > 0 ? numbers.Day : numbers.Month) = current;
            current = 0;
        } else {
            current = current * 10 + (code <= '9' ? code - '0' : 0);
        }
    }
    numbers.Year = current;
    return numbers;
}

/// Nothing if the numbers are a day of the calendar.
std::string_view WhyNoDate(const DateNumbers& date) {
    if (date.Year < 1900) return BadForm;
    if (date.Month < 1 || date.Month > 12) return "Enter a month between 1 and 12.";
    if (date.Day < 1 || date.Day > 31) return "Enter a day between 1 and 31.";
    if (date.Month == 2) {
        if (LeapYear(date.Year)) return date.Day > 29 ? "February only has 29 days." : "";
        if (date.Day > 28) return "February only has 28 days.";
    }
    const bool shortMonth = date.Month == 4 || date.Month == 6 || date.Month == 9 || date.Month == 11;
    if (shortMonth && date.Day > 30) return "This month only has 30 days.";
    return {};
}

/// Takes a number of 1 to `mostDigits` digits, and the separators behind it, off the front of `text`; -1 if none is
/// there.
int TakeNumber(std::string_view& text, std::size_t mostDigits) {
    const std::size_t digits = std::min(text.find_first_not_of("0123456789"), text.size());
    if (digits == 0 || digits > mostDigits) return -1;
    int number = 0;
    for (const char c : text.substr(0, digits)) number = number * 10 + (c - '0');
    text.remove_prefix(digits);
    text.remove_prefix(std::min(text.find_first_not_of(DateSeparators), text.size()));
    return number;
}

}  // namespace

std::string JulianToLongText(JulianValue julian) {
    const Date date = DateFromJulian(julian);
    return LongText(date.Month, date.Day, date.Year);
}

std::string JulianToShortText(JulianValue julian) {
    const Date date = DateFromJulian(julian);
    return fmt::format("{:02}-{:02}-{}", date.Month, date.Day, YearSuffix(date.Year));
}

std::string YearSuffix(int year) { return fmt::format("{:02}", year % 100); }

TypedDate ReadTypedDate(std::string_view text) {
    const auto characters = std::count_if(text.begin(), text.end(), [](char c) { return !Continues(c); });
    if (characters < 8 || characters > 10) return {0, {}, BadForm};
    const DateNumbers date = Scan(text);
    const std::string_view reason = WhyNoDate(date);
    if (!reason.empty()) return {0, {}, reason};
    return {JulianFromDate(static_cast<int>(date.Month), static_cast<int>(date.Day), date.Year),
            LongText(date.Month, date.Day, date.Year),
            {}};
}

bool IsCalendarDay(std::string_view text) {
    if (text.find_last_not_of(DateSeparators) + 1 != text.size()) return false;
    const int month = TakeNumber(text, 2);
    const int day = TakeNumber(text, 2);
    const int year = TakeNumber(text, 4);
    if (month < 1 || month > 12 || day < 1 || year < 0 || !text.empty()) return false;
    return DateFromJulian(JulianFromDate(month, day, year)) == Date{month, day, year};
}

}  // namespace veraqua
