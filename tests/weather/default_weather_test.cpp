#include "weather/default_weather.h"

#include <functional>
#include <map>
#include <string>

#include <fmt/format.h>
#include <gmock/gmock.h>

#include "tests/support/builders.h"
#include "tests/support/data_directory.h"
#include "tests/support/failure.h"
#include "weather/default_days.h"
#include "weather/weather_file.h"

namespace veraqua {
namespace {

// On day 73 of 365, 72 degrees round: cosine and sine of it .309017, .951057, of twice the angle -.809017, .587785, of
// three times -.809017, -.587785. With five decimals of pi and a single angle, day 365 is at 6.2831802 where the
// circle has 6.2831853, and sin(-.00000507) * 1000 = -.00507.
TEST(HarmonicValue, AddsCosineAndSineOfEachHarmonicInTurn) {
    WeatherCoefficients coefficients{};
    coefficients[3] = {1, 2, 3, 4, 5, 6, 7};
    EXPECT_NEAR(HarmonicValue(coefficients, 3, 73), -4.794540, 1e-4);
    coefficients[3] = {0, 0, 1000, 0, 0, 0, 0};
    EXPECT_NEAR(HarmonicValue(coefficients, 3, 365), -0.00507, 1e-5);
}

// As the list of default-weather regions has them. Every other code has none.
TEST(RegionOfStation, IsThatOfTheList) {
    std::map<std::string, std::string, std::less<>> stations;
    for (int code = 0; code < 100; ++code)
        if (const auto region = RegionOfStation(fmt::format("{:02}", code)); !region.empty())
            stations[std::string(region)] += fmt::format(" {}", code);
    using testing::Pair;
    EXPECT_THAT(stations,
                testing::ElementsAre(Pair("BRESKIN", " 4 5 9 22 33"), Pair("DUNMER", " 8 23"), Pair("KALVIS", " 20"),
                                     Pair("SORA VALLEY", " 2 3 14 24"), Pair("TELMORAN", " 1 6 7 10 11 13 16 19 26"),
                                     Pair("TORV", " 12 15 21")));
}

using DefaultWeatherTest = DirectoryTest;

TEST_F(DefaultWeatherTest, ReadsTheBlockWhoseHeaderHoldsTheRegionOrTheFirst) {
    const auto block = [](const std::string& header, int first) {  // coefficients count up from `first`
        std::string text = header + "\n39.5, 1338\n";
        for (int i = 0; i < 56; ++i) text += std::to_string(first + i) + (i % 7 == 6 ? "\n" : ", ");
        return text;
    };
    const std::string regions =
        "2, 1\nArvendale\nBrannock Ford\nA note\n" + block("Region TELMORAN, warm", 100) + block("DUNMER", 200);
    Directory.Put("weathdef.dat", regions);
    ASSERT_TRUE(LoadWeatherCoefficients(User, RegionOfStation("08")));
    EXPECT_EQ(State.WeatherCoeff[7][6], 255);
    ASSERT_TRUE(LoadWeatherCoefficients(User, RegionOfStation("00")));
    EXPECT_EQ(State.WeatherCoeff[7][6], 155);
    EXPECT_FALSE(LoadWeatherCoefficients(User, RegionOfStation("20")));
    EXPECT_EQ(State.WeatherCoeff[7][6], 155);
    Directory.Put("weathdef.dat", regions.substr(0, regions.size() - 6));
    EXPECT_FAILURE(LoadWeatherCoefficients(User, "DUNMER"), testing::HasSubstr("weathdef.dat"));
}

TEST_F(DefaultWeatherTest, FillsTheRangeOverTheTurnOfTheYearAndKeepsWhatFollowsIt) {
    AWeatherYear("06", 2005).Through(8).Store();
    State.StationCode = "06";
    State.WeatherCoeff[7] = {4, 1, 0, 0, 0, 0, 0};  // reference evapotranspiration, mm
    WriteDefaultWeather({JulianFromDayOfYear(361, 2004), JulianFromDayOfYear(3, 2005)});
    const WeatherFile before("06", 2004);
    const WeatherFile after("06", 2005);
    EXPECT_EQ(before.Days(), 366);
    for (int day = 1; day <= 366; ++day)
        EXPECT_EQ(before.Day(day), DefaultDay(State.WeatherCoeff, day));  // the gap too
    for (int day = 1; day <= 3; ++day) EXPECT_EQ(after.Day(day), DefaultDay(State.WeatherCoeff, day));
    EXPECT_EQ(after.Day(4).Source.Text(), "kesta");
    const auto defaultDays = [](int from, int through) {
        return DefaultDaysBefore("06", JulianFromDayOfYear(from, 2004), JulianFromDayOfYear(through, 2005));
    };
    EXPECT_EQ(defaultDays(300, 3), 67 + 3);  // 66 days are left in the leap year after its 300th
    EXPECT_EQ(defaultDays(300, 4), 0);
}

}  // namespace
}  // namespace veraqua
