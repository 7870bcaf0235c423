#include "weather/forms/station_chooser.h"

#include <gmock/gmock.h>

#include "catch_up/weather_check.h"
#include "tests/weather_forms/weather_forms_fixture.h"
#include "weather/forms/weather_menu.h"

namespace veraqua {
namespace {

using testing::ElementsAre;

struct Chooser : WeatherFormsTest {
    Chooser() {
        User.WhenShown(FormName::frmKESTA, [] { At(FormName::frmKESTA).Click("cmd_return"); });
        User.WhenShown(FormName::frmWeather, [this] {
            const frmWeather& form = The<frmWeather>();
            Seen = form.lbl_info[0].Caption + "|" + form.StatusBar1.Panels[0] + "|" + form.Cmd_Exit.Caption;
            At(FormName::frmWeather).Click("mnu_KESTAloc").Pick("ComboKESTA", 7).Click("Cmd_Exit");
        });
    }

    std::string Seen;  ///< on the weather screen, where the user then picks another station
};

TEST_F(Chooser, OffersDefaultWeatherAfterADownloadThatFailed) {
    AWeatherYear("06", 2003).Through(190).Store();
    CheckWeather(User, 2003);
    EXPECT_THAT(User.Texts(), ElementsAre("Weather data required from 07-10-03 to 07-14-03", "404: Not Found"));
    EXPECT_EQ(Seen,
              "Weather data for Station #06 on 07-14-03|"
              "Weather files updated with DEFAULT Data between 07-10-03 and 07-14-03|OK");
    EXPECT_THAT(User.Presented,
                ElementsAre(FormName::frmKESTA, FormName::frmDownload, FormName::frmKESTA, FormName::frmWeather));
    EXPECT_FALSE(State.DownloadFailed || IsLoaded(FormName::frmKESTA));
    EXPECT_EQ(State.StationCode, "06");
    EXPECT_EQ(State.WeatherLastJulian, Yesterday);
    EXPECT_EQ(SourceOf(190) + SourceOf(191) + SourceOf(195), "kestadefaultdefault");
}

TEST_F(Chooser, TakesEachYearOfTheStationByItself) {
    AWeatherYear("06", 2002).Through(364).Store();
    User.WhenShown(FormName::frmKESTA, [] { At(FormName::frmKESTA).Click("Option(2)").Click("cmd_return"); });
    CheckWeather(User, 2002);
    EXPECT_EQ(SourceOf(365, 2002) + SourceOf(1) + SourceOf(195), "defaultdefaultdefault");
    EXPECT_FALSE(files::Exists("weather08.03"));
}

TEST_F(Chooser, ASecondYearThatFailsLeavesTheFirstAndTheWholeRange) {
    Serve("02", ANetworkLine(364).Year("2002") + ANetworkLine(365).Year("2002"));
    User.OtherAnswer = true;
    for (const bool foreignText : {false, true}) {
        if (foreignText) Serve("03", ANetworkLine(1).Station("8"));
        AWeatherYear("06", 2002).Through(363).Store();
        State.WeatherNeedFrom = JulianFromDate(12, 30, 2002);
        State.WeatherNeedTo = Yesterday;
        State.DownloadFailed = false;
        ShowModal(FormName::frmKESTA);
        EXPECT_TRUE(State.DownloadFailed && !State.ReportCancelled);
        EXPECT_TRUE(IsLoaded(FormName::frmKESTA) && The<frmKESTA>().Option[2].Chosen);
        EXPECT_EQ(SourceOf(364, 2002) + SourceOf(365, 2002) + SourceOf(1), "kestakesta");
        EXPECT_TRUE(State.WeatherNeedFrom == JulianFromDate(12, 30, 2002) && State.WeatherNeedTo == Yesterday);
        Unload(FormName::frmKESTA);
    }
}

TEST_F(Chooser, EndsTheCheckWhereTheUserWantsNoDefaultForMissingDays) {
    AWeatherYear("06", 2002).Through(363).Store();
    Serve("02", ANetworkLine(364).Year("2002"));
    CheckWeather(User, 2002);
    EXPECT_FALSE(State.DownloadFailed);
    EXPECT_EQ(State.WeatherLastJulian, JulianFromDate(12, 29, 2002));
    EXPECT_EQ(User.Fetched.size(), 1U);  // a good later year would hide the hole
}

TEST_F(Chooser, LeftWithoutAChoiceCancelsInSilence) {
    for (const bool byItsButton : {true, false}) {
        User.Told.clear();
        User.WhenShown(FormName::frmKESTA, [&] {
            The<frmKESTA>().Option[0].Chosen = false;
            byItsButton ? At(FormName::frmKESTA).Click("cmd_return") : At(FormName::frmKESTA).Close();
        });
        CheckWeather(User, 2003);
        EXPECT_EQ(User.Told.size(), 1U);
        EXPECT_TRUE(State.ReportCancelled && State.DownloadFailed && !IsLoaded(FormName::frmKESTA));
    }
}

}  // namespace
}  // namespace veraqua
