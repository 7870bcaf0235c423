#include "catch_up/weather_check.h"

#include <gmock/gmock.h>

#include "tests/catch_up/catch_up_fixture.h"

namespace veraqua {
namespace {

using testing::ElementsAre;

using CheckOfWeather = CatchUpTest;

TEST_F(CheckOfWeather, SendsTheUserBackUntilTheWeatherIsThere) {
    AWeatherYear("06", 2003).Through(190).Store();
    User.WeatherSource = [this](const DayRange& wanted) {
        EXPECT_EQ(wanted, (DayRange{JulianFromDate(7, 10, 2003), Yesterday}));
        State.StationCode = "08";  // what else the weather screen offers
        State.WeatherLastJulian = Yesterday;
        return User.WeatherSourceChosen < 3 ? WeatherChoice::Failed : WeatherChoice::Taken;
    };
    EXPECT_EQ(CheckWeather(User, 2003), WeatherCheck::Ready);
    EXPECT_THAT(User.Told,
                ElementsAre(ScriptAsk::Message{"Weather data required from 07-10-03 to 07-14-03", "Weather Info"}));
    EXPECT_EQ(User.WeatherSourceChosen, 3);
    EXPECT_FALSE(State.DownloadFailed);
    EXPECT_EQ(State.StationCode, "06");
    EXPECT_EQ(State.WeatherLastJulian, JulianFromDate(7, 9, 2003));  // its own day 190
}

TEST_F(CheckOfWeather, EndsWhereTheUserLeavesWithoutAChoiceOrHasNoDefaultWeather) {
    EXPECT_EQ(CheckWeather(User, 2003), WeatherCheck::Abandoned);
    EXPECT_TRUE(State.ReportCancelled);
    Directory.Put("weathdef.dat", "0, 0\n");
    EXPECT_EQ(CheckWeather(User, 2003), WeatherCheck::Abandoned);
    EXPECT_THAT(User.Texts(), ElementsAre("Weather data required from 01-01-03 to 07-14-03",
                                          "Your default weather station was not found!"));
    EXPECT_EQ(User.WeatherSourceChosen, 1);
    EXPECT_TRUE(State.DownloadFailed);
}

}  // namespace
}  // namespace veraqua
