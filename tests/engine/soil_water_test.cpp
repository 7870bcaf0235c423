#include "engine/soil_water.h"

#include <array>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/builders.h"

namespace veraqua {
namespace {

using Depths = std::vector<std::array<float, 3>>;  // from, to, m, and the water between, mm

void ExpectWater(const ZoneGrid& grid, const Zones& zones, const Depths& depths) {
    for (const auto& [from, to, water] : depths)
        EXPECT_EQ(SoilWaterBetween(from, to, grid, zones), water) << from << " to " << to << " m";
}

TEST(SoilWater, IsTheSumOfTheSharesOfZonesOrLayers) {
    // Zones of 25, 30, 40 and 50 mm. A boundary counts to the zone below, and below the last zone its value holds on.
    // Upwards the water is negative within a zone, but not over a boundary.
    const Depths inZones{{0, 0.25F, 25}, {0.125F, 0.625F, 62.5},    {0.5F, 1.25F, 140},
                         {2, 3, 200},    {0.1875F, 0.0625F, -12.5}, {0.375F, 0.125F, 27.5}};
    ExpectWater({0.25F, {}, 3}, {100, 120, 160, 200}, inZones);
    // Layers of 25, 60 and 40 mm; the last one's value holds on below it. Upwards over a boundary the surface is the
    // layer's top: .25 * 120 + .125 * 100. An interval that begins below all layers begins in the first one:
    // 60 + (.25 - 1.25) * 100 + .75 * 160.
    const Depths inLayers{{0, 0.5F, 55},       {0.5F, 0.875F, 50},   {0, 1.25F, 165},
                          {0.625F, 0.5F, -15}, {0.5F, 0.125F, 42.5}, {1.25F, 1.5F, 80}};
    ExpectWater({0, {0.25F, 0.5F, 0.25F}, 2}, {100, 120, 160}, inLayers);
    EXPECT_EQ(DepletionPercent(7, 8), 12);   // 12.5: halves go to the even number
    EXPECT_EQ(ZoneAt(0.9144F, 0.3048F), 2);  // three feet of soil in zones of one foot: as singles a little less
}

/// A field taken through a frosty day, which adds no heat. Its Kc is 0.8 at 500 degree days, and 84 mm fill its 0.75 m
/// of roots, which are grown.
struct SteppedField {
    SteppedField() {
        File = AField().Roots(0.75F, 0.75F).Zones(4, 0.25F).Capacity(112).Content(112).Build();
        SetKc(0.8F);
        Zone = {84, 500, 0.75F, 4};
    }

    void SetKc(float kc) {
        File.Field.KcSpan = 1000;
        File.Field.KcSine = {kc};
    }

    DayStep Step(float referenceEt, float rain = 0, float irrigation = 0) {
        const WeatherDay frost = AWeatherDay().Temperature(-5, 3).ReferenceET(referenceEt);
        const DayInput day{frost, irrigation, rain};
        return File.IsHay ? DayStepHay(File.Hay, day, Zone, File.Soil)
                          : DayStepCrop(File.Field, 1, day, Zone, File.Soil);
    }

    FieldFile File;
    RootZone Zone;
};

/// A day from water and days since the last wetting on, and what it leads to.
struct SteppedDay {
    std::int16_t DaysSinceWet;
    float Available, ReferenceEt, Rain, Irrigation;
    std::int16_t NewDaysSinceWet;
    double NewAvailable, Use = 0, Evaporation = 0, Leaching = 0, CutOff = 0;
};

TEST(CropDay, LosesWaterToTheCropTheWetSoilAndDrainage) {
    for (const SteppedDay& day : {SteppedDay{4, 80, 0, 20, 0, 0, 100},  // on the day of a wetting nothing drains
                                  {0, 100, 0, 0, 0, 1, 92, 0, 0, 8},    // half of the excess on the day after it
                                  {1, 92, 0, 0, 0, 2, 84, 0, 0, 8},     // and the rest
                                  {4, 84, 0, 10, 0, 5, 84, 0, 0, 10},   // a small rain on full soil leaves at once
                                  // 15 mm of rain and irrigation together are a wetting.
                                  {4, 40, 0, 10, 4.75F, 5, 54.75},
                                  {4, 40, 0, 9, 6, 0, 55},
                                  // Use goes with the dryness of the day before: ln 51 / ln 101 = .851944.
                                  {4, 42, 5, 0, 0, 5, 42 - 3.407776, 0.8 * 0.851944 * 5},
                                  {4, 0, 5, 12, 0, 5, 12},            // a rain doesn't help on its day
                                  {4, 99, 5, 0, 0, 5, 84, 4, 0, 11},  // overfull soil gives no more than the demand
                                  // Ke is (0.9 - 0.8) times 0.8 and 0.3 on the first and third day after a wetting.
                                  {0, 84, 10, 0, 0, 1, 75.2, 8, 0.8},
                                  {2, 84, 10, 0, 0, 3, 75.7, 8, 0.3},
                                  {3, 84, 10, 0, 0, 4, 76, 8},
                                  // Kd = ln(100 / 84 + 1) / ln 101 = .169902; 1 mm is there, 1.359217 are asked for.
                                  {4, 1, 10, 0, 0, 5, 0, 1.359217, 0, 0, 0.359217}}) {
        SCOPED_TRACE(testing::Message() << day.Available << " mm after " << day.DaysSinceWet << " days");
        SteppedField field;
        field.Zone.Available = day.Available;
        field.Zone.DaysSinceWet = day.DaysSinceWet;
        const DayStep step = field.Step(day.ReferenceEt, day.Rain, day.Irrigation);
        EXPECT_EQ(field.Zone.DaysSinceWet, day.NewDaysSinceWet);
        EXPECT_NEAR(field.Zone.Available, day.NewAvailable, 1e-5);
        EXPECT_NEAR(step.Use, day.Use, 1e-5);
        EXPECT_NEAR(step.Evaporation, day.Evaporation, 1e-5);
        EXPECT_NEAR(step.Leaching, day.Leaching, 1e-5);
        EXPECT_NEAR(step.CutOff, day.CutOff, 1e-5);
    }
}

// Roots grow from 0.25 to 1 m, and come to 0.625 m when Kc is half of that at harvest. The soil holds 200 mm/m.
TEST(RootGrowth, TakesInTheWaterOfTheSoilBelow) {
    SteppedField field;
    field.File = AField().Roots(0.25F, 1).Zones(4, 0.25F).Capacity(200).Content({100, 120, 160, 200}).Build();
    field.SetKc(0.5F);
    field.Zone = {75, 500, 0.375F, 4};
    EXPECT_NEAR(field.Step(0).RootGain, 0.125 * 120 + 0.125 * 160, 1e-4);
    EXPECT_FLOAT_EQ(field.Zone.RootDepth, 0.625F);
}

// Top and low of the curve are 0.6 in any climate; 126 mm fill the 1.125 m of roots.
TEST(Hay, LosesWaterByTheSameRulesAndLeachesAllThatDrains) {
    SteppedField field;
    field.File = AField().Hay().Zones(5, 0.25F).Capacity(112).Content(50).Build();
    field.File.Hay.RootMax = 1.125F;
    field.File.Hay.Curve = {0.023F, 0.857F, 0.00193F, 0.843F, 0.001F, 0, 0.8F, 0.6F, 0.6F, 0.6F, 0.6F, 0.6F, 0.6F};
    field.Zone = {126, 300, 1.125F, 4};
    for (const auto& [rain, leaching] : {std::pair{24.0F, 0}, {0.0F, 12}, {0.0F, 12}})
        EXPECT_EQ(field.Step(0, rain).Leaching, leaching);
    const DayStep step = field.Step(5);  // the third day after the wetting
    EXPECT_NEAR(step.Use, 0.6 * 5, 1e-5);
    EXPECT_NEAR(step.Evaporation, 0.3 * 0.3 * 5, 1e-5);
    EXPECT_NEAR(field.Zone.Available, 126 - 3.45, 1e-4);
}

}  // namespace
}  // namespace veraqua
