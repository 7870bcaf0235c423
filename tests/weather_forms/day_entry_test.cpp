#include "weather/forms/day_entry.h"

#include <gmock/gmock.h>

#include "tests/weather_forms/weather_forms_fixture.h"
#include "weather/reference_et.h"

namespace veraqua {
namespace {

using testing::ElementsAre;

struct DayEntry : WeatherFormsTest {
    frmWeather& Form = The<frmWeather>();

    DayEntry() { AWeatherYear("06", 2003).Through(195).Store(); }

    At Begin() {
        Show(FormName::frmWeather);
        return At(FormName::frmWeather).Click("mnu_enter");
    }
    std::vector<std::string> Boxes() const {
        std::vector<std::string> texts;
        for (const TextBox& box : Form.txt_w) texts.push_back(box.Text);
        return texts;
    }
};

TEST_F(DayEntry, AcceptsADayOfThisYearOrTheLastThroughYesterday) {
    EXPECT_TRUE(Begin().Held() == false && Form.txtDate.Text == "07-14-2003");
    EXPECT_FALSE(Form.mnu_weather.Enabled || Form.mnu_view.Enabled || Form.cmd_OK.Visible);
    EXPECT_TRUE(Form.mnu_KESTAloc.Enabled);
    for (const auto& [text, accepted] : {std::pair{"1/1/2002", true},
                                         {"12/31/2001", false},
                                         {" 07-14-2003 ", true},
                                         {"07-15-2003", false},
                                         {"02-30-2003", false}}) {
        User.Told.clear();
        At(FormName::frmWeather).Type("txtDate", text).Press("txtDate", Event::EnterKey);
        EXPECT_EQ(User.Told.empty(), accepted) << text;
        EXPECT_NE(Form.EntryDay, 0);  // a refused date leaves the one before it
        if (!accepted) {
            EXPECT_EQ(User.LastSaid(), "Date Input Error: Select a date BETWEEN 01-01-02 and 07-15-03");
            EXPECT_EQ(User.FocusedControls.back(), "frmWeather.txtDate");
        }
    }
    At(FormName::frmWeather).Type("txtDate", "3/9/2003").Click("cmd_Calendar");
    EXPECT_EQ(Form.Cal1.Day, JulianFromDate(3, 9, 2003));
    At(FormName::frmWeather).PickDay("Cal1", JulianFromDate(3, 4, 2003));
    EXPECT_EQ(Form.txtDate.Text, "03-04-2003");
    EXPECT_FALSE(Form.Cal1.Visible);
}

TEST_F(DayEntry, KeepsTheUserInABoxThatIsRefused) {
    struct Row {
        bool English;
        int Box;
        const char* Refused;
        const char* Accepted;
        const char* Said;
    };
    const std::string between = "Please input a value between ";
    for (const Row& row :
         {Row{true, 0, "31.9", "32", "Max Temp Error: Please input a value between 32 and 130"},
          Row{true, 0, "12a", "130", "Max Temp Error: Please input a value between 32 and 130"},
          Row{true, 1, "86.1", "0", "Min Temp Error: Please input a value between 0 and 86.0"},
          Row{true, 2, "", "100", "Max Humidity Error: Please input a value between 0 and 100"},
          Row{true, 3, "80.1", "80", "Min Humidity Error: Please input a value between 0 and 80.0"},
          Row{true, 4, "19.1", "19", "Wind Velocity Error: Please input a value between 0 and 19"},
          Row{true, 5, "-0.1", "5", "Day/Night Wind Error: Please input a value between 0 and 5"},
          Row{true, 6, "901", "900", "Solar Radiation Error: Please input a value between 0 and 900"},
          Row{false, 0, "54.1", "54", "Max Temp Error: Please input a value between 0 and 54"},
          Row{false, 1, "-18.1", "-18", "Min Temp Error: Please input a value between -18 and 30.0"},
          Row{false, 2, "101", "0", "Max Humidity Error: Please input a value between 0 and 100"},
          Row{false, 3, "-1", "0", "Min Humidity Error: Please input a value between 0 and 80.0"},
          Row{false, 4, "30.1", "30", "Wind Velocity Error: Please input a value between 0 and 30"},
          Row{false, 5, "5.1", "0", "Day/Night Wind Error: Please input a value between 0 and 5"},
          Row{false, 6, "42.1", "42", "Solar Radiation Error: Please input a value between 0 and 42"}}) {
        State.EnglishUnits = row.English;
        const std::string box = "txt_w(" + std::to_string(row.Box) + ")";
        const std::string file = Directory.Raw("weather06.03");
        Begin().Click("cmd_DateOK");
        EXPECT_TRUE(At(FormName::frmWeather).Type(box, row.Refused).Click("cmd_OK").Held()) << row.Said;
        EXPECT_EQ(User.LastSaid(), row.Said);
        EXPECT_EQ(User.FocusedControls.back(), "frmWeather." + box);
        EXPECT_EQ(Directory.Raw("weather06.03"), file);
        EXPECT_FALSE(At(FormName::frmWeather).Type(box, row.Accepted).Enter("txtDate").Held()) << row.Said;
        Unload(FormName::frmWeather);
    }
}

TEST_F(DayEntry, StoresTheDayInMetricUnitsAndKeepsItsSource) {
    struct Row {
        bool English;
        std::vector<std::string> Shown;  ///< of the day before it is edited
        std::vector<std::string> Typed;
        std::vector<double> Stored;
    };
    // 10 mph are 10 * 24 / 0.6214 km a day; 20 MJ are 20 * 23.89 langleys.
    for (const Row& row : {Row{true,
                               {"86.0", "53.6", "80.0", "30.0", "4.5", "2.0", "600.0"},
                               {"77", "50", "90", "40", "10", "1.5", "500"},
                               {25, 10, 90, 40, 386.2246, 1.5, 500}},
                           Row{false,
                               {"30.0", "12.0", "80.0", "30.0", "7.2", "2.0", "25.1"},
                               {"25", "10", "90", "40", "16", "1.5", "20"},
                               {25, 10, 90, 40, 384, 1.5, 477.8}}}) {
        AWeatherYear("06", 2003).Through(195).On(100, AWeatherDay().From("default")).Store();
        State.EnglishUnits = row.English;
        Begin().Type("txtDate", "04-10-2003").Click("cmd_DateOK");
        EXPECT_EQ(Boxes(), row.Shown);
        EXPECT_EQ(Form.lbl_az[7].Caption, row.English ? "0.2" : "6.0");
        EXPECT_FALSE(Form.Cmd_Exit.Visible);
        At entry(FormName::frmWeather);
        for (std::size_t i = 0; i < row.Typed.size(); ++i) entry.Type("txt_w(" + std::to_string(i) + ")", row.Typed[i]);
        entry.Click("cmd_OK");
        EXPECT_EQ(User.LastSaid(), "Weather Updated: Weather data for 04-10-03 has been updated!");
        const WeatherDay day = WeatherFile("06", 2003).Day(100);
        const std::vector<float> stored{day.TempMax, day.TempMin,       day.HumidityMax,   day.HumidityMin,
                                        day.WindRun, day.DayNightRatio, day.SolarRadiation};
        for (std::size_t i = 0; i < stored.size(); ++i) EXPECT_NEAR(stored[i], row.Stored[i], 1e-3) << i;
        EXPECT_EQ(day.ReferenceET, ReferenceEvapotranspiration(day));
        EXPECT_EQ(day.Source.Text(), "default");
        EXPECT_EQ(day.DayOfYear, 100);
        EXPECT_TRUE(Form.mnu_weather.Enabled && Form.Cmd_Exit.Visible && !Form.cmd_OK.Visible &&
                    !Form.txt_w[0].Visible);
        Unload(FormName::frmWeather);
    }
}

TEST_F(DayEntry, FillsTheFileThroughYesterdayButNeverOverADayEntered) {
    AWeatherYear("06", 2003).Through(190).Store();
    State.WeatherLastJulian = Yesterday - 5;
    Begin().Click("cmd_DateOK").Type("txt_w(6)", "333").Click("cmd_OK");
    EXPECT_EQ(SourceOf(189) + SourceOf(190) + SourceOf(191), "kestadefaultdefault");  // the last real day goes too
    At(FormName::frmWeather).Click("mnu_enter");
    EXPECT_FLOAT_EQ(WeatherFile("06", 2003).Day(195).SolarRadiation, 333);
}

TEST_F(DayEntry, OfAStationJustChosenWritesNothingBeforehandAndKeepsABlankSource) {
    AWeatherYear("06", 2003).Through(190).Store();
    State.WeatherLastJulian = 0;
    Begin().Click("cmd_DateOK").Type("txt_w(0)", "90").Click("cmd_OK");
    EXPECT_EQ(SourceOf(190) + SourceOf(191) + SourceOf(195), "kestadefault");
    EXPECT_EQ(WeatherFile("06", 2003).Day(195).DayOfYear, 195);
    At(FormName::frmWeather).Click("mnu_enter").Click("cmd_DateOK");
    EXPECT_EQ(Boxes()[0], "90.0");
}

TEST_F(DayEntry, IsGivenUpForTheChoiceOfAStation) {
    Begin().Click("cmd_DateOK").Click("mnu_KESTAloc");
    EXPECT_TRUE(Form.mnu_enter.Enabled && Form.Cmd_Exit.Visible && !Form.cmd_OK.Visible);
}

}  // namespace
}  // namespace veraqua
