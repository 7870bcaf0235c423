#include "engine/refill.h"

#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

namespace veraqua {
namespace {

/// Soil of four zones or layers of 0.25 m that hold 200 mm/m, and the roots above the water that drains.
struct Profile {
    bool Layered;
    std::vector<std::int16_t> Content;
    float RootTip, RootMax;
};

void ExpectRefill(const Profile& profile, float water, const std::vector<std::int16_t>& content, float left) {
    SoilProfile soil;
    if (profile.Layered) soil.Bounds = {0.25F, 0.25F, 0.25F, 0.25F};
    soil.Capacity.fill(200);
    std::copy(profile.Content.begin(), profile.Content.end(), soil.Content.begin());
    const ZoneGrid grid{profile.Layered ? 0 : 0.25F, soil.Bounds, 3};
    EXPECT_EQ(RefillBelowRoots(profile.RootTip, profile.RootMax, grid, grid, water, soil), left) << water << " mm";
    EXPECT_TRUE(std::equal(content.begin(), content.end(), soil.Content.begin())) << water << " mm";
}

TEST(Refill, OfZonesGoesDownZoneByZone) {
    // The tip's zone, 1, has 0.125 m below it: 80 mm/m of room are 10 mm. Zone 2 has room for 20 mm, and the last, 3,
    // down to 0.9375 m for 15 mm.
    const Profile zones{false, {200, 120, 120, 120}, 0.375F, 0.9375F};
    ExpectRefill(zones, 4, {200, 152, 120, 120}, 0);   // 4 mm on 0.125 m are 32 mm/m
    ExpectRefill(zones, 18, {200, 200, 152, 120}, 0);  // 8 mm on 0.25 m
    ExpectRefill(zones, 36, {200, 152, 200, 120}, 0);  // a partial fill of the last zone, 6 mm, lands in the tip's
    ExpectRefill(zones, 50, {200, 200, 200, 200}, 5);
    ExpectRefill(zones, 0.1875F, {200, 122, 120, 120}, 0);  // halves go to the even number
    // A zone above capacity loses water even without drainage: 5 mm too much.
    ExpectRefill({false, {200, 240, 120, 120}, 0.375F, 0.9375F}, 0, {200, 200, 140, 120}, 0);
}

TEST(Refill, OfLayersTakesALayersIntervalOneLayerFurtherDown) {
    // Layer 2 is judged by the room of the layer below it, 3, which has 40 mm/m: 10 mm, as has what is below the tip.
    const Profile layers{true, {200, 120, 120, 160}, 0.375F, 1};
    ExpectRefill(layers, 16, {200, 200, 144, 160}, 0);  // 6 mm on the 0.25 m of layer 3, written to layer 2
    ExpectRefill(layers, 20, {200, 200, 200, 160}, 0);  // layer 2 set to capacity with the room of layer 3
    ExpectRefill(layers, 25, {200, 180, 200, 160}, 0);  // layer 3 again: 160 + 20 written to the tip's layer
    ExpectRefill(layers, 37, {200, 200, 200, 200}, 7);
    // A tip below all layers counts as being in the first one, whose interval then has a negative thickness of 0.875 m:
    // at 100 mm/m its room is -175 + 87.5 mm.
    ExpectRefill({true, {100, 200, 200, 200}, 1.125F, 1.25F}, 5, {200, 200, 200, 200}, 92.5F);
}

}  // namespace
}  // namespace veraqua
