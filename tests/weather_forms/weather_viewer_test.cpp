#include "weather/forms/weather_viewer.h"

#include <gmock/gmock.h>

#include "tests/reports/expected_text.h"
#include "tests/weather_forms/weather_forms_fixture.h"

namespace veraqua {
namespace {

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
    EXPECT_FALSE(Form.cmdPrint.Enabled || Form.cmdPrintAll.Enabled || Form.ComboKESTA.Visible);
    At(FormName::frmViewWeather).Click("cmdOK");
    EXPECT_EQ(Form.txtData.Text, ExpectedText("weather_screen"));
    EXPECT_EQ(Form.lbldates.Caption, "Weather data from 01-01-2003 to 01-03-03");
    EXPECT_EQ(Form.lblm1.Caption + Form.lblw1.Caption + Form.lbls.Caption + Form.lble.Caption, "Fmphlangleysinches");
    State.EnglishUnits = false;
    At(FormName::frmViewWeather).Type("txtYear", "2003").Click("cmdOK");
    EXPECT_EQ(Form.txtData.Text.substr(0, Form.txtData.Text.find('\n')),
              "01-01-03      001       030.0        012.0       080.0         030.0        07.2            2.0"
              "           25.1        06.0");
    EXPECT_EQ(Form.lblm2.Caption + Form.lblw1.Caption + Form.lbls.Caption + Form.lble.Caption, "CkphMJ/sq.m.mm");
}

TEST_F(Viewer, PrintsTheYear) {
    At(FormName::frmViewWeather).Click("cmdOK").Click("cmdPrintAll");
    std::string text;
    for (const PrintedLine& line : User.Printed.at(0).Lines)
        text += line.Face.Family + " " + std::to_string(line.Face.Points) + "|" + line.Text + "\n";
    EXPECT_EQ(text, ExpectedText("weather_print"));
    EXPECT_EQ(User.LastSaid(), "Veraqua: Weather report was sent to your default printer");
    User.Printer = {PrintEnding::Failed, "no paper"};
    At(FormName::frmViewWeather).Click("cmdPrint");
    EXPECT_EQ(User.LastSaid(), "Veraqua: The form can't be printed.");
}

TEST_F(Viewer, RefusesAYearWithoutAFileAndListsNoDayTooMany) {
    for (const char* year : {"2002", "abc", "20.5", "-3"}) {
        At(FormName::frmViewWeather).Type("txtYear", year).Click("cmdOK");
        EXPECT_EQ(User.LastSaid(), std::string("Bad Year: No weather data found for ") + year + " at Station: 06");
        EXPECT_FALSE(Form.cmdPrintAll.Enabled);
    }
    Directory.Put("weather06.01", AWeatherYear("06", 2000).Bytes());  // 366 days in a year of 365
    At(FormName::frmViewWeather).Type("txtYear", "2001").Click("cmdOK");
    EXPECT_EQ(Form.lbldates.Caption, "Weather data from 01-01-2001 to 12-31-01");
}

}  // namespace
}  // namespace veraqua
