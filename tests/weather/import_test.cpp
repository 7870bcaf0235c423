#include "weather/import.h"

#include <string>
#include <vector>

#include "tests/support/builders.h"
#include "tests/support/data_directory.h"
#include "tests/support/failure.h"
#include "tests/support/network_line.h"
#include "weather/default_weather.h"
#include "weather/reference_et.h"
#include "weather/weather_file.h"

namespace veraqua {
namespace {

constexpr ImportWording Plainly{"wrong year", "wrong station", " is missing", "No Text"};

const ScriptAsk::Message NothingSaved{"No weather data was saved, try loading default data", "DOWNLOAD FAILED"};

constexpr JulianValue DayOf2003(int dayOfYear) { return JulianFromDayOfYear(dayOfYear, 2003); }

/// Default weather is the number of its row on every day of the year: 1 degree C, 2 degrees C, and so on to 8 mm.
struct ImportTest : DirectoryTest {
    ImportTest() {
        State.StationCode = "06";
        for (std::size_t row = 0; row < State.WeatherCoeff.size(); ++row)
            State.WeatherCoeff[row][0] = static_cast<float>(row + 1);
    }

    ImportOutcome Import(JulianValue from, JulianValue to, bool oneYear = false) {
        State.WeatherNeedFrom = from;
        State.WeatherNeedTo = to;
        return ImportWeather(User, Plainly, oneYear);
    }

    /// A letter for each day: m measured, old, d default, 9 with the mark of a missing value, . no record.
    static std::string Days(int year, int first, int last) {
        const WeatherFile file("06", year);
        std::string days;
        for (int n = first; n <= last; ++n) {
            const WeatherDay day = file.Day(n);
            EXPECT_TRUE(day.DayOfYear == n || n > file.Days()) << n;
            if (day.TempMax == MissingDayMark)
                days += '9';
            else
                days += day.Source.First() == ' '   ? '.'
                        : day.Source.First() == 'd' ? 'd'
                        : day.TempMax == 30         ? 'm'
                                                    : 'o';
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
        std::string Text;
        const char* Days;  ///< afterwards, from day 96 on
        int Stored = 99;   ///< last day before
        int From = 100;
        int To = 104;
    };
    for (const Placing& p : std::vector<Placing>{
             {NetworkDays(98, 110), "oooommmmm..."},
             // A bad day ends the import; before the wanted days it doesn't count.
             {NetworkDays(99, 101) + ANetworkLine(102).Bad() + NetworkDays(103, 110), "oooomm......"},
             {ANetworkLine(100).Bad() + NetworkDays(101, 110), "oooo........"},
             {ANetworkLine(99).Bad() + NetworkDays(100, 110), "oooommmmm..."},
             // A gap is filled up to the next line, though it be bad or lie over the end of the range.
             {ANetworkLine(100) + NetworkDays(102, 110), "oooomdmmm..."},
             {ANetworkLine(100) + ANetworkLine(103).Bad() + NetworkDays(104, 110), "oooomdd9m..."},
             {NetworkDays(100, 102) + NetworkDays(106, 110), "oooommmdddm."},
             {NetworkDays(100, 103) + ANetworkLine(100), "oooomdddd..."},  // a line that goes back
             {NetworkDays(103, 110), "oooodddmm..."},
             // A text that ends, before the range too, or at a day that can't be.
             {NetworkDays(95, 101), "oooommd....."},
             {NetworkDays(90, 97), "ooood......."},
             {NetworkDays(90, 95) + ANetworkLine(96).Column(2, "?") + NetworkDays(98, 110), "ooood......."},
             {NetworkDays(99, 101) + ANetworkLine(102).Bad(), "oooomm......"},
             {NetworkDays(99, 101) + ANetworkLine(102).Column(2, "?") + ANetworkLine(103), "oooommd....."},
             {NetworkDays(99, 101) + ANetworkLine(366), "oooommd....."},
             {NetworkDays(1, 110), "ooooooom....", 102, 103, 103},
             {NetworkDays(1, 110), "oooommmmmooo", 150},
             {NetworkDays(1, 110), "oddddmmmm...", 96, 101}})
        for (const bool oneYear : {false, true}) {
            SCOPED_TRACE(p.Text);
            StoreOld(p.Stored);
            Directory.Put("kesta.03", p.Text);
            EXPECT_TRUE(Import(DayOf2003(p.From), DayOf2003(p.To), oneYear).Imported);
            EXPECT_EQ(Days(2003, 96, 107), p.Days);
            EXPECT_EQ(Days(2003, 1, 95), std::string(95, 'o'));
            EXPECT_TRUE(User.Told.empty());
            EXPECT_FALSE(State.DownloadFailed);
        }
}

TEST_F(ImportTest, MakesMetricDaysOfTheNetworksUnits) {
    Directory.Put("kesta.03", ANetworkLine(1) + ANetworkLine(3).Bad());
    const ImportOutcome outcome = Import(DayOf2003(1), DayOf2003(3));
    const WeatherFile file("06", 2003);
    // 2 m/s * 86.4 km/day * 0.93 = 160.704; 25 MJ/m2 * 23.89 = 597.25; the ratio is that of the default weather.
    WeatherDay expected = AWeatherDay().DayOfYear(1).Wind(160.704F, 6).Radiation(597.25F);
    expected.ReferenceET = ReferenceEvapotranspiration(expected);
    EXPECT_EQ(file.Day(1), expected);
    EXPECT_EQ(file.Day(2), DefaultDay(State.WeatherCoeff, 2));
    EXPECT_EQ(file.Day(3).TempMin, 12);  // beside the mark stands what was measured
    EXPECT_EQ(file.Day(3).Source.Text(), "kesta");
    EXPECT_EQ(outcome.LastDay, file.Day(3));
}

TEST_F(ImportTest, NamesTheWrittenDaysWithoutWind) {
    Directory.Put("kesta.03", NetworkDays(1, 2) + ANetworkLine(3).Column(19, "999") +
                                  ANetworkLine(5).Column(19, "999") + ANetworkLine(7).Column(19, "999").Bad() +
                                  ANetworkLine(8).Column(19, "999"));
    EXPECT_EQ(Import(DayOf2003(1), DayOf2003(7)).WindlessDays, (std::vector{DayOf2003(3), DayOf2003(5)}));
    EXPECT_EQ(Days(2003, 1, 8), "mmmdmd9.");
}

TEST_F(ImportTest, GoesOnInTheTextOfTheNextYear) {
    AWeatherYear("06", 2003).Through(363).Every(AWeatherDay().Temperature(5, 20)).Store();
    Directory.Put("kesta.03", NetworkDays(360, 365));
    // The lines behind the first are not held against the year again.
    Directory.Put("kesta.04", ANetworkLine(1) + ANetworkLine(3).Year("2004") + ANetworkLine(4));
    EXPECT_TRUE(Import(DayOf2003(364), DayOf2003(365 + 3)).Imported);
    EXPECT_EQ(Days(2003, 363, 366), "omm.");
    EXPECT_EQ(Days(2004, 1, 4), "mdm.");
    Directory.Put("kesta.04", ANetworkLine(365).Year("04") + ANetworkLine(366));  // a leap year ends after day 366
    Directory.Put("kesta.05", NetworkDays(1, 9));
    EXPECT_TRUE(Import(JulianFromDate(12, 30, 2004), JulianFromDate(1, 1, 2005)).Imported);
    EXPECT_EQ(Days(2004, 364, 366), "dmm");
    EXPECT_EQ(Days(2005, 1, 2), "m.");
}

TEST_F(ImportTest, KeepsTheOldYearWhereTheNextHasNoUsableText) {
    const ScriptAsk::Message missing{
        "Your KESTA data file for 04 is missing\nTry again or download Default Weather Data.", "No Text"};
    for (const auto& message : {missing, NothingSaved}) {
        Directory.Put("kesta.03", NetworkDays(1, 365));
        if (message == NothingSaved) Directory.Put("kesta.04", "\r\n");
        EXPECT_FALSE(Import(DayOf2003(364), DayOf2003(365 + 3)).Imported);
        EXPECT_EQ(User.Told.back(), message);
        EXPECT_TRUE(State.DownloadFailed);
        EXPECT_EQ(Days(2003, 364, 365), "mm");
        EXPECT_EQ(WeatherFile("06", 2004).Days(), 0);
    }
}

TEST_F(ImportTest, HoldsTheLinesUpToTheFirstWantedDayAgainstYearAndStation) {
    for (const auto& [first, refusal] :
         std::vector<std::pair<std::string, std::string>>{{ANetworkLine(9).Year(" 03 "), ""},
                                                          {ANetworkLine(9).Station("06.0"), ""},
                                                          {ANetworkLine(9).Year("3"), "wrong year"},
                                                          {ANetworkLine(9).Year("2002").Station("7"), "wrong year"},
                                                          {ANetworkLine(9).Station("60"), "wrong station"},
                                                          {ANetworkLine(9).Station(""), "wrong station"},
                                                          {"<!DOCTYPE html>\n<html>\n", "wrong year"}})
        for (const int from : {9, 10}) {  // the line is that of the wanted day, or of the day before it
            SCOPED_TRACE(first);
            StoreOld(from - 1);
            User.Told.clear();
            State.DownloadFailed = false;
            Directory.Put("kesta.03", first + NetworkDays(10, 12));
            const bool refused = !refusal.empty();
            EXPECT_EQ(Import(DayOf2003(from), DayOf2003(12)).Imported, !refused);
            EXPECT_EQ(State.DownloadFailed, refused);
            EXPECT_EQ(Days(2003, from, 12), std::string(static_cast<std::size_t>(13 - from), refused ? '.' : 'm'));
            EXPECT_EQ(User.Texts(), std::vector<std::string>(refused ? 1 : 0, refusal));
        }
}

TEST_F(ImportTest, WritesNothingWithoutAUsableLineOrWhereADayCannotBeComputed) {
    StoreOld(99);
    for (const std::string& text : {std::string("\r\n"), std::string(ANetworkLine(0))}) {
        Directory.Put("kesta.03", text);
        EXPECT_FALSE(Import(DayOf2003(100), DayOf2003(104)).Imported);
        EXPECT_EQ(User.Told.back(), NothingSaved);
    }
    Directory.Put("kesta.03", NetworkDays(99, 101) + ANetworkLine(102).Column(11, std::string(38, '9')));
    EXPECT_FAILURE(Import(DayOf2003(100), DayOf2003(104)),
                   testing::HasSubstr("kesta.03: the line of day 102: Overflow"));
    EXPECT_EQ(Days(2003, 99, 104), "o.....");
}

}  // namespace
}  // namespace veraqua
