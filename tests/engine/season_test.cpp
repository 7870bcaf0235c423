#include "engine/season.h"

#include <cmath>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "core/crop_table.h"
#include "data/embedded.h"
#include "engine/curves.h"
#include "tests/engine/season_fixture.h"
#include "tests/support/measured_weather.h"
#include "weather/default_weather.h"
#include "weather/reference_et.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

std::vector<float> Water(const Season& season, std::size_t days) {
    std::vector<float> water;
    for (std::size_t day = 0; day < days; ++day) water.push_back(season.Days.at(day).Available);
    return water;
}

struct EventTest : SeasonTest {
    EventTest() { DefaultWeather = SteadyWeather(Frost()); }
};

TEST_F(EventTest, WaterUpToTheStartIsInItsRowAlready) {
    const FieldFile file = BottomlessField()
                               .Irrigation(Planting - 3, 20)
                               .Irrigation(Planting, 20)
                               .Rain(Planting + 1, 5)
                               .Rain(Planting + 2, 8)
                               .Days({{0, 0, 0.3F, 0, 4}, {5, 0, 0.3F, 0, 5}});
    EXPECT_THAT(Water(Run(file), 3), ElementsAre(5, 13, 13));
    EXPECT_THAT(Water(Run(file, Planting + 1), 2), ElementsAre(13, 13));
    const Season fromLastRow = Run(file, Planting + 30);  // beyond the rows: from the last of them
    EXPECT_EQ(fromLastRow.StartDay, Planting + 1);
    EXPECT_THAT(Water(fromLastRow, 2), ElementsAre(13, 13));
}

TEST_F(EventTest, TheSecondOfTwoOnOneDayHoldsUpTheListForGood) {
    const Season season = Run(
        BottomlessField().Rain(Planting + 1, 5).Rain(Planting + 1, 7).Rain(Planting + 3, 9).With([](FieldFile& file) {
            file.Lists.MadChanges = {{Planting + 1, 30}, {Planting + 1, 35}, {Planting + 9, 40}};
            file.Lists.EfficiencyChanges = {{Planting + 1, 0.25F}, {Planting + 1, 0.5F}, {Planting + 9, 0.75F}};
        }));
    EXPECT_THAT(Water(season, 4), ElementsAre(5, 5, 5, 5));
    EXPECT_EQ(season.End.Mad, 30);
    EXPECT_EQ(season.End.Efficiency, 0.25);
}

// A change of the efficiency on the start day is in force; one of the MAD is not, and stops those that follow it.
TEST_F(EventTest, ChangesOnTheStartDayAreInForceForTheEfficiencyOnly) {
    FieldFile file = BottomlessField().Irrigation(Planting + 2, 20).Irrigation(Planting + 9, 20);
    file.Lists.MadChanges = {{Planting - 1, 30}, {Planting, 35}, {Planting + 9, 40}};
    file.Lists.EfficiencyChanges = {{Planting - 1, 0.25F}, {Planting, 0.5F}, {Planting + 9, 0.75F}};
    const Season season = Run(file);
    EXPECT_EQ(season.End.Mad, 30);
    EXPECT_EQ(season.End.Efficiency, 0.75);
    EXPECT_THAT(Water(season, 9), ElementsAre(0, 10, 10, 10, 10, 10, 10, 10, 25));
}

TEST_F(EventTest, OfOneDayCutFirstThenResetTheWaterThenAddTheRain) {
    DefaultWeather = SteadyWeather(AWeatherDay().ReferenceET(0));
    const Season season =
        Run(BottomlessField().Hay().Cutting(Planting + 3, 1).Rain(Planting + 3, 20).With([](FieldFile& file) {
            file.Lists.DepletionChanges = {{Planting + 3, 50}};
        }));
    EXPECT_EQ(season.Days[1].GddSum, 32);
    EXPECT_EQ(season.Days[2], (DayRecord{70, 16, season.Days[2].RootDepthOrKc, 0, 0}));
    // Kc of the first day of growth, a little above the low of the curve, which is 0.3 to 0.5.
    EXPECT_GT(season.Days[2].RootDepthOrKc, 0.3F);
    EXPECT_LT(season.Days[2].RootDepthOrKc, 0.6F);
}

TEST_F(SeasonTest, WeatherIsMeasuredDefaultOrAskedFor) {
    const auto source = [](std::string_view name) { return WeatherDay(AWeatherDay().From(name)); };
    AWeatherYear("06", 2003)
        .Through(200)
        .On(122, source("default"))
        .On(123, source(""))
        .On(124, source("Kesta"))
        .On(125, AWeatherDay().Temperature(1, MissingDayMark))
        .With(126, [](WeatherDay& day) { day.DayOfYear = 127; })
        .On(195, source("mine"))
        .Store();
    AWeatherYear("06", 2008).Store();
    DefaultWeather = SteadyWeather(AWeatherDay().ReferenceET(2));
    using enum SeasonWeather::Found;
    const SeasonWeather weather("06", Planting, JulianFromDayOfYear(195, 2003), DefaultWeather);
    WeatherDay day;
    for (const auto& [dayOfYear, found, referenceEt] : {std::tuple{121, Usable, 6.0F},
                                                        {122, Usable, 6.0F},
                                                        {123, Missing, 2.0F},
                                                        {124, Missing, 2.0F},
                                                        {125, Usable, 2.0F},
                                                        {195, Usable, 6.0F},
                                                        {196, Usable, 2.0F}}) {
        EXPECT_EQ(weather.Get(JulianFromDayOfYear(dayOfYear, 2003), {dayOfYear, 2003}, day), found) << dayOfYear;
        EXPECT_EQ(day.ReferenceET, referenceEt) << dayOfYear;
    }
    EXPECT_EQ(weather.Get(JulianFromDayOfYear(126, 2003), {126, 2003}, day), Damaged);
    // Behind the end of the file, in a year without one, and in the sixth year, which is not reached.
    const SeasonWeather tooLong("06", Planting, JulianFromDate(6, 1, 2008), DefaultWeather);
    for (const DayInYear place : {DayInYear{201, 2003}, {1, 2004}, {1, 2008}})
        EXPECT_EQ(tooLong.Get(JulianFromDayOfYear(place.DayOfYear, place.Year), place, day), Damaged) << place.Year;
}

TEST_F(SeasonTest, WeatherGoesOnInTheNextYearsFile) {
    const JulianValue planted = JulianFromDate(12, 30, 2004);  // 2004 has 366 days
    AWeatherYear("06", 2004).Every(AWeatherDay().ReferenceET(1)).On(366, AWeatherDay().ReferenceET(2)).Store();
    AWeatherYear("06", 2005).Through(2).On(1, AWeatherDay().ReferenceET(4)).Store();
    DefaultWeather = SteadyWeather(AWeatherDay().ReferenceET(8));
    const Season season = Run(AField().PlantedOn(planted), planted, JulianFromDate(1, 2, 2005));
    std::vector<float> sums;
    for (std::size_t day = 0; day < 4; ++day) sums.push_back(season.Days.at(day).EtrSum);
    EXPECT_THAT(sums, ElementsAre(2, 6, 12, 20));
}

TEST_F(SeasonTest, EndsByItsDaysOrByHeatWhenTheCurveIsBackAtZero) {
    EXPECT_THAT(Run(AField()).Days, SizeIs(160));
    FieldFile late = AField();
    late.Field.SeasonDays = 300;
    EXPECT_THAT(Run(late).Days, SizeIs(166));           // 166 times 11 degree days are past the curve's 1820
    EXPECT_THAT(Run(AField().Hay()).Days, SizeIs(62));  // 62 times 16 are past twice 490
}

TEST_F(EventTest, AFieldThatDriedOutBeforeTheForecastIsPredictedForTheSeasonsLastDay) {
    const Season season = Run(BottomlessField());
    EXPECT_EQ(season.LastDay, Planting + 160);
    EXPECT_EQ(season.Result.Row.NextIrrDay, season.LastDay);
    EXPECT_EQ(season.Result.Row.NextIrrAmount, 353);  // 300 mm by an efficiency of 0.85
}

// Roots stay at 0.5 m in zones of 0.3 m that hold 100 mm/m. Below them zone 1 has room for 4 mm: of the first 6 mm two
// go on to zone 2, 6.7 mm/m of it. The next 9 mm all go there, 30 mm/m. Of the last 5 mm it takes 0.9.
TEST_F(EventTest, EachGainOfADeeperZoneKeepsTheProfileBeforeItAndTheRestLeaches) {
    const Season season = Run(AField()
                                  .Roots(0.5F, 1)
                                  .Capacity(100)
                                  .Content({100, 60, 60, 100})
                                  .Days({{50, 0, 0.5F, 0, 4}})
                                  .Rain(Planting + 2, 6)
                                  .Rain(Planting + 5, 9)
                                  .Rain(Planting + 8, 5));
    EXPECT_THAT(season.History, ElementsAre(ProfileRecord{Planting + 2, {100, 60, 60, 100}},
                                            ProfileRecord{Planting + 5, {100, 100, 67, 100}},
                                            ProfileRecord{Planting + 8, {100, 100, 97, 100}}));
    EXPECT_EQ(season.Soil.Content, (Zones{100, 100, 100, 100}));
    EXPECT_THAT(season.Leaching, ElementsAre(EventRecord{Planting + 8, 4}));
    EXPECT_EQ(season.End.Available, 50);
}

/// Plants the field in soil that is half full and reaches down to its deepest roots, with a season of rain and
/// irrigation; hay is cut.
FieldFile Planted(FieldFile field, JulianValue planted, bool variableSoil) {
    HeaderCommon& header = field.Header();
    header.PlantDay = planted;
    header.MAD = 50;
    header.IrrEff = 0.85F;
    if (variableSoil) field.Soil.Bounds = {0.2F, 0.3F, header.RootMax};
    header.CapacityInterval = header.ContentInterval = variableSoil ? 0 : 0.3F;
    header.CapacityTop = header.ContentTop = static_cast<std::int16_t>(variableSoil ? 2 : ZoneAt(header.RootMax, 0.3F));
    for (std::size_t zone = 0; zone <= static_cast<std::size_t>(header.ContentTop); ++zone) {
        field.Soil.Capacity[zone] = static_cast<std::int16_t>(150 - 5 * zone);
        field.Soil.Content[zone] = static_cast<std::int16_t>(70 + 10 * zone);
    }
    const float roots = field.IsHay ? header.RootMax : field.Field.RootStart;
    const ZoneGrid grid = ContentGrid(header, field.Soil.Bounds);
    field.Days = {{SoilWaterBetween(0, roots, grid, field.Soil.Content), 0, roots, 0, 4}};
    for (std::int16_t day = 3; day < header.SeasonDays; day = static_cast<std::int16_t>(day + 9)) {
        field.Lists.Rain.push_back({planted + day, day});
        field.Lists.Irrigation.push_back({planted + day + 4, 40});
        if (field.IsHay && day % 4 == 0) field.Lists.Cuttings.push_back({planted + day, day});
    }
    return field;
}

/// Every day closes to the rounding of its singles.
void ExpectClosedAccount(const FieldFile& field, const Season& season, const std::vector<DayStep>& account) {
    ASSERT_EQ(account.size(), season.Days.size());
    double before = field.Days[0].Available;
    for (std::size_t i = 0; i < account.size(); ++i) {
        const DayStep& step = account[i];
        const double after = season.Days[i].Available;
        const double received = step.Rain + step.Irrigation + step.RootGain + step.CutOff;
        ASSERT_NEAR(before + received - step.Use - step.Evaporation - step.Drainage, after, 5e-5) << "day " << i;
        ASSERT_NEAR(step.Drainage, step.Refill + step.Leaching, 1e-6) << "day " << i;
        ASSERT_TRUE(step.Kd >= 0 && step.Kd <= 1 && step.CutOff >= 0 && after >= 0) << "day " << i;
        before = after;
    }
}

/// A measured year of station 06, its gaps filled with the region's default weather.
void StoreMeasuredYear(int year) {
    const auto single = [](double value) { return static_cast<float>(value); };
    WeatherFile file("06", year);
    for (const MeasuredDay& m : WholeDays(VERAQUA_TEST_DATA "/weather/06" + YearSuffix(year) + "rd.txt")) {
        WeatherDay day = AWeatherDay()
                             .DayOfYear(m.DayOfYear)
                             .Temperature(single(m.TempMin), single(m.TempMax))
                             .Humidity(single(m.HumidityMin), single(m.HumidityMax))
                             .Wind(single(m.WindSpeed * 86.4), 1.6F)
                             .Radiation(single(m.Radiation / 0.041868));
        day.ReferenceET = ReferenceEvapotranspiration(day);
        file.Put(m.DayOfYear, day);
    }
    for (int rest = file.Days() + 1; rest <= DaysInYear(year); ++rest)
        file.Put(rest, DefaultDay(State.WeatherCoeff, rest));
    file.Save();
}

TEST_F(SeasonTest, TheWaterAccountOfEveryDayOfEveryCropCloses) {
    for (const char* const name : {"crop.dat", "weathdef.dat"}) Directory.Put(name, EmbeddedFile(name));
    ASSERT_TRUE(LoadWeatherCoefficients(User, RegionOfStation("06")));
    DefaultWeather = State.WeatherCoeff;
    for (const int year : {2001, 2002}) StoreMeasuredYear(year);
    const std::vector<std::pair<JulianValue, JulianValue>> seasons{
        {JulianFromDate(4, 10, 2001), JulianFromDate(12, 31, 2002)},  // planting, last real weather
        {JulianFromDate(10, 20, 2001), JulianFromDate(1, 15, 2002)},
        {JulianFromDate(5, 1, 2003), JulianFromDate(4, 30, 2003)}};
    for (const Crop& crop : ReadCropTable(User)) {
        FieldFile field;
        field.IsHay = crop.IsHay();
        field.Field = crop.Field;
        field.Hay = crop.Hay;
        for (const auto& [planted, lastReal] : seasons) {
            for (const bool variableSoil : {false, true}) {
                SCOPED_TRACE(crop.Name + (variableSoil ? " in layers" : " in zones"));
                field = Planted(field, planted, variableSoil);
                std::vector<DayStep> account;
                ExpectClosedAccount(field, Run(field, planted, lastReal, &account), account);
                field.Lists = {};
                field.Soil = {};
            }
        }
    }
}

}  // namespace
}  // namespace veraqua
