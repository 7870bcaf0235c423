#include "weather/forms/weather_menu.h"

#include <gmock/gmock.h>

#include "catch_up/field_updates.h"
#include "catch_up/weather_check.h"
#include "tests/reports/expected_text.h"
#include "tests/weather/forms/weather_forms_fixture.h"
#include "weather/forms/download.h"
#include "weather/forms/station_chooser.h"
#include "weather/forms/weather_viewer.h"

namespace veraqua {
namespace {

using testing::ElementsAre;

struct WeatherMenu : WeatherFormsTest {
    frmWeather& Form = The<frmWeather>();
};

TEST_F(WeatherMenu, ShowsTheLastDayOfADownloadInTheUsersUnits) {
    Serve("03", NetworkDays(1, 195));
    User.OtherAnswer = true;
    User.WhenShown(FormName::frmDownload, [] {
        const frmDownload& form = The<frmDownload>();
        EXPECT_EQ(form.txtURL.Text, "http://kesta.example/kesta/data/0603rd.txt");
        EXPECT_EQ(form.lblResult.Caption, "Download Succeeded");
        At(FormName::frmDownload).Click("cmd_OK");
    });
    for (const auto& [menu, isEnglish] : {std::pair{"mnu_AppendWeather", true}, {"mnu_OverwriteWeather", false}}) {
        State.EnglishUnits = isEnglish;
        Show(FormName::frmWeather);
        At(FormName::frmWeather).Click(menu);
        EXPECT_EQ(Form.StatusBar1.Panels[0], "Weather file updated from KESTA between 01-01-03 and 07-14-03");
        // 2 m/s is 2 * 86.4 * 0.93 = 160.704 km, and 25 MJ are 597.25 langleys.
        std::string values;  // the six that no default weather goes into
        for (const std::size_t row : {0U, 1U, 2U, 3U, 4U, 6U}) values += Form.lbl_az[row].Caption + " ";
        EXPECT_EQ(values, isEnglish ? "86.0 53.6 80.0 30.0 4.2 597.3 " : "30.0 12.0 80.0 30.0 6.7 25.0 ");
        At(FormName::frmWeather).Close();
    }
    EXPECT_TRUE(User.Told.empty());
}

TEST_F(WeatherMenu, ADownloadThatEndsBadlySavesNothing) {
    Show(FormName::frmWeather);
    for (const bool diskRefuses : {false, true}) {
        At(FormName::frmWeather).Click("mnu_default");
        EXPECT_TRUE(Form.lbl_az[0].Visible);
        EXPECT_EQ(Form.StatusBar1.Panels[0], "Weather files updated with DEFAULT Data between 01-01-03 and 07-14-03");
        User.Told.clear();
        if (diskRefuses) Serve("03", NetworkDays(1, 195));
        if (diskRefuses) std::filesystem::create_directory(Directory.Path() + "0603rd.txt");
        User.WhenShown(FormName::frmDownload, [] { At(FormName::frmDownload).Click("cmd_OK"); });
        At(FormName::frmWeather).Click("mnu_OverwriteWeather");
        EXPECT_EQ(User.LastSaid(), "DOWNLOAD FAILED: No weather data was saved, try loading default data");
        EXPECT_EQ(User.Told.front().Text.starts_with("404: Not Found\n\nkesta.example didn't give the file "
                                                     "/kesta/data/0603rd.txt.\nLook whether"),
                  User.Failures.empty());
        EXPECT_FALSE(Form.lbl_az[0].Visible || Directory.Has("kesta.03"));
        EXPECT_EQ(SourceOf(195), "default");
    }
}

TEST_F(WeatherMenu, LooksForTheNetworksAddressBeforeEachDownload) {
    User.WhenShown(FormName::frmDownload, [] { At(FormName::frmDownload).Click("cmd_OK"); });
    Show(FormName::frmWeather);
    for (const std::string address : {"http://moved.example/data", "", "http://again.example/"}) {
        Directory.Put("network.txt", address + "\r\n");
        At(FormName::frmWeather).Click("mnu_OverwriteWeather");
    }
    EXPECT_THAT(User.Fetched,
                ElementsAre("http://moved.example/data/0603rd.txt", "http://kesta.example/kesta/data/0603rd.txt",
                            "http://again.example/0603rd.txt"));
}

TEST_F(WeatherMenu, ACancelledDownloadIsSaidAndItsAnswerIsNotAwaited) {
    Serve("03", NetworkDays(1, 195));
    The<frmDownload>().Year = 2003;
    Show(FormName::frmDownload);
    At(FormName::frmDownload).Click("Cmd_Exit");
    EXPECT_EQ(User.LastSaid(), "DOWNLOAD ENDED: Your download has been cancelled");
    EXPECT_FALSE(The<frmDownload>().Succeeded || IsLoaded(FormName::frmDownload));
}

TEST_F(WeatherMenu, TakesTheStationOfThePositionPicked) {
    const std::string offLine = "Bad selection: Please select a site that isn't off-line!";
    struct Row {
        int Position;
        const char* Code;  ///< of the station in work afterwards
        std::string Said;
    };
    Show(FormName::frmWeather);
    for (const Row& row :
         {Row{11, "12", ""}, Row{15, "16", ""}, Row{16, "16", offLine}, Row{17, "16", offLine}, Row{24, "16", offLine},
          Row{-1, "16", "Nothing selected: Please select a location from the drop-down list"}, Row{0, "01", ""}}) {
        User.Told.clear();
        State.WeatherLastJulian = Yesterday;
        At(FormName::frmWeather).Click("mnu_KESTAloc").Pick("ComboKESTA", row.Position);
        const bool taken = row.Said.empty();
        EXPECT_EQ(User.LastSaid(), row.Said) << row.Position;
        EXPECT_EQ(State.StationCode, row.Code) << row.Position;
        EXPECT_EQ(State.WeatherLastJulian, taken ? 0 : Yesterday);
        EXPECT_EQ(Form.ComboKESTA.Visible, !taken);
    }
    EXPECT_EQ(State.WeatherCoeff, WeatherCoefficientsOf("SORA VALLEY"));  // runs and checks take another for 01
    At(FormName::frmWeather).Click("mnu_KESTAloc").Enter("Cmd_Exit").Wheel("ComboKESTA", 5);
    EXPECT_EQ(Form.ComboKESTA.Index, 0) << "the keyboard wasn't in the list, which opens at the station in work";
    At(FormName::frmWeather).Click("mnu_KESTAloc").Arrow("ComboKESTA").Press("ComboKESTA", Event::EnterKey);
    EXPECT_EQ(State.StationCode, "02");
}

TEST_F(WeatherMenu, TellsWhatElseANewWeatherConcerns) {
    AWeatherYear("06", 2003).Through(195).Store();
    AField().Days(10).StoreAt(1);
    UpdateRows(User, {1});
    AField().Days(10).StoreAt(2);  // behind: it catches up by itself
    AField().Station("02").Days(10).StoreAt(3);
    const std::string field = Directory.Raw("field1.dat");
    const std::string question = "1 field was worked out with the weather that has changed.\nRun it now?";
    Serve("03", NetworkDays(1, 195));
    User.WhenShown(FormName::frmDownload, [] { At(FormName::frmDownload).Click("cmd_OK"); });
    Show(FormName::frmWeather);
    At(FormName::frmWeather).Click("mnu_OverwriteWeather");
    EXPECT_EQ(User.LastAsked(), "Weather Info: " + question);
    EXPECT_EQ(State.Stat[2].LastDay, Yesterday);
    EXPECT_EQ(Directory.Raw("field1.dat"), field);

    User.Asked.clear();
    At(FormName::frmWeather).Click("mnu_default");
    ASSERT_EQ(User.Asked.size(), 1U);
    EXPECT_EQ(User.Asked[0].Text,
              "Default weather would replace 195 measured days between 01-01-03 and 07-14-03.\n"
              "Do you want to replace them?");
    EXPECT_EQ(SourceOf(1) + SourceOf(195), "kestakesta");
    User.OtherAnswer = true;
    At(FormName::frmWeather).Click("mnu_default");
    EXPECT_EQ(User.Asked.back().Text, "2 fields were worked out with the weather that has changed.\nRun them now?");
    EXPECT_EQ(SourceOf(1) + SourceOf(195), "defaultdefault");
    EXPECT_EQ(Form.lblUpdate.Caption, "Fields updated: 02");
    EXPECT_NE(Directory.Raw("field1.dat"), field);
    EXPECT_EQ(State.WeatherLastJulian, Yesterday);

    User.Asked.clear();  // a day entered before planting, on 1 May, and one after it
    At(FormName::frmWeather).Click("mnu_enter").Type("txtDate", "04-10-2003").Click("cmd_DateOK").Click("cmd_OK");
    EXPECT_TRUE(User.Asked.empty());
    At(FormName::frmWeather).Click("mnu_enter").Type("txtDate", "06-10-2003").Click("cmd_DateOK").Click("cmd_OK");
    EXPECT_EQ(User.Asked.size(), 1U);
    EXPECT_TRUE(Form.lblUpdate.Visible);
}

TEST_F(WeatherMenu, GoesOnWithTheStationPickedInTheViewer) {
    State.StationCode = "00";
    Show(FormName::frmWeather);
    User.WhenShown(FormName::frmViewWeather, [] { At(FormName::frmViewWeather).Pick("ComboKESTA", 7).Close(); });
    At(FormName::frmWeather).Pick("ComboKESTA", -1).Click("mnu_view");
    EXPECT_EQ(State.StationCode, "08");
    EXPECT_EQ(Form.StatusBar1.Panels[2], " Kesta: " + State.StationName + " ");
    EXPECT_FALSE(Form.ComboKESTA.Visible || Form.lblKESTA.Visible);
    At(FormName::frmWeather).Click("mnu_default");
    EXPECT_TRUE(Directory.Has("weather08.03"));
}

struct Chooser : WeatherFormsTest {
    Chooser() {
        User.WhenShown(FormName::frmKESTA, [] { At(FormName::frmKESTA).Click("cmd_return"); });
        User.WhenShown(FormName::frmWeather, [this] {
            Seen = The<frmWeather>().StatusBar1.Panels[0];
            At(FormName::frmWeather).Click("mnu_KESTAloc").Pick("ComboKESTA", 7).Click("Cmd_Exit");
        });
    }

    std::string Seen;  ///< on the weather screen, where the user then picks another station
};

TEST_F(Chooser, OffersDefaultWeatherAfterADownloadThatFailed) {
    AWeatherYear("06", 2003).Through(190).Store();
    CheckWeather(User, 2003);
    EXPECT_THAT(User.Texts(),
                ElementsAre("Weather data required from 07-10-03 to 07-14-03", testing::StartsWith("404: Not Found")));
    EXPECT_EQ(Seen, "Weather files updated with DEFAULT Data between 07-10-03 and 07-14-03");
    EXPECT_FALSE(State.DownloadFailed || IsLoaded(FormName::frmKESTA));
    EXPECT_EQ(State.StationCode, "06");
    EXPECT_EQ(State.WeatherLastJulian, Yesterday);
    EXPECT_EQ(SourceOf(190) + SourceOf(191) + SourceOf(195), "kestadefaultdefault");
}

TEST_F(Chooser, ASecondYearThatFailsLeavesTheFirstAndTheWholeRange) {
    Serve("02", ANetworkLine(364).Year("2002") + ANetworkLine(365).Year("2002"));
    User.OtherAnswer = true;
    for (const bool foreignText : {false, true}) {
        if (foreignText) Serve("03", ANetworkLine(1).Station("8"));
        AWeatherYear("06", 2002).Through(363).Store();
        EXPECT_EQ(AskForWeatherSource({JulianFromDate(12, 30, 2002), Yesterday}), WeatherChoice::Failed);
        EXPECT_TRUE(IsLoaded(FormName::frmKESTA) && The<frmKESTA>().Option[2].Chosen);
        EXPECT_EQ(SourceOf(364, 2002) + SourceOf(365, 2002) + SourceOf(1), "kestakesta");
        Unload(FormName::frmKESTA);
    }
}

TEST_F(Chooser, OverwritesWithAFreshTextAndItsOwnWords) {
    Directory.Put("kesta.03", NetworkDays(1, 195));  // of an earlier day
    User.WhenShown(FormName::frmWeather, [] { At(FormName::frmWeather).Click("mnu_OverwriteWeather").Close(); });
    for (const bool foreign : {true, false}) {
        Serve("03", foreign ? ANetworkLine(1).Station("8") : NetworkDays(1, 195));
        User.Told.clear();
        User.Fetched.clear();
        User.Answers = {true};  // goes on where the text lacks days
        State.CallerForm = "frmKESTA";
        ShowDefaultWeather({Yesterday, Yesterday});
        EXPECT_EQ(User.Fetched.size(), 1U);
        EXPECT_EQ(User.LastSaid(), foreign ? "Download Error: Wrong KESTA station downloaded.  Try again!" : "");
        EXPECT_EQ(SourceOf(1) + SourceOf(3), foreign ? "defaultdefault" : "kestakesta");
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

/// Three days: a fair one, a frosty one, and one with the mark of a missing measurement. Worked out by hand: 30 C are
/// 86 F, 173 km are 173 * 0.6214 / 24 = 4.48 mph or 7.21 km/h, 600 langleys are 25.12 MJ, 6 mm are 0.24 inches.
struct Viewer : WeatherFormsTest {
    frmViewWeather& Form = The<frmViewWeather>();

    Viewer() {
        AWeatherYear("06", 2003)
            .Through(3)
            .On(2, AWeatherDay().Temperature(-20, -5))
            .On(3, AWeatherDay().Temperature(12, MissingDayMark))
            .Store();
        Show(FormName::frmViewWeather);
    }
};

TEST_F(Viewer, ListsAYearInTheUsersUnits) {
    At(FormName::frmViewWeather).Click("cmdOK");
    EXPECT_EQ(Form.txtData.Text, ExpectedText("weather_screen"));
    EXPECT_EQ(Form.lbldates.Caption, "Weather data from 01-01-2003 to 01-03-03");
    State.EnglishUnits = false;
    At(FormName::frmViewWeather).Type("txtYear", "2003").Click("cmdOK");
    EXPECT_EQ(Form.txtData.Text.substr(0, Form.txtData.Text.find('\n')),
              "01-01-03      001       030.0        012.0       080.0         030.0        07.2            2.0"
              "           25.1        06.0");
}

TEST_F(Viewer, PrintsTheYear) {
    At(FormName::frmViewWeather).Click("cmdOK").Click("cmdPrintAll");
    std::string text;
    for (const PrintedLine& line : User.Printed.at(0).Lines)
        text += line.Face.Family + " " + std::to_string(line.Face.Points) + "|" + line.Text + "\n";
    EXPECT_EQ(text, ExpectedText("weather_print"));
}

TEST_F(Viewer, RefusesAYearWithoutAFileAndListsNoDayTooMany) {
    for (const char* year : {"2002", "abc", "20.5", "-3", "1903", "2103"}) {
        At(FormName::frmViewWeather).Type("txtYear", year).Click("cmdOK");
        EXPECT_EQ(User.LastSaid(), std::string("Bad Year: No weather data found for ") + year + " at Station: 06");
    }
    Directory.Put("weather06.01", AWeatherYear("06", 2000).Bytes());  // 366 days in a year of 365
    At(FormName::frmViewWeather).Type("txtYear", "2001").Click("cmdOK");
    EXPECT_EQ(Form.lbldates.Caption, "Weather data from 01-01-2001 to 12-31-01");
}

}  // namespace
}  // namespace veraqua
