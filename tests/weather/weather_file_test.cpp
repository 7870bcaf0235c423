#include "weather/weather_file.h"

#include <gmock/gmock.h>

#include "tests/support/builders.h"
#include "tests/support/bytes.h"
#include "tests/support/data_directory.h"
#include "tests/support/failure.h"

namespace veraqua {
namespace {

using testing::HasSubstr;

using WeatherFileTest = DirectoryTest;

/// Day 2 of a year: 30.5 and -12 degrees C, 80 and 30 %, 173 km, ratio 2, 600 langleys, 6.25 mm.
const std::string SecondDay =
    Hex("02 00  00 00 F4 41  00 00 40 C1  00 00 A0 42  00 00 F0 41  00 00 2D 43  00 00 00 40  00 00 16 44  00 00 C8 40 "
        "6B 65 73 74 61 20 20 20");

WeatherDay SecondDayInMemory() { return AWeatherDay().DayOfYear(2).Temperature(-12, 30.5F).ReferenceET(6.25F); }

TEST_F(WeatherFileTest, HasARecordOfFortyTwoBytesPerDayAndWritesOverABrokenOne) {
    Directory.Put("WEATHER06.03", std::string(42, '\0') + SecondDay);  // names are found without regard to case
    EXPECT_EQ(WeatherFile("06", 2003).Day(2), SecondDayInMemory());
    Directory.Put("weather06.04", AWeatherYear("06", 2004).Through(1).Bytes() + SecondDay.substr(0, 41));
    WeatherFile file("06", 2004);
    EXPECT_EQ(file.Days(), 1);
    file.Put(2, SecondDayInMemory());
    file.Save();
    EXPECT_EQ(Directory.Raw("weather06.04").substr(42), SecondDay);
}

TEST_F(WeatherFileTest, EndsOnTheDayOfItsLastRecordsOwnNumberWhichMustBePossible) {
    const auto store = [](std::int16_t number) {
        AWeatherYear("06", 2003).Through(60).With(60, [=](WeatherDay& day) { day.DayOfYear = number; }).Store();
    };
    store(59);
    EXPECT_EQ(LastWeatherJulian("06", 2003), JulianFromDate(2, 28, 2003));
    store(367);
    EXPECT_FAILURE(LastWeatherJulian("06", 2003), HasSubstr("record 60"));
    // A wind run that is not a number, at byte 18 of the second record.
    Directory.Put("weather06.04", SecondDay + Patched(SecondDay, 18, Hex("00 00 C0 7F")));
    EXPECT_FAILURE(WeatherFile("06", 2004).Day(2), HasSubstr("byte 60"));
}

}  // namespace
}  // namespace veraqua
