#include "engine/soil_water.h"

#include <initializer_list>
#include <vector>

#include "tests/support/builders.h"
#include "tests/support/failure.h"

namespace veraqua {
namespace {

using testing::HasSubstr;

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
    // Zones of 25, 30, 40 and 50 mm. A boundary counts to the zone below, and below the last zone its value holds on.
    // Upwards the water is negative within a zone, but not over a boundary.
    ExpectWater({{0, 0.125F, 12.5},
                 {0, 0.25F, 25},
                 {0.25F, 0.5F, 30},
                 {0.125F, 0.625F, 62.5},
                 {0, 1, 145},
                 {0.5F, 1.25F, 140},
                 {2, 3, 200},
                 {0.1875F, 0.0625F, -12.5},
                 {0.375F, 0.125F, 27.5}},
                {100, 120, 160, 200});
}

TEST(SoilWaterInZones, TakesTheZoneByTheStoredSingles) {
    EXPECT_EQ(ZoneAt(0.9144F, 0.3048F), 2);  // three feet of soil in zones of one foot: as singles a little less
    EXPECT_EQ(ZoneAt(1.2192F, 0.3048F), 4);
    EXPECT_EQ(ZoneAt(0.3F, 0.3F), 1);
    EXPECT_FAILURE(ZoneAt(0.5F, 0), HasSubstr("zones of 0 m"));
    EXPECT_FAILURE(ExpectWater({{-0.1F, 0.5F, 0}}, {100}), HasSubstr("-0.1"));
}

TEST(SoilWaterInLayers, IsTheSumOfTheirShares) {
    // Layers of 25, 60 and 40 mm; the last one's value holds on below it. Upwards over a boundary the surface is the
    // layer's top: .25 * 120 + .125 * 100. An interval that begins below all layers begins in the first one:
    // 60 + (.25 - 1.25) * 100 + .75 * 160.
    ExpectWater({{0, 0.25F, 25},
                 {0, 0.5F, 55},
                 {0.5F, 0.875F, 50},
                 {0.625F, 0.75F, 15},
                 {0, 1, 125},
                 {0, 1.25F, 165},
                 {0.625F, 0.5F, -15},
                 {0.5F, 0.125F, 42.5},
                 {1.25F, 1.5F, 80}},
                {100, 120, 160}, {0.25F, 0.5F, 0.25F});
    EXPECT_FAILURE(ExpectWater({{0, 1.5F, 0}}, {1, 1, 1, 1, 1, 1, 1}, {0.25F, 0.25F, 0.25F, 0.25F, 0.25F, 0.25F}),
                   HasSubstr("7 layers"));
}

// Allen, Pereira, Raes and Smith 1998, FAO Irrigation and Drainage Paper 56, Example 36: onion, tomato and maize in
// loamy sand, silt and silty clay, in whole mm.
TEST(SoilWater, HoldsThePublishedAmountsAndTheMadIsReachedWhenTheReadilyAvailableIsGone) {
    struct SoilExample {
        float RootDepth;
        int Mad;
        std::int16_t WaterHeld;  ///< mm/m
        double Total;            ///< available water of the root zone, mm
        double Readily;          ///< up to the MAD, mm
    };
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

TEST(DrynessCoefficient, FailsWhereTheRootZoneHoldsNoWater) {
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

TEST(WetSoilEvaporation, EndsWithAGrownCanopyOrCrop) {
    EXPECT_NEAR(WetSoilEvaporation(0.5F, 489.9F, 490, 1), 0.32, 1e-7);
    EXPECT_EQ(WetSoilEvaporation(0.5F, 490, 490, 1), 0);
    EXPECT_EQ(WetSoilEvaporation(0.91F, 300, 490, 1), 0);
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
                                  {4, 40, 0, 10, 6, 0, 56},
                                  {4, 40, 0, 0, 15, 0, 55},
                                  // Use goes with the dryness of the day before: ln 51 / ln 101 = .851944.
                                  {4, 42, 5, 0, 0, 5, 42 - 3.407776, 0.8 * 0.851944 * 5},
                                  {4, 0, 5, 12, 0, 5, 12},            // a rain doesn't help on its day
                                  {4, 99, 5, 0, 0, 5, 84, 4, 0, 11},  // overfull soil gives no more than the demand
                                  // Ke is (0.9 - 0.8) times 0.8, 0.5 and 0.3 on the days after a wetting.
                                  {4, 84, 10, 15, 0, 0, 91, 8},
                                  {0, 84, 10, 0, 0, 1, 75.2, 8, 0.8},
                                  {1, 84, 10, 0, 0, 2, 75.5, 8, 0.5},
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
        EXPECT_EQ(field.File.Soil.Content[2], 112);  // nothing lies below grown roots
    }
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

TEST(RootGrowth, TakesInTheWaterOfTheSoilBelow) {
    // Roots that draw back give water up within a zone and gain it over a boundary.
    for (const auto& [rootsBefore, gain] : {std::pair{0.375F, 0.125 * 120 + 0.125 * 160},
                                            {0.6875F, -0.0625 * 160},
                                            {0.875F, 0.125 * 200 + 0.125 * 160}}) {
        SteppedField field = GrowingField(75, rootsBefore);
        EXPECT_NEAR(field.Step(0).RootGain, gain, 1e-4);
        EXPECT_FLOAT_EQ(field.Zone.RootDepth, 0.625F);
    }
    // It counts for drainage on the same day and for dryness on the next: 75 mm fill the 0.375 m of yesterday; today's
    // 0.625 m hold 125, of which the growth brings 35.
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
    EXPECT_EQ(field.Step(0, 24).Leaching, 0);
    EXPECT_EQ(field.Zone.Available, 150);
    EXPECT_EQ(field.Step(0).Leaching, 12);
    EXPECT_EQ(field.Step(0).Leaching, 12);
    EXPECT_EQ(field.File.Soil.Content[4], 50);
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
