#include "engine/refill.h"

#include <vector>

#include <gmock/gmock.h>

#include "tests/support/failure.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// A soil of four zones or layers, 0.25 m each, that holds 200 mm/m.
struct Soil {
    explicit Soil(std::vector<std::int16_t> content, LayerBounds layers = {}) {
        Profile.Capacity.fill(200);
        std::copy(content.begin(), content.end(), Profile.Content.begin());
        Profile.Bounds = layers;
    }

    /// Lets water drain past roots of this depth. What is left is returned.
    float Refill(float rootTip, float rootMax, float water) {
        const ZoneGrid grid{Profile.Bounds[0] > 0 ? 0 : 0.25F, Profile.Bounds, 3};
        return RefillBelowRoots(rootTip, rootMax, grid, grid, water, Profile);
    }

    std::vector<int> Content() const { return {Profile.Content.begin(), Profile.Content.begin() + 4}; }

    SoilProfile Profile;
};

constexpr LayerBounds FourLayers{0.25F, 0.25F, 0.25F, 0.25F};

struct RefillCase {
    float Water;
    std::vector<int> Content;
    float Left;
};

// The tip's zone, 1, has 0.125 m below it: 80 mm/m of room are 10 mm. Zone 2 has room for 20 mm, and the last, 3, down
// to 0.9375 m for 15 mm.
TEST(RefillOfZones, GoesDownZoneByZone) {
    const std::vector<RefillCase> cases{
        {4, {200, 152, 120, 120}, 0},        // 4 mm on 0.125 m are 32 mm/m
        {10, {200, 200, 120, 120}, 0},       // just full
        {18, {200, 200, 152, 120}, 0},       // 8 mm on 0.25 m
        {30, {200, 200, 200, 120}, 0},       //
        {36, {200, 152, 200, 120}, 0},       // a partial fill of the last zone, 6 mm on 0.1875 m, lands in the tip's
        {45, {200, 200, 200, 200}, 0},       //
        {50, {200, 200, 200, 200}, 5},       // 5 mm leach
        {0.0625F, {200, 120, 120, 120}, 0},  // half a mm/m is lost: halves go to the even number
        {0.1875F, {200, 122, 120, 120}, 0},
    };
    for (const RefillCase& c : cases) {
        Soil soil({200, 120, 120, 120});
        EXPECT_EQ(soil.Refill(0.375F, 0.9375F, c.Water), c.Left) << c.Water << " mm";
        EXPECT_EQ(soil.Content(), c.Content) << c.Water << " mm";
    }
}

// 0.125 m of the last zone, with room for 10 mm.
TEST(RefillOfZones, FillsTheOneZoneThatHoldsRootTipAndDeepestRoot) {
    for (const RefillCase& c : {RefillCase{5, {0, 0, 0, 160}, 0}, {10, {0, 0, 0, 200}, 0}, {12, {0, 0, 0, 200}, 2}}) {
        Soil soil({0, 0, 0, 120});
        EXPECT_EQ(soil.Refill(0.8125F, 0.9375F, c.Water), c.Left);
        EXPECT_EQ(soil.Content(), c.Content);
    }
}

TEST(RefillOfZones, HasNoTailWhereTheDeepestRootEndsOnABoundary) {
    Soil soil({200, 200, 200, 120});
    EXPECT_EQ(soil.Refill(0.875F, 1, 12), 2);  // room for 80 mm/m on 0.125 m
    EXPECT_THAT(soil.Content(), ElementsAre(200, 200, 200, 200));
}

// 240 mm/m on 0.125 m are 5 mm too much.
TEST(RefillOfZones, TakesWaterOutOfAZoneAboveCapacityEvenWithoutDrainage) {
    Soil roomBelow({200, 240, 120, 120});
    EXPECT_EQ(roomBelow.Refill(0.375F, 0.9375F, 0), 0);
    EXPECT_THAT(roomBelow.Content(), ElementsAre(200, 200, 140, 120));
    Soil full({200, 240, 200, 200});
    EXPECT_EQ(full.Refill(0.375F, 0.9375F, 0), 5);
    EXPECT_THAT(full.Content(), ElementsAre(200, 200, 200, 200));
}

TEST(RefillOfZones, FailsBelowTheDescribedSoilAndOnAnEmptyInterval) {
    Soil soil({200, 200, 200, 200});
    EXPECT_FAILURE(soil.Refill(0.375F, 1.3F, 9), HasSubstr("zones 0 to 3, not a zone 4"));
    EXPECT_FAILURE(soil.Refill(0.8F, 0.8F, 9), HasSubstr("water content"));
}

// Layer 2 is judged by the room of the layer below it, 3, which has 40 mm/m: 10 mm, as has what is below the tip.
TEST(RefillOfLayers, TakesALayersIntervalOneLayerFurtherDown) {
    const std::vector<RefillCase> cases{
        {4, {200, 152, 120, 160}, 0},   // 4 mm on the 0.125 m of layer 1 below the tip
        {16, {200, 200, 144, 160}, 0},  // 6 mm on the 0.25 m of layer 3, written to layer 2
        {20, {200, 200, 200, 160}, 0},  // layer 2 set to capacity with the room of layer 3
        {25, {200, 180, 200, 160}, 0},  // the tail, layer 3 again: 5 mm, 160 + 20 written to the tip's layer
        {30, {200, 200, 200, 200}, 0}, {37, {200, 200, 200, 200}, 7},
    };
    for (const RefillCase& c : cases) {
        Soil soil({200, 120, 120, 160}, FourLayers);
        EXPECT_EQ(soil.Refill(0.375F, 1, c.Water), c.Left) << c.Water << " mm";
        EXPECT_EQ(soil.Content(), c.Content) << c.Water << " mm";
    }
}

TEST(RefillOfLayers, FillsTheLastLayerDownToTheDeepestRoot) {
    Soil soil({0, 0, 0, 120}, FourLayers);
    EXPECT_EQ(soil.Refill(0.875F, 0.9375F, 1), 0);  // 1 mm on 0.0625 m
    EXPECT_THAT(soil.Content(), ElementsAre(0, 0, 0, 136));
    EXPECT_EQ(soil.Refill(0.875F, 0.9375F, 6), 2);
    EXPECT_THAT(soil.Content(), ElementsAre(0, 0, 0, 200));
}

// A tip below all layers counts as being in the first one, whose interval then has a negative thickness of 0.875 m: at
// 100 mm/m its room is -175 + 87.5 mm.
TEST(RefillOfLayers, ComputesARootTipBelowAllLayersAsItStands) {
    Soil soil({100, 200, 200, 200}, FourLayers);
    EXPECT_EQ(soil.Refill(1.125F, 1.25F, 5), 92.5F);
    EXPECT_THAT(soil.Content(), ElementsAre(200, 200, 200, 200));
}

}  // namespace
}  // namespace veraqua
