#include "weather/forms/weather_menu.h"

#include <gmock/gmock.h>

#include "tests/weather_forms/weather_forms_fixture.h"
#include "weather/forms/download.h"

namespace veraqua {
namespace {

using testing::ElementsAre;

struct WeatherMenu : WeatherFormsTest {
    frmWeather& Form = The<frmWeather>();

    /// The six values of the panel that no default weather goes into.
    std::string MeasuredValues() const {
        std::string values;
        for (const std::size_t row : {0U, 1U, 2U, 3U, 4U, 6U}) values += Form.lbl_az[row].Caption + " ";
        return values;
    }
};

TEST_F(WeatherMenu, ShowsTheLastDayOfADownloadInTheUsersUnits) {
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
        EXPECT_EQ(Form.lbl_info[0].Caption, "Weather data for Station #06 on 07-14-03");
        EXPECT_EQ(Form.lblUpdate.Visible ? Form.lblUpdate.Caption : "", "Fields updated: 00");
        // 2 m/s is 2 * 86.4 * 0.93 = 160.704 km, and 25 MJ are 597.25 langleys.
        EXPECT_EQ(MeasuredValues(), isEnglish ? "86.0 53.6 80.0 30.0 4.2 597.3 " : "30.0 12.0 80.0 30.0 6.7 25.0 ");
        EXPECT_THAT(Form.lbl_d[4].Caption, testing::HasSubstr(isEnglish ? "(mph). . ." : "(km/hr). . ."));
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
        if (diskRefuses) std::filesystem::create_directory(Directory.Path() + "kesta.03");
        User.WhenShown(FormName::frmDownload, [] {
            EXPECT_TRUE(The<frmDownload>().lblWarning.Visible);
            At(FormName::frmDownload).Click("cmd_OK");
        });
        At(FormName::frmWeather).Click("mnu_OverwriteWeather");
        EXPECT_EQ(User.LastSaid(), "DOWNLOAD FAILED: No weather data was saved, try loading default data");
        EXPECT_EQ(User.Told.front().Text == "404: Not Found", User.Failures.empty());
        EXPECT_FALSE(Form.lbl_az[0].Visible || Directory.Has("0603rd.txt"));
        EXPECT_EQ(SourceOf(195), "default");
    }
}

TEST_F(WeatherMenu, ACancelledDownloadIsSaidAndItsAnswerIsNotAwaited) {
    Serve("03", NetworkDays(1, 195));
    State.WeatherYearSuffix = "03";
    Show(FormName::frmDownload);
    At(FormName::frmDownload).Click("Cmd_Exit");
    EXPECT_EQ(User.LastSaid(), "DOWNLOAD ENDED: Your download has been cancelled");
    EXPECT_TRUE(State.DownloadFailed && !IsLoaded(FormName::frmDownload));
    ShowModal(FormName::frmKESTA);  // any other window that is waited for
    EXPECT_TRUE(User.Fetched.empty());
}

TEST_F(WeatherMenu, SendsTheUserToTheStationsWhereNoneIsChosen) {
    State.StationCode = "00";
    Show(FormName::frmWeather);
    for (const char* menu : {"mnu_AppendWeather", "mnu_OverwriteWeather", "mnu_default", "mnu_enter"}) {
        ClearPanels(Form);
        At(FormName::frmWeather).Click(menu);
        EXPECT_EQ(User.LastSaid(), std::string_view(menu).ends_with("Weather")
                                       ? "Missing KESTA Station: Please select your KESTA weather station first."
                                       : "Veraqua: Please select your KESTA weather location first.");
        EXPECT_TRUE(Form.ComboKESTA.Visible) << menu;
    }
    EXPECT_FALSE(Directory.Has("weather00.03"));
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
        EXPECT_TRUE(taken || Form.ComboKESTA.Index == -1);
    }
    EXPECT_EQ(Form.StatusBar1.Panels[2], " Kesta: " + State.DefaultStations[0] + " ");
    const WeatherCoefficients chosen = State.WeatherCoeff;
    EXPECT_TRUE(LoadWeatherCoefficients(User, "SORA VALLEY"));  // a run takes station 01 for another region's
    EXPECT_EQ(State.WeatherCoeff, chosen);
    EXPECT_EQ(RegionOfStation("01"), "TELMORAN");
}

}  // namespace
}  // namespace veraqua
