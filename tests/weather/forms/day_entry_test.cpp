#include "weather/forms/day_entry.h"

#include <array>
#include <string>
#include <tuple>

#include <fmt/format.h>
#include <gmock/gmock.h>

#include "tests/weather/forms/weather_forms_fixture.h"
#include "weather/reference_et.h"

namespace veraqua {
namespace {

struct DayEntry : WeatherFormsTest {
    frmWeather& Form = The<frmWeather>();

    DayEntry() { AWeatherYear("06", 2003).Through(195).Store(); }

    At Begin() {
        Show(FormName::frmWeather);
        return At(FormName::frmWeather).Click("mnu_enter");
    }
};

TEST_F(DayEntry, AcceptsADayOfThisYearOrTheLastThroughYesterday) {
    Begin();
    EXPECT_EQ(Form.txtDate.Text, "07-14-2003");
    for (const std::string text : {"12/31/2001", "1/1/2002", "7-14-2003 ", "07-15-2003", "02-30-2003"}) {
        const bool accepted = text == "1/1/2002" || text == "7-14-2003 ";
        User.Told.clear();
        At(FormName::frmWeather).Type("txtDate", text).Press("txtDate", Event::EnterKey);
        EXPECT_EQ(User.LastSaid(), accepted ? "" : "Date Input Error: Select a date BETWEEN 01-01-02 and 07-15-03");
    }
    EXPECT_EQ(Form.EntryDay, Yesterday);  // a refused date leaves the one before it
    At(FormName::frmWeather).Type("txtDate", "7/1/2003");
    At(FormName::frmWeather).Press("txtDate", Event::EnterKey).Type("txt_w(0)", "70").Escape();
    EXPECT_EQ(User.LastAsked(), "Veraqua: \"70\" is typed but not accepted yet.  Do you wish to go back to it?");
    EXPECT_FALSE(FormOf(FormName::frmWeather).Shown);
}

TEST_F(DayEntry, KeepsTheUserInABoxUntilItsNumberIsWithinTheLimits) {
    using Limits = std::array<const char*, 2>;
    const std::array<std::tuple<const char*, Limits, Limits>, 7> rows{{{"Max Temp", {"32", "130"}, {"0", "54"}},
                                                                       {"Min Temp", {"0", "86.0"}, {"-18", "30.0"}},
                                                                       {"Max Humidity", {"0", "100"}, {"0", "100"}},
                                                                       {"Min Humidity", {"0", "80.0"}, {"0", "80.0"}},
                                                                       {"Wind Velocity", {"0", "19"}, {"0", "30"}},
                                                                       {"Day/Night Wind", {"0", "5"}, {"0", "5"}},
                                                                       {"Solar Radiation", {"0", "900"}, {"0", "42"}}}};
    const std::string file = Directory.Raw("weather06.03");
    for (std::size_t i = 0; i < 2 * rows.size(); ++i) {
        const auto& [title, englishLimits, metricLimits] = rows[i / 2];
        State.EnglishUnits = i % 2 == 0;
        const auto& [low, high] = State.EnglishUnits ? englishLimits : metricLimits;
        const std::string box = "txt_w(" + std::to_string(i / 2) + ")";
        Begin().Click("cmd_DateOK");
        for (const std::string& refused : {std::string("12a"), std::string(), std::to_string(std::stod(low) - 0.1),
                                           std::to_string(std::stod(high) + 0.1)}) {
            EXPECT_TRUE(At(FormName::frmWeather).Type(box, refused).Click("cmd_OK").Held()) << refused;
            EXPECT_EQ(User.LastSaid(),
                      fmt::format("{} Error: Please input a value between {} and {}", title, low, high));
        }
        for (const char* accepted : {low, high})
            EXPECT_FALSE(At(FormName::frmWeather).Type(box, accepted).Enter("txtDate").Held()) << title;
        Unload(FormName::frmWeather);
    }
    EXPECT_EQ(Directory.Raw("weather06.03"), file);
}

TEST_F(DayEntry, StoresTheDayInMetricUnitsAndKeepsItsSource) {
    // 10 mph are 10 * 24 / 0.6214 km a day; 20 MJ are 20 * 23.89 langleys.
    for (const bool english : {true, false}) {
        AWeatherYear("06", 2003).Through(195).On(100, AWeatherDay().From("default")).Store();
        State.EnglishUnits = english;
        Begin().Type("txtDate", "04-10-2003").Click("cmd_DateOK");
        std::string boxes;
        for (const TextBox& box : Form.txt_w) boxes += box.Text + " ";
        EXPECT_EQ(boxes, english ? "86.0 53.6 80.0 30.0 4.5 2.0 600.0 " : "30.0 12.0 80.0 30.0 7.2 2.0 25.1 ");
        At(FormName::frmWeather)
            .Type("txt_w(0)", english ? "77" : "25")
            .Type("txt_w(1)", english ? "50" : "10")
            .Type("txt_w(4)", english ? "10" : "16")
            .Type("txt_w(6)", english ? "500" : "20")
            .Click("cmd_OK");
        EXPECT_EQ(User.LastSaid(), "Weather Updated: Weather data for 04-10-03 has been updated!");
        const WeatherDay day = WeatherFile("06", 2003).Day(100);
        EXPECT_FLOAT_EQ(day.TempMax + day.TempMin, 25 + 10);
        EXPECT_FLOAT_EQ(day.WindRun, english ? 386.22466F : 384);
        EXPECT_FLOAT_EQ(day.SolarRadiation, english ? 500 : 477.8F);
        EXPECT_EQ(day.ReferenceET, ReferenceEvapotranspiration(day));
        EXPECT_EQ(day.Source.Text() + std::to_string(day.DayOfYear), "default100");
        Unload(FormName::frmWeather);
    }
}

TEST_F(DayEntry, ShowsNoMarkOfAMissingMeasurement) {
    // An imported day that lacks the two measurements, as the import leaves it: 999 MJ are 999 * 23.89 langleys.
    AWeatherYear("06", 2003)
        .Through(195)
        .On(100, AWeatherDay().Temperature(12, MissingDayMark).Radiation(23866.11F))
        .Store();
    Begin().Type("txtDate", "04-10-2003").Click("cmd_DateOK");
    EXPECT_EQ(Form.txt_w[0].Text + Form.txt_w[6].Text, "");
    EXPECT_EQ(Form.txt_w[1].Text + " " + Form.lbl_az[7].Caption, "53.6 missing");
    At(FormName::frmWeather).Type("txt_w(0)", "77").Click("cmd_OK");
    EXPECT_EQ(User.LastSaid(), "Solar Radiation Error: Please input a value between 0 and 900");
    At(FormName::frmWeather).Type("txt_w(6)", "500").Click("cmd_OK");
    EXPECT_FLOAT_EQ(WeatherFile("06", 2003).Day(100).SolarRadiation, 500);
}

TEST_F(DayEntry, AsksForWhichDayTheNumbersAreWhereItsDateWasChanged) {
    for (const bool isForNewDate : {true, false}) {
        AWeatherYear("06", 2003).Through(195).On(101, AWeatherDay().From("default")).Store();
        User.Answers = {isForNewDate};
        Begin().Type("txtDate", "04-10-2003").Click("cmd_DateOK").Type("txt_w(0)", "77").Type("txtDate", "7-15-2003");
        At(FormName::frmWeather).Click("cmd_OK");
        EXPECT_EQ(User.LastSaid(), "Date Input Error: Select a date BETWEEN 01-01-02 and 07-15-03");
        At(FormName::frmWeather).Type("txtDate", "4/11/2003").Click("cmd_OK");
        EXPECT_EQ(User.LastAsked(),
                  "Weather Info: The date has been changed to 04-11-03. The numbers came up for 04-10-03.\n"
                  "Do you want to store them for 04-11-03? \"No\" stores them for 04-10-03.");
        const WeatherFile file("06", 2003);
        EXPECT_EQ(file.Day(isForNewDate ? 101 : 100).TempMax, 25);
        EXPECT_NE(file.Day(isForNewDate ? 100 : 101).TempMax, 25);
        EXPECT_EQ(SourceOf(100) + SourceOf(101), "kestadefault");
        Unload(FormName::frmWeather);
    }
}

TEST_F(DayEntry, FillsTheFileThroughYesterdayButNeverOverADayEntered) {
    for (const bool isStationNew : {false, true}) {  // of a station just chosen the last day isn't known
        AWeatherYear("06", 2003).Through(190).Store();
        State.WeatherLastJulian = isStationNew ? 0 : Yesterday - 5;
        Begin().Click("cmd_DateOK").Type("txt_w(6)", "333").Click("cmd_OK");
        EXPECT_EQ(SourceOf(189) + SourceOf(190) + SourceOf(191) + SourceOf(195),
                  isStationNew ? "kestakestadefault" : "kestadefaultdefaultdefault");  // the last real day goes too
        At(FormName::frmWeather).Click("mnu_enter");
        EXPECT_FLOAT_EQ(WeatherFile("06", 2003).Day(195).SolarRadiation, 333);
        Unload(FormName::frmWeather);
    }
}

}  // namespace
}  // namespace veraqua
