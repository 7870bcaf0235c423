#include "weather/import.h"

#include <string>
#include <tuple>
#include <vector>

#include "tests/support/builders.h"
#include "tests/support/data_directory.h"
#include "tests/support/network_line.h"
#include "weather/reference_et.h"
#include "weather/weather_file.h"

namespace veraqua {
namespace {

constexpr ImportWording Plainly{"wrong year", "wrong station", " is missing", "No Text"};

constexpr JulianValue DayOf2003(int dayOfYear) { return JulianFromDayOfYear(dayOfYear, 2003); }

/// Default weather is the number of its row on every day of the year: 1 degree C, 2 degrees C, and so on to 8 mm.
struct ImportTest : DirectoryTest {
    ImportTest() {
        State.StationCode = "06";
        for (std::size_t row = 0; row < State.WeatherCoeff.size(); ++row)
            State.WeatherCoeff[row][0] = static_cast<float>(row + 1);
    }

    ImportOutcome Import(JulianValue from, JulianValue to) { return ImportWeather(User, Plainly, {from, to}); }

    /// A letter for each day: m measured, old, d default, 9 with the mark of a missing value, . no record.
    static std::string Days(int year, int first, int last) {
        const WeatherFile file("06", year);
        std::string days;
        for (int n = first; n <= last; ++n) {
            const WeatherDay day = file.Day(n);
            EXPECT_TRUE(day.DayOfYear == n || n > file.Days()) << n;
            const char measured = day.TempMax == 30 ? 'm' : day.TempMax == MissingDayMark ? '9' : 'o';
            days += n > file.Days() ? '.' : day.Source.First() == 'k' ? measured : day.Source.First();
        }
        return days;
    }

    /// The file of 2003 through `last` as an earlier import has left it.
    static void StoreOld(int last) {
        AWeatherYear("06", 2003).Through(last).Every(AWeatherDay().Temperature(5, 20)).Store();
    }
};

TEST_F(ImportTest, FollowsTheTextAndFillsItsGaps) {
    struct Placing {
        const char* Case;
        std::string Text;
        const char* Days;  ///< afterwards, from day 96 on
        int Stored = 99, From = 100, To = 104;
    };
    for (const Placing& p : std::vector<Placing>{
             {"a bad day ends it", NetworkDays(99, 101) + ANetworkLine(102).Bad() + NetworkDays(103, 110),
              "oooomm......"},
             {"a bad day before the wanted ones", ANetworkLine(99).Bad() + NetworkDays(100, 110), "oooommmmm..."},
             {"a gap", ANetworkLine(100) + NetworkDays(102, 110), "oooomdmmm..."},
             {"a gap before a bad day", ANetworkLine(100) + ANetworkLine(103).Bad() + NetworkDays(104, 110),
              "oooomdd9m..."},
             {"a gap over the end of the range", NetworkDays(100, 102) + NetworkDays(106, 110), "oooommmdddm."},
             {"a line that goes back", NetworkDays(100, 103) + ANetworkLine(100), "oooomdddd..."},
             {"a day that can't be ends the text",
              NetworkDays(99, 101) + ANetworkLine(102).Column(2, "?") + ANetworkLine(103), "oooommd....."},
             {"days behind the range are stored", NetworkDays(1, 110), "oooommmmmooo", 150},
             {"days before it are missing", NetworkDays(1, 110), "oddddmmmm...", 96, 101}}) {
        SCOPED_TRACE(p.Case);
        StoreOld(p.Stored);
        Directory.Put("kesta.03", p.Text);
        EXPECT_TRUE(Import(DayOf2003(p.From), DayOf2003(p.To)).Imported);
        EXPECT_EQ(Days(2003, 1, 107), std::string(95, 'o') + p.Days);
        EXPECT_TRUE(User.Told.empty());
    }
}

TEST_F(ImportTest, MakesMetricDaysOfTheNetworksUnits) {
    Directory.Put("kesta.03", ANetworkLine(1) + ANetworkLine(3).Bad());
    EXPECT_TRUE(Import(DayOf2003(1), DayOf2003(3)).Imported);
    const WeatherFile file("06", 2003);
    // 2 m/s * 86.4 km/day * 0.93 = 160.704; 25 MJ/m2 * 23.89 = 597.25; the ratio is that of the default weather.
    WeatherDay expected = AWeatherDay().DayOfYear(1).Wind(160.704F, 6).Radiation(597.25F);
    expected.ReferenceET = ReferenceEvapotranspiration(expected);
    EXPECT_EQ(file.Day(1), expected);
    EXPECT_EQ(file.Day(3).TempMin, 12);  // beside the mark stands what was measured
}

TEST_F(ImportTest, GoesOnInTheTextOfTheNextYear) {
    StoreOld(363);
    Directory.Put("kesta.03", NetworkDays(360, 365));
    EXPECT_FALSE(Import(DayOf2003(364), DayOf2003(365 + 3)).Imported);
    EXPECT_EQ(Days(2003, 363, 366), "omm.");  // the old year is kept where the next has no text
    // The lines behind the first are not held against the year again.
    Directory.Put("kesta.04", ANetworkLine(1) + ANetworkLine(3).Year("2004") + ANetworkLine(4));
    EXPECT_TRUE(Import(DayOf2003(364), DayOf2003(365 + 3)).Imported);
    EXPECT_EQ(Days(2003, 363, 366) + Days(2004, 1, 4), "omm.mdm.");
    Directory.Put("kesta.04", ANetworkLine(365).Year("04") + ANetworkLine(366));  // a leap year ends after day 366
    Directory.Put("kesta.05", NetworkDays(1, 9));
    EXPECT_TRUE(Import(JulianFromDate(12, 30, 2004), JulianFromDate(1, 1, 2005)).Imported);
    EXPECT_EQ(Days(2004, 364, 366) + Days(2005, 1, 2), "dmmm.");
}

TEST_F(ImportTest, HoldsTheLinesUpToTheFirstWantedDayAgainstYearAndStation) {
    using Refusals = std::vector<std::tuple<const char*, std::string, std::string>>;
    for (const auto& [name, first, refusal] :
         Refusals{{"a year of two digits", ANetworkLine(9).Year(" 03 "), ""},
                  {"the year before the station", ANetworkLine(9).Year("2002").Station("7"), "wrong year"},
                  {"no station", ANetworkLine(9).Station(""), "wrong station"},
                  {"a page instead of a text", "<!DOCTYPE html>\n<html>\n", "wrong year"}}) {
        SCOPED_TRACE(name);
        StoreOld(9);
        User.Told.clear();
        Directory.Put("kesta.03", first + NetworkDays(10, 12));
        const bool refused = !refusal.empty();
        EXPECT_EQ(Import(DayOf2003(10), DayOf2003(12)).Imported, !refused);
        EXPECT_EQ(Days(2003, 9, 12), refused ? "o..." : "ommm");
        EXPECT_EQ(User.Texts(), std::vector<std::string>(refused ? 1 : 0, refusal));
    }
}

TEST_F(ImportTest, TakesNothingFromATextWithoutALine) {
    const std::vector<std::string> nothingSaved{"No weather data was saved, try loading default data"};
    for (const char* text : {"", "\n \r\n", "2003,no day,6,30\n"}) {
        SCOPED_TRACE(text);
        StoreOld(9);
        User.Told.clear();
        Directory.Put("kesta.03", text);
        EXPECT_FALSE(Import(DayOf2003(10), DayOf2003(12)).Imported);
        EXPECT_EQ(User.Texts(), nothingSaved);
        EXPECT_EQ(Days(2003, 9, 12), "o...");
    }
    User.Told.clear();
    StoreOld(363);
    Directory.Put("kesta.03", NetworkDays(364, 365));
    Directory.Put("kesta.04", "");
    EXPECT_FALSE(Import(DayOf2003(364), DayOf2003(365 + 3)).Imported);
    EXPECT_EQ(User.Texts(), nothingSaved);
    EXPECT_EQ(Days(2003, 363, 366), "omm.");
}

}  // namespace
}  // namespace veraqua
