#include "engine/season.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "tests/engine/season_fixture.h"

namespace veraqua {
namespace {

using testing::ElementsAre;

std::vector<float> Water(const Season& season, std::size_t days) {
    std::vector<float> water;
    for (std::size_t day = 0; day < days; ++day) water.push_back(season.Days.at(day).Available);
    return water;
}

/// Frost without any evapotranspiration, so that only events change a field.
struct EventTest : SeasonTest {
    EventTest() { DefaultWeather = SteadyWeather(AWeatherDay().Temperature(-5, 3).ReferenceET(0)); }

    /// Soil that can't fill up, dry at planting: a field's water is the sum of what came.
    static AField BottomlessField() { return AField().Capacity(1000).Content(0); }
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
}

// A second entry on one day holds up the list for good. A change of the efficiency on the start day is in force; one of
// the MAD is not, and stops those that follow it.
TEST_F(EventTest, OnOneDayTwiceOrOnTheStartDayHoldUpTheList) {
    FieldFile file = BottomlessField().Rain(Planting + 1, 5).Rain(Planting + 1, 7).Rain(Planting + 3, 9);
    file.Lists.MadChanges = {{Planting - 1, 30}, {Planting, 35}, {Planting + 9, 40}};
    file.Lists.EfficiencyChanges = {{Planting, 0.25F}, {Planting + 1, 0.5F}, {Planting + 1, 0.75F}};
    const Season season = Run(file);
    EXPECT_THAT(Water(season, 4), ElementsAre(5, 5, 5, 5));
    EXPECT_EQ(season.End.Mad, 30);
    EXPECT_EQ(season.End.Efficiency, 0.5);
}

TEST_F(EventTest, OfOneDayCutFirstThenResetTheWaterThenAddTheRain) {
    DefaultWeather = SteadyWeather(AWeatherDay().ReferenceET(0));
    const Season season =
        Run(BottomlessField().Hay().Cutting(Planting + 3, 1).Rain(Planting + 3, 20).With([](FieldFile& file) {
            file.Lists.DepletionChanges = {{Planting + 3, 50}};
        }));
    EXPECT_EQ(season.Days[1].GddSum, 32);
    EXPECT_EQ(season.Days[2], (DayRecord{70, 16, season.Days[2].RootDepthOrKc, 0, 0}));
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

// Every day closes to the rounding of its singles.
TEST_F(SeasonTest, TheWaterAccountOfEveryDayCloses) {
    for (const FieldFile& field :
         std::vector<FieldFile>{LivelyField(), LivelyField(AField().Layers({0.2F, 0.3F, 0.7F})),
                                LivelyField(AField().Hay().Cutting(Planting + 31, 1))}) {
        std::vector<DayStep> account;
        const Season season = Run(field, Planting, Planting, &account);
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
}

}  // namespace
}  // namespace veraqua
