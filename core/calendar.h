#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Dates in their four forms: the Julian Value (a day count, the only form that is stored and compared), the long text
/// "mm-dd-yyyy", the short text "mm-dd-yy", and day of year plus year, the key of a weather record.
namespace veraqua {

/// Day number of the proleptic Gregorian calendar, day 1 being 1 March of year 0 (01-01-2000 is 730426). Consecutive
/// days differ by 1. 0 means no date.
using JulianValue = std::int32_t;

/// No typed date comes near this, and day arithmetic up to it can't overflow: a later day in a file is damage.
constexpr JulianValue LatestPossibleDay = 400'000'000;

/// Whether a file may hold `day`; 0 is no date.
constexpr bool IsPossibleDay(JulianValue day) { return day >= 0 && day <= LatestPossibleDay; }

struct Date {
    int Month = 0;
    int Day = 0;
    int Year = 0;

    bool operator==(const Date&) const = default;
};

struct DayInYear {
    int DayOfYear = 0;
    int Year = 0;

    bool operator==(const DayInYear&) const = default;
};

/// The days from `From` through `To`; none where `To` lies before `From`.
struct DayRange {
    JulianValue From = 0;
    JulianValue To = 0;

    bool operator==(const DayRange&) const = default;
};

namespace calendar_detail {

constexpr std::int64_t FloorDivide(std::int64_t a, std::int64_t b) {
    return a / b - (a % b != 0 && (a < 0) != (b < 0));
}

/// Whole days of `year` years of 365.25 days.
constexpr std::int64_t DaysOfYears(std::int64_t year) { return FloorDivide(1461 * year, 4); }

/// How far the century rule has put the count back by `year`: three leap days in four centuries are left out.
constexpr std::int64_t CenturyDays(std::int64_t year) { return FloorDivide(year, 100) - FloorDivide(year, 400); }

/// Whole days of `month` months of 30.6 days, counted from a March that is month 4.
constexpr std::int64_t DaysOfMonths(std::int64_t month) { return FloorDivide(153 * month, 5); }

}  // namespace calendar_detail

constexpr bool LeapYear(std::int64_t year) {
    if (year % 400 == 0) return true;
    if (year % 100 == 0) return false;
    return year % 4 == 0;
}

/// Month 1 to 12 and a full year such as 2003. Nothing is checked.
constexpr JulianValue JulianFromDate(int month, int day, std::int64_t year) {
    using namespace calendar_detail;
    std::int64_t m = month + 1;
    if (m < 4) {
        m += 12;
        --year;
    }
    return static_cast<JulianValue>(day + DaysOfMonths(m) + DaysOfYears(year) - CenturyDays(year) - 122);
}

constexpr Date DateFromJulian(JulianValue julian) {
    using namespace calendar_detail;
    const std::int64_t days = std::int64_t{julian} + 122;
    // A first estimate of the year leaves the century days out; at most one correction follows.
    const std::int64_t estimate = FloorDivide(4 * days, 1461);
    std::int64_t corrected = days + CenturyDays(estimate);
    std::int64_t year = FloorDivide(4 * corrected, 1461);
    if (year != estimate) corrected = days + CenturyDays(year);
    std::int64_t dayOfYears = corrected - DaysOfYears(year);
    // In whole numbers: in floating point the 31st of March, August and January would come out as day 0.
    std::int64_t month = FloorDivide(5 * dayOfYears - 1, 153);
    if (month < 4) {
        --year;
        dayOfYears = days + CenturyDays(year) - DaysOfYears(year);
        month = FloorDivide(5 * dayOfYears - 1, 153);
    }
    Date date{static_cast<int>(month - 1), static_cast<int>(dayOfYears - DaysOfMonths(month)), static_cast<int>(year)};
    if (date.Month > 12) {
        date.Month -= 12;
        ++date.Year;
    }
    return date;
}

/// A day of year beyond the year's end runs on into the next year.
constexpr JulianValue JulianFromDayOfYear(int dayOfYear, std::int64_t year) {
    return dayOfYear + JulianFromDate(1, 1, year) - 1;
}

constexpr DayInYear DayOfYearFromJulian(JulianValue julian) {
    const int year = DateFromJulian(julian).Year;
    return {julian - JulianFromDate(1, 1, year) + 1, year};
}

constexpr int YearOf(JulianValue julian) { return DateFromJulian(julian).Year; }

constexpr int DaysInYear(int year) { return LeapYear(year) ? 366 : 365; }

/// "mm-dd-yyyy", with the last four digits of the year.
std::string JulianToLongText(JulianValue julian);

/// "mm-dd-yy". For display only: `ValidateDate` refuses a year of two digits.
std::string JulianToShortText(JulianValue julian);

/// The last two digits of `year`, as file names of weather carry them.
std::string YearSuffix(int year);

/// What a typed date comes to.
struct TypedDate {
    JulianValue Julian = 0;   ///< 0 if the text was refused
    std::string LongText;     ///< the long date text if it was accepted
    std::string_view Reason;  ///< what to tell the user if it was refused
};

/// Reads a date as the user types it: month, day and year with any separators whose code is below "0". A character that
/// is no digit counts as a digit 0; a fourth number overwrites the day; a year below 1900 is refused, so two digits
/// are. `text` comes without blanks around it. `ask.h` has `ValidateDate`, which tells the user the reason.
TypedDate ReadTypedDate(std::string_view text);

/// Whether `text` is a real calendar day: month, day and a year of 1 to 4 digits, with blanks, "-", "/" or "." between
/// them. What `ReadTypedDate` then makes of it is another question.
bool IsCalendarDay(std::string_view text);

static_assert(JulianFromDate(1, 1, 1900) == 693902);
static_assert(JulianFromDate(1, 1, 2000) == 730426);
static_assert(JulianFromDate(12, 31, 2000) == 730791);
static_assert(DateFromJulian(JulianFromDate(3, 31, 2000)) == Date{3, 31, 2000});
static_assert(DayOfYearFromJulian(JulianFromDate(12, 31, 2000)) == DayInYear{366, 2000});

}  // namespace veraqua
