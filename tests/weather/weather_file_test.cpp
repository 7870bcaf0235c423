#include "weather/weather_file.h"

#include <gmock/gmock.h>

#include "tests/support/builders.h"
#include "tests/support/bytes.h"
#include "tests/support/data_directory.h"
#include "tests/support/failure.h"

namespace veraqua {
namespace {

using testing::AllOf;
using testing::HasSubstr;

using WeatherFileTest = DirectoryTest;

/// Day 2 of a year: 30.5 and -12 degrees C, 80 and 30 %, 173 km, ratio 2, 600 langleys, 6.25 mm.
const std::string SecondDay =
    Hex("02 00  00 00 F4 41  00 00 40 C1  00 00 A0 42  00 00 F0 41  00 00 2D 43  00 00 00 40  00 00 16 44  00 00 C8 40"
        "6B 65 73 74 61 20 20 20");

WeatherDay SecondDayInMemory() { return AWeatherDay().DayOfYear(2).Temperature(-12, 30.5F).ReferenceET(6.25F); }

TEST_F(WeatherFileTest, HasARecordOfFortyTwoBytesPerDay) {
    Directory.Put("WEATHER06.03", std::string(42, '\0') + SecondDay);  // names are found without regard to case
    const WeatherFile file("06", 2003);
    EXPECT_EQ(file.Days(), 2);
    EXPECT_EQ(file.Day(2), SecondDayInMemory());
    WeatherFile written("07", 2003);
    written.Put(1, AWeatherDay());
    written.Put(2, SecondDayInMemory());
    written.Save();
    EXPECT_EQ(Directory.Raw("weather07.03").substr(42), SecondDay);
}

TEST_F(WeatherFileTest, IgnoresABrokenRecordAtItsEndAndWritesOverIt) {
    for (const std::size_t broken : {1U, 41U}) {
        Directory.Put("weather06.03", AWeatherYear("06", 2003).Through(1).Bytes() + SecondDay.substr(0, broken));
        WeatherFile file("06", 2003);
        EXPECT_EQ(file.Days(), 1);
        EXPECT_EQ(file.Day(2), WeatherDay{});
        file.Put(2, SecondDayInMemory());
        file.Save();
        EXPECT_EQ(Directory.Raw("weather06.03").substr(42), SecondDay);
    }
}

TEST_F(WeatherFileTest, EndsOnTheDayOfItsLastRecordsOwnNumber) {
    EXPECT_EQ(LastWeatherJulian("06", 2003), 0);
    EXPECT_EQ(Directory.Raw("weather06.03"), "");
    AWeatherYear("06", 2003).Through(60).Store();
    EXPECT_EQ(LastWeatherJulian("06", 2003), JulianFromDate(3, 1, 2003));
    AWeatherYear("06", 2003).Through(60).With(60, [](WeatherDay& day) { day.DayOfYear = 59; }).Store();
    EXPECT_EQ(LastWeatherJulian("06", 2003), JulianFromDate(2, 28, 2003));
}

TEST_F(WeatherFileTest, FailsOnNumbersThatCannotBe) {
    for (const std::int16_t number : {std::int16_t{-1}, std::int16_t{367}}) {
        AWeatherYear("06", 2003).Through(60).With(60, [=](WeatherDay& day) { day.DayOfYear = number; }).Store();
        EXPECT_FAILURE(LastWeatherJulian("06", 2003), AllOf(HasSubstr("weather06.03"), HasSubstr("record 60")));
    }
    // A wind run that is not a number, at byte 18 of the second record.
    Directory.Put("weather06.04", SecondDay + Patched(SecondDay, 18, Hex("00 00 C0 7F")));
    const WeatherFile file("06", 2004);
    EXPECT_EQ(file.Day(1), SecondDayInMemory());
    EXPECT_FAILURE(file.Day(2), AllOf(HasSubstr("weather06.04"), HasSubstr("byte 60")));
}

}  // namespace
}  // namespace veraqua
