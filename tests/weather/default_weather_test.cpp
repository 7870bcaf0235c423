#include "weather/default_weather.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "tests/support/builders.h"
#include "tests/support/data_directory.h"
#include "tests/support/failure.h"
#include "weather/weather_file.h"

namespace veraqua {
namespace {

using testing::HasSubstr;

// On day 73 of 365, 72 degrees round: cosine and sine of it .309017, .951057, of twice the angle -.809017, .587785, of
// three times -.809017, -.587785; the sum of 1 + 2 (.309017) + 3 (.951057) + ... is -4.794540.
TEST(HarmonicValue, AddsCosineAndSineOfEachHarmonicInTurn) {
    WeatherCoefficients coefficients{};
    coefficients[3] = {1, 2, 3, 4, 5, 6, 7};
    EXPECT_NEAR(HarmonicValue(coefficients, 3, 73), -4.794540, 1e-4);
    EXPECT_EQ(HarmonicValue(coefficients, 2, 73), 0);
}

// Pi of five decimals, and the angle a single: on day 365 it is 6.2831802 where the circle has 6.2831853, and
// sin(-.00000507) * 1000 = -.00507. Without the rounding to a single it would be -.00531.
TEST(HarmonicValue, OfTheLastDayOfTheYearMissesTheWholeCircleByALittle) {
    WeatherCoefficients coefficients{};
    coefficients[0] = {0, 0, 1000, 0, 0, 0, 0};
    EXPECT_NEAR(HarmonicValue(coefficients, 0, 365), -0.00507, 1e-5);
    EXPECT_NEAR(HarmonicValue(coefficients, 0, 366), 17.208, 1e-3);  // 365 days make the circle in leap years too
}

TEST(DefaultDay, TakesARowPerMemberAndClipsNothing) {
    WeatherCoefficients coefficients{};
    for (std::size_t row = 0; row < coefficients.size(); ++row) coefficients[row][0] = static_cast<float>(row + 1);
    coefficients[3][0] = -40;  // humidity below 0
    const WeatherDay expected =
        AWeatherDay().DayOfYear(366).Temperature(2, 1).Humidity(-40, 3).Wind(5, 6).Radiation(7).ReferenceET(8).From(
            "default");
    EXPECT_EQ(DefaultDay(coefficients, 366), expected);
    EXPECT_EQ(DefaultDayNightRatio(coefficients, 10), 6);
}

struct DefaultWeatherTest : DirectoryTest {
    /// A block of weathdef.dat whose coefficients count up from `first`.
    static std::string Block(const std::string& region, int first) {
        std::string block = region + "\n39.5, 1338\n";
        for (int i = 0; i < 56; ++i) block += std::to_string(first + i) + (i % 7 == 6 ? "\n" : ", ");
        return block;
    }

    const std::string TwoRegions =
        "2, 1\nArvendale\nBrannock Ford\nA note\n" + Block("Region TELMORAN, warm", 100) + Block("DUNMER", 200);
};

TEST_F(DefaultWeatherTest, ReadsTheBlockWhoseHeaderHoldsTheRegionOrTheFirst) {
    Directory.Put("weathdef.dat", TwoRegions);
    ASSERT_TRUE(LoadWeatherCoefficients(User, RegionOfStation("08")));
    EXPECT_EQ(State.WeatherCoeff[1][0], 207);
    EXPECT_EQ(State.WeatherCoeff[7][6], 255);
    ASSERT_TRUE(LoadWeatherCoefficients(User, "TELMORAN"));
    EXPECT_EQ(State.WeatherCoeff[7][6], 155);
    State.WeatherCoeff = {};
    ASSERT_TRUE(LoadWeatherCoefficients(User, RegionOfStation("00")));
    EXPECT_EQ(State.WeatherCoeff[0][0], 100);
    EXPECT_FALSE(State.DownloadFailed);
    EXPECT_FALSE(LoadWeatherCoefficients(User, RegionOfStation("20")));
    EXPECT_EQ(State.WeatherCoeff[0][0], 100);
}

TEST_F(DefaultWeatherTest, FailsOnAFileThatIsMissingShortOrUnreadable) {
    EXPECT_FAILURE(LoadWeatherCoefficients(User, ""), HasSubstr("weathdef.dat"));
    Directory.Put("weathdef.dat", TwoRegions.substr(0, TwoRegions.size() - 6));
    EXPECT_FAILURE(LoadWeatherCoefficients(User, "DUNMER"), HasSubstr("weathdef.dat"));
    Directory.Put("weathdef.dat", "1, 0\nArvendale\nDUNMER\n39.5, high\n");
    EXPECT_FAILURE(LoadWeatherCoefficients(User, "DUNMER"), HasSubstr("\"high\""));
}

struct WriteDefaultWeatherTest : DirectoryTest {
    WriteDefaultWeatherTest() {
        State.StationCode = "06";
        State.WeatherCoeff[7] = {4, 1, 0, 0, 0, 0, 0};  // reference evapotranspiration, mm
    }

    static void Write(JulianValue from, JulianValue to) {
        State.WeatherNeedFrom = from;
        State.WeatherNeedTo = to;
        WriteDefaultWeather();
    }

    static void ExpectDefault(int year, int firstDay, int lastDay) {
        const WeatherFile file("06", year);
        for (int day = firstDay; day <= lastDay; ++day)
            EXPECT_EQ(file.Day(day), DefaultDay(State.WeatherCoeff, day)) << "day " << day << " of " << year;
    }
};

TEST_F(WriteDefaultWeatherTest, GoesOnInTheNextYearsFile) {
    Write(JulianFromDayOfYear(361, 2004), JulianFromDayOfYear(3, 2005));
    EXPECT_EQ(WeatherFile("06", 2004).Days(), 366);
    EXPECT_EQ(WeatherFile("06", 2005).Days(), 3);
    ExpectDefault(2004, 1, 366);  // the gap before it too
    ExpectDefault(2005, 1, 3);
    EXPECT_EQ(State.WeatherYearSuffix, "05");
}

TEST_F(WriteDefaultWeatherTest, KeepsWhatIsAroundTheRange) {
    AWeatherYear("06", 2003).Through(8).Store();
    Write(JulianFromDayOfYear(5, 2003), JulianFromDayOfYear(7, 2003));
    for (const int day : {4, 8}) EXPECT_EQ(WeatherFile("06", 2003).Day(day).Source.Text(), "kesta");
    ExpectDefault(2003, 5, 7);
    Write(JulianFromDayOfYear(6, 2005), JulianFromDayOfYear(5, 2005));
    EXPECT_EQ(Directory.Raw("weather06.05"), "");  // an empty range only makes the file
}

}  // namespace
}  // namespace veraqua
