#include "weather/forms/weather_menu.h"

#include <gmock/gmock.h>

#include "tests/weather_forms/weather_forms_fixture.h"
#include "weather/forms/download.h"
#include "weather/forms/station_list.h"

namespace veraqua {
namespace {

using testing::ElementsAre;

struct WeatherMenu : WeatherFormsTest {
    frmWeather& Form = The<frmWeather>();

    std::vector<std::string> Values() const {
        std::vector<std::string> values;
        for (const Label& label : Form.lbl_az) values.push_back(label.Visible ? label.Caption : "");
        return values;
    }
};

TEST_F(WeatherMenu, ShowsTheLastDayOfADownloadInTheUsersUnits) {
    // 2 m/s is 2 * 86.4 * 0.93 = 160.704 km, and 25 MJ are 597.25 langleys.
    const std::vector<std::string> english{"86.0", "53.6", "80.0", "30.0", "4.2", "597.3"};
    const std::vector<std::string> metric{"30.0", "12.0", "80.0", "30.0", "6.7", "25.0"};
    Serve("03", NetworkDays(1, 195));
    User.OtherAnswer = true;
    User.WhenShown(FormName::frmDownload, [] {
        const frmDownload& form = The<frmDownload>();
        EXPECT_EQ(form.txtURL.Text, "http://kesta.example/kesta/data/0603rd.txt");
        EXPECT_EQ(form.lblResult.Caption, "Download Succeeded");
        EXPECT_FALSE(form.Cmd_Exit.Enabled || form.lblWarning.Visible || form.txtURL.Enabled);
        At(FormName::frmDownload).Click("cmd_OK");
    });
    for (const auto& [menu, isEnglish] : {std::pair{"mnu_AppendWeather", true}, {"mnu_OverwriteWeather", false}}) {
        State.EnglishUnits = isEnglish;
        Show(FormName::frmWeather);
        At(FormName::frmWeather).Click(menu);
        EXPECT_EQ(Form.StatusBar1.Panels[0], "Weather file updated from KESTA between 01-01-03 and 07-14-03");
        EXPECT_EQ(Form.StatusBar1.Panels[2], " Kesta: FENWOLD ");
        EXPECT_EQ(Form.lbl_info[0].Caption, "Weather data for Station #06 on 07-14-03");
        EXPECT_TRUE(Form.lblUpdate.Visible);
        EXPECT_EQ(Form.lblUpdate.Caption, "Fields updated: 00");
        std::vector<std::string> values = Values();
        ASSERT_EQ(values.size(), 8U);
        values.erase(values.begin() + 7);
        values.erase(values.begin() + 5);  // the ratio is default weather
        EXPECT_EQ(values, isEnglish ? english : metric);
        EXPECT_EQ(Form.lbl_d[4].Caption, isEnglish ? "Daily Avg Wind Velocity (mph). . . . . . . . . . . . "
                                                   : "Daily Avg Wind Velocity (km/hr). . . . . . . . . . .  ");
        At(FormName::frmWeather).Close();
    }
    EXPECT_TRUE(User.Told.empty());
}

TEST_F(WeatherMenu, ADownloadThatEndsBadlySavesNothing) {
    Show(FormName::frmWeather);
    for (const bool diskRefuses : {false, true}) {
        At(FormName::frmWeather).Click("mnu_default");
        EXPECT_TRUE(Form.lbl_az[0].Visible);
        User.Told.clear();
        if (diskRefuses) {
            Serve("03", NetworkDays(1, 195));
            std::filesystem::create_directory(Directory.Path() + "kesta.03");
        }
        User.WhenShown(FormName::frmDownload, [] {
            EXPECT_TRUE(The<frmDownload>().lblWarning.Visible);
            At(FormName::frmDownload).Click("cmd_OK");
        });
        At(FormName::frmWeather).Click("mnu_OverwriteWeather");
        EXPECT_EQ(User.LastSaid(), "DOWNLOAD FAILED: No weather data was saved, try loading default data");
        EXPECT_EQ(User.Told.front().Text == "404: Not Found", !diskRefuses);
        EXPECT_EQ(User.Failures.size(), diskRefuses ? 1U : 0U);
        EXPECT_FALSE(Form.lbl_az[0].Visible);
        EXPECT_FALSE(Directory.Has("0603rd.txt"));
        EXPECT_EQ(SourceOf(195), "default");
    }
}

TEST_F(WeatherMenu, ACancelledDownloadIsSaidAndItsAnswerIsNotAwaited) {
    Serve("03", NetworkDays(1, 195));
    State.WeatherYearSuffix = "03";
    Show(FormName::frmDownload);
    At(FormName::frmDownload).Click("Cmd_Exit");
    EXPECT_EQ(User.LastSaid(), "DOWNLOAD ENDED: Your download has been cancelled");
    EXPECT_TRUE(State.DownloadFailed);
    EXPECT_FALSE(IsLoaded(FormName::frmDownload));
    ShowModal(FormName::frmKESTA);  // any other window that is waited for
    EXPECT_TRUE(User.Fetched.empty());
}

TEST_F(WeatherMenu, SendsTheUserToTheStationsWhereNoneIsChosen) {
    State.StationCode = "00";
    Show(FormName::frmWeather);
    EXPECT_TRUE(Form.ComboKESTA.Visible && Form.lblKESTA.Visible);
    for (const auto& [menu, said] :
         {std::pair{"mnu_AppendWeather", "Missing KESTA Station: Please select your KESTA weather station first."},
          {"mnu_OverwriteWeather", "Missing KESTA Station: Please select your KESTA weather station first."},
          {"mnu_default", "Veraqua: Please select your KESTA weather location first."},
          {"mnu_enter", "Veraqua: Please select your KESTA weather location first."}}) {
        ClearPanels(Form);
        At(FormName::frmWeather).Click(menu);
        EXPECT_EQ(User.LastSaid(), said);
        EXPECT_TRUE(Form.ComboKESTA.Visible) << menu;
    }
    EXPECT_THAT(files::Names(), ElementsAre("stat.dat", "updates.dat", "weathdef.dat"));
}

TEST_F(WeatherMenu, TakesTheStationOfThePositionPicked) {
    struct Row {
        int Position;
        const char* Code;  ///< of the station in work afterwards
        const char* Said;
    };
    for (const Row& row : {Row{0, "01", ""}, Row{11, "12", ""}, Row{15, "16", ""},
                           Row{16, "16", "Bad selection: Please select a site that isn't off-line!"},
                           Row{17, "16", "Bad selection: Please select a site that isn't off-line!"}, Row{18, "19", ""},
                           Row{24, "19", "Bad selection: Please select a site that isn't off-line!"},
                           Row{-1, "19", "Nothing selected: Please select a location from the drop-down list"}}) {
        User.Told.clear();
        User.FocusedControls.clear();
        State.WeatherLastJulian = Yesterday;
        Show(FormName::frmWeather);
        At(FormName::frmWeather).Click("mnu_KESTAloc").Pick("ComboKESTA", row.Position);
        EXPECT_EQ(User.LastSaid(), row.Said) << row.Position;
        EXPECT_EQ(State.StationCode, row.Code) << row.Position;
        const bool taken = *row.Said == '\0';
        EXPECT_EQ(Form.ComboKESTA.Visible, !taken);
        if (taken) {
            EXPECT_EQ(State.StationName, State.DefaultStations[static_cast<std::size_t>(row.Position)]);
            EXPECT_EQ(Form.StatusBar1.Panels[2], " Kesta: " + State.StationName + " ");
            EXPECT_EQ(State.WeatherLastJulian, 0);
        } else {
            EXPECT_THAT(User.FocusedControls, ElementsAre("frmWeather.ComboKESTA"));
            EXPECT_EQ(Form.ComboKESTA.Index, -1);
        }
    }
}

TEST_F(WeatherMenu, StationsOfTheMenuHaveTheirOwnRegions) {
    for (int number = 0; number <= 40; ++number) {
        const std::string code = (number < 10 ? "0" : "") + std::to_string(number);
        const std::string_view region = code == "01" ? "SORA VALLEY" : code == "33" ? "" : RegionOfStation(code);
        EXPECT_EQ(RegionOfChosenStation(code), region) << code;
    }
}

TEST_F(WeatherMenu, WritesDefaultWeatherOfThisYearAndGoesBackToTheMainMenu) {
    AWeatherYear("06", 2003).Through(200).Store();
    State.CallerForm = "frmVeraqua";
    FormOf(FormName::frmVeraqua).Loaded = true;
    Show(FormName::frmWeather);
    At(FormName::frmWeather).Click("mnu_default");
    EXPECT_EQ(SourceOf(1) + SourceOf(195) + SourceOf(196), "defaultdefaultkesta");
    EXPECT_EQ(State.WeatherLastJulian, Yesterday);
    EXPECT_EQ(Form.StatusBar1.Panels[0], "Weather files updated with DEFAULT Data between 01-01-03 and 07-14-03");
    EXPECT_EQ(Form.Cmd_Exit.Caption, "<-GO BACK");
    At(FormName::frmWeather).Click("mnu_return");
    EXPECT_EQ(User.Presented.back(), FormName::frmVeraqua);
    EXPECT_FALSE(IsLoaded(FormName::frmWeather));
}

}  // namespace
}  // namespace veraqua
