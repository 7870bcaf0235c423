#include "engine/curves.h"

#include <array>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/builders.h"

namespace veraqua {
namespace {

// Zalom, Goodell, Wilson, Barnett and Bentley 1983, University of California leaflet 21373, Table 7, degrees F. The
// method knows no unit: thresholds, temperatures and result share one.
TEST(DegreeDays, AgreeWithThePublishedTable) {
    const std::vector<std::array<float, 3>> table{
        {96, 110, 35},    {91, 105, 35},   {45, 54, 0},       {38, 50, 0},      {60, 80, 15},      {75, 88, 26.5F},
        {50, 82, 11.85F}, {45, 70, 5.31F}, {60, 100, 22.82F}, {75, 95, 28.91F}, {50, 101, 18.95F}, {48, 95, 16.96F}};
    for (const auto& [tempMin, tempMax, degreeDays] : table)
        EXPECT_NEAR(DegreeDaysBetween(tempMax, tempMin, 90, 55), degreeDays, 0.0051) << tempMin << " to " << tempMax;
    // At the mean it comes down to amplitude / pi: 10 / 3.141592502593994, where 10 / 3.14159265 would be 3.1830988.
    EXPECT_EQ(DegreeDaysAbove(30, 10, 20), 3.1830990F);
}

TEST(CropCurve, AddsUpItsHarmonicsOverHalfAPeriodAndIsNeverNegative) {
    FieldHeader crop = AField().Build().Field;  // maize, KcSpan 1820
    // At a quarter, the sines of 45, 90, ... 270 degrees: .70711, 1, .70711, 0, -.70711, -1.
    EXPECT_NEAR(KcCrop(crop, 455), 0.70711 * (1.2137 - 0.0476 + 0.0457) - 0.0113 + 0.0280, 1e-4);
    crop.KcSine = {0.8F};
    EXPECT_EQ(KcCrop(crop, 2730), 0);            // the sine is -1
    EXPECT_NEAR(KcCrop(crop, 4550), 0.8, 1e-6);  // and 1 again
}

// All curves have m = 0.5, so 1 / sqrt(1 + (a x)^2), and meet a x = 0.75, so 0.8, on a day of 30 % humidity and 100 km
// of wind, and at `GddCut`. By hand: a = .8, b = 1 - .8 = .2; p1 = (.8 - 1.2) .8 + 1.2 = .88; p2 = (1.38 - .88) .2 +
// .88 = .98; q1 = (.5 - .3) .8 + .3 = .46; q2 = (.21 - .46) .2 + .46 = .41; e = .98 * .001 - .00023 = .00075.
TEST(HayCurve, ClimbsFromTheLowToTheCuttingAndFallsBackTheSameWay) {
    HayHeader hay;
    hay.GddCut = 400;
    hay.Curve = {0.025F, 0.5F, 0.006F, 0.5F, -0.00023F, 0.001F, 0.5F, 0.8F, 1.2F, 1.38F, 0.5F, 0.3F, 0.21F};
    // f = 1 - .8 = .2 at GddCut; half way a x = .375, f = 1 - 1 / sqrt(1.140625) = .063671.
    for (const auto& [gddSum, kc] : std::vector<std::pair<float, double>>{
             {0, 0}, {0.001F, .41}, {200, .446292}, {400, .524}, {600, .446292}, {799.99F, .41}, {800, 0}})
        EXPECT_NEAR(KcHay(hay, 30, 100, gddSum), kc, 1e-5) << gddSum;
}

TEST(RootDepth, FollowsTheCropCoefficientAndIsNotCapped) {
    const FieldHeader maize = AField().Roots(0.25F, 1).Build().Field;  // GddHarvest 1132
    EXPECT_EQ(RootDepth(maize, 900, 1.5F, 1.25F), 1.15F);              // past its Kc at harvest: 1.2 * .75 + .25
    EXPECT_EQ(RootDepth(maize, 1000, 0.625F, 1.25F), 0.625F);          // and drawing back: .5 * .75 + .25
    EXPECT_EQ(RootDepth(maize, 1132, 0.625F, 0), 1);
}

}  // namespace
}  // namespace veraqua
