#include "core/calendar.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "tests/support/script_ask.h"

namespace veraqua {
namespace {

/// The longest stretch that a season can lie in, counted by hand: each day one more than the one before it, from
/// 1 January 1800, which lies 100 years with 24 leap days before 01-01-1900.
TEST(Calendar, EveryDayFrom1800To2300IsOneMoreThanTheDayBeforeAndGivesItsDateBack) {
    JulianValue expected = 693902 - 36524;
    for (int year = 1800; year <= 2300; ++year) {
        const bool leap = year % 4 == 0 && (year % 100 != 0 || year == 2000);
        int dayOfYear = 0;
        int month = 0;
        for (const int length : {31, leap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31}) {
            ++month;
            for (int day = 1; day <= length; ++day, ++expected) {
                ++dayOfYear;
                ASSERT_EQ(JulianFromDate(month, day, year), expected) << month << '-' << day << '-' << year;
                ASSERT_EQ(DateFromJulian(expected), (Date{month, day, year})) << expected;
                ASSERT_EQ(DayOfYearFromJulian(expected), (DayInYear{dayOfYear, year})) << expected;
                ASSERT_EQ(JulianFromDayOfYear(dayOfYear, year), expected);
            }
        }
        ASSERT_EQ(DaysInYear(year), dayOfYear);
    }
    EXPECT_EQ(JulianToLongText(JulianFromDate(3, 7, 2003)), "03-07-2003");
    EXPECT_EQ(JulianToShortText(JulianFromDate(12, 31, 1999)), "12-31-99");
}

/// A further field overwrites the day, an empty one leaves the month open or the day to the next; what is no digit
/// counts as a 0. The caller takes blanks away. The year is what follows the last separator, and is looked at first.
TEST(Calendar, ATypedDateIsTakenOrRefusedWithItsReason) {
    const auto validate = [](std::string text) {
        ScriptAsk user;
        const JulianValue julian = ValidateDate(user, text);
        EXPECT_EQ(user.Told.empty(), julian != 0);
        return julian != 0 ? text : user.Told.at(0).Title + ": " + user.Told.at(0).Text;
    };
    const std::string error = "Date input error: ";
    using Typed = std::vector<std::string>;
    for (const auto& [result, typed] : std::vector<std::pair<std::string, Typed>>{
             {"03-07-2001", {"3/7/2001", "3\t7+2001"}},
             {"01-01-1900", {"1/1/1900"}},
             {"02-29-2000", {"02-29-2000"}},
             {"01-02-2000", {"/1/2/2000", "1//2/2000", "1/9/2/2000"}},
             {"10-01-2000", {"1:/1/2000", "1水/01/2000"}},
             {error + "Please enter a date (greater than 1900) formated like: MM/DD/YYYY",
              {"", "1/1/200", " 12/31/2001", "é/1/200", "12-31-99", "12/31/1899", "1/1/2000/", "January!",
               "13/32/1899"}},
             {error + "Enter a month between 1 and 12.", {"13/32/2000", "00/00/2000", "9999999999"}},
             {error + "Enter a day between 1 and 31.", {"0/1/2000", "1/0/2000", "2/32/2001"}},
             {error + "February only has 29 days.", {"02-30-2000"}},
             {error + "February only has 28 days.", {"02-29-1900"}},
             {error + "This month only has 30 days.", {"4/31/2001", "6/31/2001", "9/31/2001", "11/31/2001"}}})
        for (const std::string& text : typed) EXPECT_EQ(validate(text), result) << text;
}

}  // namespace
}  // namespace veraqua
