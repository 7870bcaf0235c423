#include "weather/coverage.h"

#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "data/embedded.h"
#include "tests/support/builders.h"
#include "tests/support/data_directory.h"

namespace veraqua {
namespace {

/// Weather through `Last`, from files with so many days by the year.
struct CoverageCase {
    const char* Name;
    std::vector<std::pair<int, int>> Files;
    int StartYear;
    JulianValue Last;
    JulianValue Today = JulianFromDate(7, 15, 2003);  ///< day 196
};

struct CoverageTest : DirectoryTest {
    CoverageTest() { Directory.Put("weathdef.dat", EmbeddedFile("weathdef.dat")); }

    Coverage Find(int startYear, JulianValue today) {
        User.Today = State.TodayJulian = today;
        return FindCoverage(User, startYear);
    }
};

struct CoverageOf : CoverageTest, testing::WithParamInterface<CoverageCase> {};

INSTANTIATE_TEST_SUITE_P(
    Typical, CoverageOf,
    testing::Values(
        CoverageCase{"NoFileAtAll", {}, 2003, JulianFromDate(12, 31, 2002)},
        CoverageCase{"AnEmptyFile", {{2003, 0}}, 2003, JulianFromDate(12, 31, 2002)},
        CoverageCase{"ThroughYesterday", {{2003, 195}}, 2003, JulianFromDate(7, 14, 2003)},
        CoverageCase{"ThroughTheDayBeforeYesterday", {{2003, 194}}, 2003, JulianFromDate(7, 13, 2003)},
        CoverageCase{"BeyondToday", {{2003, 250}}, 2003, JulianFromDayOfYear(250, 2003)},
        CoverageCase{"AllOfThisYear", {{2003, 365}}, 2003, JulianFromDate(12, 31, 2003)},
        CoverageCase{"OnNewYearsDay", {{2002, 365}}, 2002, JulianFromDate(12, 31, 2002), JulianFromDate(1, 1, 2003)},
        CoverageCase{"AHoleInAnOlderYear", {{2001, 365}, {2002, 151}, {2003, 195}}, 2001, JulianFromDate(5, 31, 2002)},
        CoverageCase{"AnOlderYearWithoutFile", {{2001, 365}, {2003, 195}}, 2001, JulianFromDate(12, 31, 2001)},
        CoverageCase{"ALeapYearWithoutItsLastDay", {{2000, 365}, {2001, 365}}, 2000, JulianFromDate(12, 30, 2000)},
        CoverageCase{"AHoleBeforeTheStart", {{2002, 10}, {2003, 195}}, 2003, JulianFromDate(7, 14, 2003)},
        CoverageCase{"AStartAfterThisYear", {}, 2004, JulianFromDate(12, 31, 2003)}),
    [](const auto& row) { return row.param.Name; });

TEST_P(CoverageOf, IsDecidedByTheFirstYearThatIsNotComplete) {
    const CoverageCase& c = GetParam();
    // Behind the last whole record stands a broken one.
    for (const auto& [year, days] : c.Files)
        Directory.Put("weather06." + YearSuffix(year), AWeatherYear("06", year).Through(days).Bytes() + "broken");
    State.StationCode = "06";
    State.DownloadFailed = State.ReportCancelled = true;
    State.WeatherNeedFrom = State.WeatherNeedTo = 77;
    const bool isCurrent = c.Last >= c.Today - 1;
    EXPECT_EQ(Find(c.StartYear, c.Today), isCurrent ? Coverage::Current : Coverage::WeatherNeeded);
    EXPECT_EQ(State.WeatherLastJulian, c.Last);
    EXPECT_EQ(State.WeatherNeedFrom, isCurrent ? 77 : c.Last + 1);
    EXPECT_EQ(State.WeatherNeedTo, isCurrent ? 77 : c.Today - 1);
    EXPECT_FALSE(State.DownloadFailed);
    EXPECT_FALSE(State.ReportCancelled);
    for (int year = c.StartYear; year <= 2003; ++year)
        EXPECT_TRUE(Directory.Has("weather06." + YearSuffix(year))) << year;  // made by looking
}

TEST_F(CoverageTest, AStationWithoutARegionTakesTheFirstDefaultWeather) {
    State.StationCode = "06";
    Find(2003, JulianFromDate(7, 15, 2003));
    const WeatherCoefficients first = State.WeatherCoeff;
    State.StationCode = "08";
    Find(2003, JulianFromDate(7, 15, 2003));
    EXPECT_NE(State.WeatherCoeff, first);
    State.StationCode = "00";
    Find(2003, JulianFromDate(7, 15, 2003));
    EXPECT_EQ(State.WeatherCoeff, first);
}

TEST_F(CoverageTest, ARegionThatIsMissingIsNotWorkedOut) {
    Directory.Put("weathdef.dat", "0, 0\n");
    State.StationCode = "06";
    State.WeatherLastJulian = 5;
    EXPECT_EQ(Find(2003, JulianFromDate(7, 15, 2003)), Coverage::RegionMissing);
    EXPECT_TRUE(State.DownloadFailed);
    EXPECT_EQ(State.WeatherLastJulian, 5);
    EXPECT_FALSE(Directory.Has("weather06.03"));
}

}  // namespace
}  // namespace veraqua
