#include "engine/soil_water.h"

#include <array>
#include <initializer_list>
#include <vector>

#include "tests/support/builders.h"
#include "tests/support/failure.h"

namespace veraqua {
namespace {

using testing::HasSubstr;

// -------------------------------------------------------------------------------------------- water between two depths

struct DepthCase {
    float From;
    float To;
    double Water;
};

/// Checks the cases on a soil of these zones; lengths of layers, if there are any, else zones of 0.25 m.
void ExpectWater(const std::vector<DepthCase>& cases, std::initializer_list<std::int16_t> values,
                 const LayerBounds& layers = {}) {
    Zones zones{};
    std::copy(values.begin(), values.end(), zones.begin());
    const ZoneGrid grid{0.25F, layers, static_cast<int>(values.size()) - 1};
    for (const DepthCase& c : cases)
        EXPECT_EQ(SoilWaterBetween(c.From, c.To, grid, zones), c.Water) << c.From << " to " << c.To << " m";
}

TEST(SoilWaterInZones, IsTheSumOfTheirShares) {
    ExpectWater({{0, 0, 0},
                 {0, 0.125F, 12.5},
                 {0, 0.25F, 25},  // a boundary counts to the zone below, with a share of 0
                 {0.25F, 0.5F, 30},
                 {0.125F, 0.625F, 62.5},  // 12.5 + 30 + 20
                 {0, 1, 145},             // 25 + 30 + 40 + 50
                 {0.5F, 1.25F, 140},      // below the last zone its value holds on: 40 + .5 * 200
                 {2, 3, 200},
                 {0.7F, 0.7F, 0}},
                {100, 120, 160, 200});
}

TEST(SoilWaterInZones, IsNegativeUpwardsWithinAZoneButNotOverABoundary) {
    ExpectWater({{0.1875F, 0.0625F, -12.5}, {0.375F, 0.125F, 0.125 * 120 + 0.125 * 100}}, {100, 120, 160, 200});
}

TEST(SoilWaterInZones, TakesTheZoneByTheStoredSingles) {
    EXPECT_EQ(ZoneAt(0.9144F, 0.3048F), 2);  // three feet of soil in zones of one foot: as singles a little less
    EXPECT_EQ(ZoneAt(1.2192F, 0.3048F), 4);
    EXPECT_EQ(ZoneAt(0.3F, 0.3F), 1);
    EXPECT_FAILURE(ZoneAt(0.5F, 0), HasSubstr("zones of 0 m"));
    EXPECT_FAILURE(ExpectWater({{-0.1F, 0.5F, 0}}, {100}), HasSubstr("-0.1"));
}

TEST(SoilWaterInLayers, IsTheSumOfTheirShares) {
    ExpectWater(
        {{0, 0, 0},
         {0, 0.25F, 25},
         {0, 0.5F, 55},       // 25 + .25 * 120
         {0.5F, 0.875F, 50},  // .25 * 120 + .125 * 160
         {0.625F, 0.75F, 15},
         {0, 1, 125},      // 25 + 60 + 40
         {0, 1.25F, 165},  // below the last layer its value holds on
         {0.25F, 0.25F, 0},
         {0.625F, 0.5F, -15},   // upwards
         {0.5F, 0.125F, 42.5},  // over the boundary: .25 * 120 + .125 * 100, the surface being the layer's top
         // An interval that begins below all layers begins in the first one: 60 + (.25 - 1.25) * 100 + .75 * 160
         {1.25F, 1.5F, 80}},
        {100, 120, 160}, {0.25F, 0.5F, 0.25F});
}

TEST(SoilWaterInLayers, FailsWithMoreLayersThanHaveAThickness) {
    const LayerBounds six{0.25F, 0.25F, 0.25F, 0.25F, 0.25F, 0.25F};
    ExpectWater({{0, 1.5F, 165}}, {100, 110, 120, 110, 120, 100}, six);
    EXPECT_FAILURE(ExpectWater({{0, 1.5F, 0}}, {1, 1, 1, 1, 1, 1, 1}, six), HasSubstr("7 layers"));
}

struct SoilExample {
    float RootDepth;
    int Mad;
    std::int16_t WaterHeld;  ///< mm/m
    double Total;            ///< available water of the root zone, mm
    double Readily;          ///< up to the MAD, mm
};

// Allen, Pereira, Raes and Smith 1998, FAO Irrigation and Drainage Paper 56, Example 36: onion, tomato and maize in
// loamy sand, silt and silty clay, in whole mm.
TEST(SoilWater, HoldsThePublishedAmountsAndTheMadIsReachedWhenTheReadilyAvailableIsGone) {
    const std::vector<SoilExample> examples{
        {0.4F, 30, 90, 36, 11},  {0.4F, 30, 170, 68, 20},   {0.4F, 30, 120, 48, 14},
        {0.8F, 40, 90, 72, 29},  {0.8F, 40, 170, 136, 54},  {0.8F, 40, 120, 96, 38},
        {1.2F, 55, 90, 108, 59}, {1.2F, 55, 170, 204, 112}, {1.2F, 55, 120, 144, 79}};
    for (const SoilExample& e : examples) {
        Zones capacity;
        capacity.fill(e.WaterHeld);
        for (const ZoneGrid& grid : {ZoneGrid{0.3F, {}, 4}, ZoneGrid{0, {0.3F, 0.5F, 0.7F}, 2}}) {
            const float total = SoilWaterBetween(0, e.RootDepth, grid, capacity);
            EXPECT_NEAR(total, e.Total, 0.01);
            const auto atMad = static_cast<float>(total * (1 - e.Mad / 100.0));
            EXPECT_NEAR(total - atMad, e.Readily, 0.51);
            EXPECT_EQ(DepletionPercent(atMad, total), static_cast<float>(e.Mad));
        }
    }
}

// --------------------------------------------------------------------------------------------- dryness and evaporation

TEST(DrynessCoefficient, RisesFromZeroInDrySoilToOneAtCapacity) {
    EXPECT_EQ(DrynessCoefficient(0, 84), 0);
    EXPECT_NEAR(DrynessCoefficient(42, 84), 0.851944, 1e-6);  // ln 51 / ln 101
    EXPECT_EQ(DrynessCoefficient(84, 84), 1);
    EXPECT_EQ(DrynessCoefficient(100, 84), 1);
    for (const float water : {0.0F, 20.0F}) EXPECT_FAILURE(DrynessCoefficient(water, 0), HasSubstr("capacity"));
    EXPECT_FAILURE(DrynessCoefficient(-1, 84), HasSubstr("Kd"));  // the logarithm of a negative number
}

TEST(DepletionPercent, IsAWholeNumberWithHalvesToEven) {
    EXPECT_EQ(DepletionPercent(7, 8), 12);   // 12.5
    EXPECT_EQ(DepletionPercent(5, 8), 38);   // 37.5
    EXPECT_EQ(DepletionPercent(9, 8), -12);  // above capacity
    EXPECT_FAILURE(DepletionPercent(7, 0), HasSubstr("depletion"));
    EXPECT_FAILURE(DepletionPercent(0, 0), HasSubstr("depletion"));
}

// Ke, 0.9 - Kc, for a Kc of 0.5, on the days after a wetting.
TEST(WetSoilEvaporation, LastsThreeDaysUnlessTheCanopyOrTheCropIsGrown) {
    const std::vector<double> byDay{0, 0.32, 0.2, 0.12, 0, 0};
    for (std::size_t day = 0; day < byDay.size(); ++day)
        EXPECT_NEAR(WetSoilEvaporation(0.5F, 489.9F, 490, static_cast<int>(day)), byDay[day], 1e-7);
    EXPECT_EQ(WetSoilEvaporation(0.5F, 490, 490, 1), 0);
    EXPECT_EQ(WetSoilEvaporation(0.91F, 300, 490, 1), 0);
}

// ----------------------------------------------------------------------------------------------------------- day steps

/// A field taken through frosty days, which add no heat. Its Kc is 0.8 at 500 degree days, and 84 mm fill its 0.75 m of
/// roots, which are grown.
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

    /// A day that begins with so much water.
    DayStep StepFrom(float available, float referenceEt, float rain = 0) {
        Zone.Available = available;
        return Step(referenceEt, rain);
    }

    float AfterDay(float referenceEt, float rain = 0) {
        Step(referenceEt, rain);
        return Zone.Available;
    }

    FieldFile File;
    RootZone Zone;
};

TEST(Drainage, HalfOfTheExcessLeavesOnTheDayAfterAWettingAndTheRestOnTheNext) {
    SteppedField field;
    field.Zone.Available = 80;
    EXPECT_EQ(field.AfterDay(0, 20), 100);  // on the day itself nothing drains
    EXPECT_EQ(field.AfterDay(0), 92);
    EXPECT_EQ(field.AfterDay(0), 84);
}

TEST(Drainage, OfASmallRainOnFullSoilLeavesAtOnceAndLeachesWholeFromGrownRoots) {
    SteppedField field;
    field.File.Soil.Content.fill(0);
    EXPECT_EQ(field.Step(0, 10).Leaching, 10);
    EXPECT_EQ(field.Zone.Available, 84);
    EXPECT_EQ(field.File.Soil.Content, Zones{});
}

TEST(WettingCounter, StartsAnewAtFifteenMillimetresOfRainAndIrrigationTogether) {
    const std::vector<std::array<float, 3>> cases{{10, 6, 0}, {10, 4.9F, 5}, {15, 0, 0}, {0, 15, 0}, {14.99F, 0, 5}};
    for (const auto& [rain, irrigation, days] : cases) {
        SteppedField field;
        field.Step(0, rain, irrigation);
        EXPECT_EQ(field.Zone.DaysSinceWet, days) << rain << " + " << irrigation;
    }
}

TEST(CropUse, IsThatOfTheDrynessOfTheDayBefore) {
    SteppedField field;
    EXPECT_NEAR(field.StepFrom(42, 5).Use, 0.8 * 0.851944 * 5, 1e-5);
    EXPECT_NEAR(field.Zone.Available, 42 - 3.407777, 1e-5);
    EXPECT_EQ(field.StepFrom(0, 5, 12).Use, 0);  // a rain doesn't help on its day
    EXPECT_EQ(field.Zone.Available, 12);
    EXPECT_NEAR(field.StepFrom(99, 5).Use, 4, 1e-6);  // overfull soil gives no more than the demand
}

// Ke is (0.9 - 0.8) times 0.8, 0.5 and 0.3; Kd is 1 as long as the soil is full.
TEST(CropUse, GoesWithTheEvaporationOfWetSoil) {
    SteppedField field;
    EXPECT_EQ(field.StepFrom(84, 10, 15).Evaporation, 0);
    for (const double evaporation : {0.8, 0.5, 0.3, 0.0}) {
        const DayStep step = field.StepFrom(84, 10);
        EXPECT_NEAR(step.Evaporation, evaporation, 1e-6) << "day " << field.Zone.DaysSinceWet;
        EXPECT_NEAR(field.Zone.Available, 84 - 8 - evaporation, 1e-5);
    }
}

// Kd = ln(100 / 84 + 1) / ln 101 = .169902; 1 mm is there, 1.359217 are asked for.
TEST(CropUse, BeyondTheWaterThereIsCutOffAndNotCarriedOn) {
    SteppedField field;
    EXPECT_NEAR(field.StepFrom(1, 10).CutOff, 0.359217, 1e-5);
    EXPECT_EQ(field.Zone.Available, 0);
}

/// Roots that grow from 0.25 to 1 m, and come to 0.625 m on the first day, when Kc is half of that at harvest. The soil
/// holds 200 mm/m.
SteppedField GrowingField(float available, float rootDepth) {
    SteppedField field;
    field.File = AField().Roots(0.25F, 1).Zones(4, 0.25F).Capacity(200).Content({100, 120, 160, 200}).Build();
    field.SetKc(0.5F);
    field.Zone = {available, 500, rootDepth, 4};
    return field;
}

TEST(RootGrowth, PicksUpTheWaterOfTheSoilBelow) {
    SteppedField field = GrowingField(75, 0.375F);
    EXPECT_NEAR(field.AfterDay(0), 75 + 0.125 * 120 + 0.125 * 160, 1e-4);
    EXPECT_FLOAT_EQ(field.Zone.RootDepth, 0.625F);
}

TEST(RootGrowth, BackwardsGivesWaterUpWithinAZoneAndGainsItOverABoundary) {
    EXPECT_NEAR(GrowingField(75, 0.6875F).Step(0).RootGain, -0.0625 * 160, 1e-4);
    EXPECT_NEAR(GrowingField(75, 0.875F).Step(0).RootGain, 0.125 * 200 + 0.125 * 160, 1e-4);
}

// 75 mm fill the 0.375 m of yesterday; today's 0.625 m hold 125, of which the growth brings 35.
TEST(RootGrowth, CountsForDrainageOnTheSameDayAndForDrynessOnTheNext) {
    const DayStep step = GrowingField(75, 0.375F).Step(2, 14);
    EXPECT_EQ(step.Kd, 1);
    EXPECT_EQ(step.Drainage, 0);
    EXPECT_NEAR(GrowingField(85, 0.375F).Step(0, 14).Drainage, 9, 1e-4);
}

// The tip at 0.625 m stands in the zone of 160 mm/m, whose lower half has room for 5 mm: first 3 mm, 24 mm/m, then the
// last 2; the zone below is full.
TEST(RootGrowth, LetsDrainageRefillTheSoilBelowTheRootsBeforeItLeaches) {
    SteppedField field = GrowingField(125, 0.625F);
    DayStep step = field.Step(0, 3);
    EXPECT_NEAR(step.Refill, 3, 1e-4);
    EXPECT_EQ(step.Leaching, 0);
    EXPECT_EQ(field.File.Soil.Content[2], 184);
    step = field.Step(0, 6);
    EXPECT_NEAR(step.Drainage, 6, 1e-4);
    EXPECT_NEAR(step.Leaching, 4, 1e-4);
    EXPECT_EQ(field.File.Soil.Content[2], 200);
}

// Top and low of the curve are 0.6 in any climate; 126 mm fill the 1.125 m of roots.
TEST(Hay, LosesWaterByTheSameRulesAndLeachesAllThatDrains) {
    SteppedField field;
    field.File = AField().Hay().Zones(5, 0.25F).Capacity(112).Content(50).Build();
    field.File.Hay.RootMax = 1.125F;
    field.File.Hay.Curve = {0.023F, 0.857F, 0.00193F, 0.843F, 0.001F, 0, 0.8F, 0.6F, 0.6F, 0.6F, 0.6F, 0.6F, 0.6F};
    field.Zone = {126, 300, 1.125F, 4};
    EXPECT_EQ(field.AfterDay(0, 24), 150);
    EXPECT_EQ(field.Step(0).Leaching, 12);
    EXPECT_EQ(field.Step(0).Leaching, 12);
    EXPECT_EQ(field.File.Soil.Content, AField().Hay().Zones(5, 0.25F).Content(50).Build().Soil.Content);
    const DayStep step = field.Step(5);  // the third day after the wetting
    EXPECT_NEAR(step.Use, 0.6 * 5, 1e-5);
    EXPECT_NEAR(step.Evaporation, 0.3 * 0.3 * 5, 1e-5);
    EXPECT_NEAR(field.Zone.Available, 126 - 3.45, 1e-4);
    field.Zone.DaysSinceWet = 0;
    field.Zone.GddSum = 490;  // GddCut: the soil is under a closed stand
    EXPECT_EQ(field.Step(5).Evaporation, 0);
}

}  // namespace
}  // namespace veraqua
