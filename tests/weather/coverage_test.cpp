#include "weather/coverage.h"

#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "data/embedded.h"
#include "tests/support/builders.h"
#include "tests/support/data_directory.h"

namespace veraqua {
namespace {

using CoverageTest = DirectoryTest;

TEST_F(CoverageTest, IsDecidedByTheFirstYearThatIsNotComplete) {
    Directory.Put("weathdef.dat", EmbeddedFile("weathdef.dat"));
    const JulianValue july15 = JulianFromDate(7, 15, 2003);  // day 196
    struct Row {
        const char* Case;
        std::vector<std::pair<int, int>> Files;  ///< year and days in it
        int StartYear;
        JulianValue Last, Today;
    };
    for (const Row& row :
         {Row{"no file", {}, 2003, JulianFromDate(12, 31, 2002), july15},
          {"through yesterday", {{2003, 195}}, 2003, JulianFromDate(7, 14, 2003), july15},
          {"a whole year, on the first day of the next",
           {{2002, 365}},
           2002,
           JulianFromDate(12, 31, 2002),
           JulianFromDate(1, 1, 2003)},
          {"a hole in the year before",
           {{2001, 365}, {2002, 151}, {2003, 195}},
           2001,
           JulianFromDate(5, 31, 2002),
           july15},
          {"365 days of a leap year", {{2000, 365}, {2001, 365}}, 2000, JulianFromDate(12, 30, 2000), july15}}) {
        SCOPED_TRACE(row.Case);
        for (const std::string& name : files::Names())
            if (name != "weathdef.dat") Directory.Delete(name);
        Directory.Reopen();
        // Behind the last whole record stands a broken one.
        for (const auto& [year, days] : row.Files)
            Directory.Put("weather06." + YearSuffix(year), AWeatherYear("06", year).Through(days).Bytes() + "broken");
        State.StationCode = "06";
        User.Today = State.TodayJulian = row.Today;
        const bool isCurrent = row.Last >= row.Today - 1;
        const Coverage coverage = FindCoverage(User, row.StartYear);
        EXPECT_EQ(coverage.Reach, isCurrent ? Coverage::Kind::Current : Coverage::Kind::WeatherNeeded);
        EXPECT_EQ(coverage.LastDay, row.Last);
        EXPECT_EQ(coverage.Needed, isCurrent ? DayRange{} : (DayRange{row.Last + 1, row.Today - 1}));
        EXPECT_EQ(State.WeatherLastJulian, row.Last);
        EXPECT_TRUE(isCurrent || State.WeatherNeedFrom == row.Last + 1);
    }
}

}  // namespace
}  // namespace veraqua
