#include "core/calendar.h"

#include <array>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "tests/support/script_ask.h"

namespace veraqua {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view BadForm = "Please enter a date (greater than 1900) formated like: MM/DD/YYYY";

/// Days of the months of `year`, which lies between 1601 and 2399.
std::array<int, 12> MonthsOf(int year) {
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year == 2000);
    return {31, leap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
}

/// The longest stretch that a season can lie in, counted by hand: each day one more than the one before it, from
/// 1 January 1800, which lies 100 years with 24 leap days before 01-01-1900.
TEST(Calendar, EveryDayFrom1800To2300IsOneMoreThanTheDayBeforeAndGivesItsDateBack) {
    JulianValue expected = 693902 - 36524;
    for (int year = 1800; year <= 2300; ++year) {
        const std::array<int, 12> lengths = MonthsOf(year);
        int dayOfYear = 0;
        for (int month = 1; month <= 12; ++month) {
            for (int day = 1; day <= lengths.at(static_cast<std::size_t>(month - 1)); ++day, ++expected) {
                ++dayOfYear;
                ASSERT_EQ(JulianFromDate(month, day, year), expected) << month << '-' << day << '-' << year;
                ASSERT_EQ(DateFromJulian(expected), (Date{month, day, year})) << expected;
                ASSERT_EQ(DayOfYearFromJulian(expected), (DayInYear{dayOfYear, year})) << expected;
                ASSERT_EQ(JulianFromDayOfYear(dayOfYear, year), expected);
            }
        }
        ASSERT_EQ(DaysInYear(year), dayOfYear);
        ASSERT_EQ(LeapYear(year), dayOfYear == 366) << year;
    }
    EXPECT_EQ(expected, JulianFromDate(1, 1, 2301));
}

TEST(Calendar, KnownDaysAndTexts) {
    EXPECT_EQ(JulianFromDate(3, 1, 0), 1);
    EXPECT_EQ(JulianFromDate(12, 31, 2000), 730791);
    EXPECT_EQ(JulianFromDayOfYear(366, 2001), JulianFromDate(1, 1, 2002)) << "the day of year runs on";
    EXPECT_EQ(JulianToLongText(JulianFromDate(3, 7, 2003)), "03-07-2003");
    EXPECT_EQ(JulianToShortText(JulianFromDate(12, 31, 1999)), "12-31-99");
    EXPECT_EQ(JulianToLongText(JulianFromDate(10, 1, 12003)), "10-01-2003") << "the last four digits of the year";
    EXPECT_EQ(YearSuffix(2000), "00");
}

TEST(TypedDates, Accepted) {
    // 303 cycles of 400 years after 2000, then 256 years with 62 leap days.
    constexpr JulianValue firstOf123456 = 730426 + 303 * 146097 + 256 * 365 + 62;
    // A further field overwrites the day; an empty one leaves the month open, or the day to the next. The whole year
    // counts, its end is shown. What is no digit counts as a 0, and characters are counted, not bytes.
    for (const auto& [typed, longText, julian] : std::vector<std::tuple<std::string, std::string, JulianValue>>{
             {"3/7/2001", "03-07-2001", JulianFromDate(3, 7, 2001)},
             {"3\t7+2001", "03-07-2001", JulianFromDate(3, 7, 2001)},
             {"1/1/1900", "01-01-1900", 693902},
             {"02-29-2000", "02-29-2000", JulianFromDate(2, 29, 2000)},
             {"1/2/3/2000", "01-03-2000", JulianFromDate(1, 3, 2000)},
             {"/1/2/2000", "01-02-2000", JulianFromDate(1, 2, 2000)},
             {"1//2/2000", "01-02-2000", JulianFromDate(1, 2, 2000)},
             {"1/1/123456", "01-01-3456", firstOf123456},
             {"1:/1/2000", "10-01-2000", JulianFromDate(10, 1, 2000)},
             {"1水/01/2000", "10-01-2000", JulianFromDate(10, 1, 2000)}}) {
        ScriptAsk user;
        std::string text = typed;
        EXPECT_EQ(ValidateDate(user, text), julian) << typed;
        EXPECT_EQ(text, longText) << typed;
        EXPECT_THAT(user.Told, IsEmpty()) << typed;
    }
}

TEST(TypedDates, Refused) {
    constexpr std::string_view badMonth = "Enter a month between 1 and 12.";
    constexpr std::string_view badDay = "Enter a day between 1 and 31.";
    constexpr std::string_view shortMonth = "This month only has 30 days.";
    // The caller takes blanks away. The year is what follows the last separator, and is looked at first.
    for (const auto& [typed, reason] :
         std::vector<std::pair<std::string, std::string_view>>{{"", BadForm},
                                                               {"1/1/200", BadForm},
                                                               {"12/31/20011", BadForm},
                                                               {" 12/31/2001", BadForm},
                                                               {"é/1/200", BadForm},
                                                               {"12-31-99", BadForm},
                                                               {"12/31/1899", BadForm},
                                                               {"1/1/2000/", BadForm},
                                                               {"January!", BadForm},
                                                               {"13/32/1899", BadForm},
                                                               {"13/32/2000", badMonth},
                                                               {"00/00/2000", badMonth},
                                                               {"9999999999", badMonth},
                                                               {"0/1/2000", badDay},
                                                               {"1/0/2000", badDay},
                                                               {"2/32/2001", badDay},
                                                               {"02-30-2000", "February only has 29 days."},
                                                               {"02-29-1900", "February only has 28 days."},
                                                               {"4/31/2001", shortMonth},
                                                               {"6/31/2001", shortMonth},
                                                               {"9/31/2001", shortMonth},
                                                               {"11/31/2001", shortMonth}}) {
        ScriptAsk user;
        std::string text = typed;
        EXPECT_EQ(ValidateDate(user, text), 0) << typed;
        EXPECT_EQ(text, typed);
        EXPECT_THAT(user.Told, ElementsAre(ScriptAsk::Message{std::string(reason), "Date input error"})) << typed;
    }
}

}  // namespace

}  // namespace veraqua
