#include "engine/curves.h"

#include <vector>

#include "tests/support/builders.h"
#include "tests/support/failure.h"

namespace veraqua {
namespace {

using testing::HasSubstr;

struct PublishedDay {
    float TempMin;
    float TempMax;
    double DegreeDays;
};

// Zalom, Goodell, Wilson, Barnett and Bentley 1983, University of California leaflet 21373, Table 7, degrees F. The
// method knows no unit: thresholds, temperatures and result share one.
TEST(DegreeDays, AgreeWithThePublishedTableInFahrenheit) {
    const std::vector<PublishedDay> table{{96, 110, 35},    {91, 105, 35},   {45, 54, 0},      {38, 50, 0},
                                          {60, 80, 15},     {75, 88, 26.5},  {50, 82, 11.85},  {45, 70, 5.31},
                                          {60, 100, 22.82}, {75, 95, 28.91}, {50, 101, 18.95}, {48, 95, 16.96}};
    for (const PublishedDay& day : table)
        EXPECT_NEAR(DegreeDaysBetween(day.TempMax, day.TempMin, 90, 55), day.DegreeDays, 0.0051)
            << day.TempMin << " to " << day.TempMax;
}

// The University of California's pest management calculator, Ojai 2016, degrees C.
TEST(DegreeDays, AgreeWithThePestManagementCalculator) {
    const std::vector<PublishedDay> table{{7.8F, 19.4F, 2.72},   {15.0F, 23.9F, 7.45},  {10.6F, 34.4F, 10.50},
                                          {14.4F, 39.4F, 13.49}, {12.8F, 35.6F, 11.82}, {10.6F, 38.9F, 11.71},
                                          {9.4F, 34.4F, 10.12},  {11.7F, 33.9F, 10.74}};
    for (const PublishedDay& day : table)
        EXPECT_NEAR(DegreeDaysBetween(day.TempMax, day.TempMin, 33, 12), day.DegreeDays, 0.0051)
            << day.TempMin << " to " << day.TempMax;
}

TEST(DegreeDays, AreExactWhereTheThresholdsDoNotCutTheDay) {
    EXPECT_EQ(DegreeDaysAbove(20, 20, 20), 0);  // no amplitude
    EXPECT_EQ(DegreeDaysAbove(20, 20, 15), 5);
    EXPECT_EQ(DegreeDaysBetween(30, 10, 30, 10), 10);  // the thresholds are the extremes
}

// With the threshold at the mean the formula comes down to amplitude / pi: 10 / 3.141592502593994 is 3.1830990, where
// 10 / 3.14159265 would be 3.1830988.
TEST(DegreeDays, AreSummedWithTheSinglePrecisionPi) { EXPECT_EQ(DegreeDaysAbove(30, 10, 20), 3.1830990F); }

TEST(CropCurve, AddsUpItsHarmonicsOverHalfAPeriodAndIsNeverNegative) {
    FieldHeader crop = AField().Build().Field;  // maize, KcSpan 1820
    EXPECT_EQ(KcCrop(crop, 0), 0);
    // At a quarter, the sines of 45, 90, ... 270 degrees: .70711, 1, .70711, 0, -.70711, -1.
    EXPECT_NEAR(KcCrop(crop, 455), 0.70711 * (1.2137 - 0.0476 + 0.0457) - 0.0113 + 0.0280, 1e-4);
    crop.KcSpan = 1000;
    crop.KcSine = {0.8F};
    EXPECT_EQ(KcCrop(crop, 1500), 0);            // the sine is -1
    EXPECT_NEAR(KcCrop(crop, 2500), 0.8, 1e-6);  // and 1 again
    crop.KcSpan = 0;
    EXPECT_FAILURE(KcCrop(crop, 100), HasSubstr("span of the crop's curve"));
}

/// Hay whose curves all have m = 0.5, so 1 / sqrt(1 + (a x)^2), and meet a x = 0.75, so 0.8, on a day of 30 % humidity
/// and 100 km of wind, and at `GddCut`. By hand: a = .8, b = 1 - .8 = .2; p1 = (.8 - 1.2) .8 + 1.2 = .88; p2 = (1.38 -
/// .88) .2 + .88 = .98; q1 = (.5 - .3) .8 + .3 = .46; q2 = (.21 - .46) .2 + .46 = .41; e = .98 * .001 - .00023 =
/// .00075.
HayHeader HandHay() {
    HayHeader hay;
    hay.GddCut = 400;
    hay.Curve = {0.025F, 0.5F, 0.006F, 0.5F, -0.00023F, 0.001F, 0.5F, 0.8F, 1.2F, 1.38F, 0.5F, 0.3F, 0.21F};
    return hay;
}

TEST(HayCurve, ClimbsFromTheLowToTheCuttingAndFallsBackTheSameWay) {
    HayHeader hay = HandHay();
    // f = 1 - .8 = .2 at GddCut; half way a x = .375, f = 1 - 1 / sqrt(1.140625) = .063671.
    const std::vector<std::pair<float, double>> byHeat{{-1, 0},        {0, 0},      {0.001F, .41},
                                                       {200, .446292}, {400, .524}, {600, .446292},
                                                       {799.99F, .41}, {800, 0},    {2000, 0}};
    for (const auto& [gddSum, kc] : byHeat) EXPECT_NEAR(KcHay(hay, 30, 100, gddSum), kc, 1e-5) << gddSum;
    hay.GddCut = 16383;  // twice as much must fit 16 bits
    EXPECT_GT(KcHay(hay, 30, 100, 5), 0);
    hay.GddCut = 16384;
    EXPECT_FAILURE(KcHay(hay, 30, 100, 5), HasSubstr("twice the degree days"));
    EXPECT_FAILURE(ClimateCurve(0.023, 0.857, -5), HasSubstr("hay curve"));
}

TEST(RootDepth, FollowsTheCropCoefficientAndIsNotCapped) {
    const FieldHeader maize = AField().Roots(0.25F, 1).Build().Field;  // GddHarvest 1132
    EXPECT_EQ(RootDepth(maize, 100, 0, 1.25F), 0.25F);
    EXPECT_EQ(RootDepth(maize, 900, 1.5F, 1.25F), 1.15F);      // past its Kc at harvest: 1.2 * .75 + .25
    EXPECT_EQ(RootDepth(maize, 1000, 0.625F, 1.25F), 0.625F);  // and drawing back: .5 * .75 + .25
    EXPECT_EQ(RootDepth(maize, 1132, 0.625F, 0), 1);
    for (const float kc : {0.0F, 0.5F}) EXPECT_FAILURE(RootDepth(maize, 500, kc, 0), HasSubstr("Kc at harvest"));
}

}  // namespace
}  // namespace veraqua
