#include "engine/refill.h"

#include <vector>

#include "tests/support/failure.h"

namespace veraqua {
namespace {

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

void ExpectRefills(const std::vector<RefillCase>& cases, const Soil& before, float rootTip, float rootMax) {
    for (const RefillCase& c : cases) {
        Soil soil = before;
        EXPECT_EQ(soil.Refill(rootTip, rootMax, c.Water), c.Left) << c.Water << " mm";
        EXPECT_EQ(soil.Content(), c.Content) << c.Water << " mm";
    }
}

TEST(RefillOfZones, GoesDownZoneByZone) {
    // The tip's zone, 1, has 0.125 m below it: 80 mm/m of room are 10 mm. Zone 2 has room for 20 mm, and the last, 3,
    // down to 0.9375 m for 15 mm.
    ExpectRefills({{4, {200, 152, 120, 120}, 0},   // 4 mm on 0.125 m are 32 mm/m
                   {10, {200, 200, 120, 120}, 0},  // just full
                   {18, {200, 200, 152, 120}, 0},  // 8 mm on 0.25 m
                   {36, {200, 152, 200, 120}, 0},  // a partial fill of the last zone, 6 mm, lands in the tip's
                   {45, {200, 200, 200, 200}, 0},
                   {50, {200, 200, 200, 200}, 5},       // 5 mm leach
                   {0.0625F, {200, 120, 120, 120}, 0},  // half a mm/m is lost: halves go to the even number
                   {0.1875F, {200, 122, 120, 120}, 0}},
                  Soil({200, 120, 120, 120}), 0.375F, 0.9375F);
    // One zone holds root tip and deepest root: 0.125 m of the last one, with room for 10 mm.
    ExpectRefills({{5, {0, 0, 0, 160}, 0}, {10, {0, 0, 0, 200}, 0}, {12, {0, 0, 0, 200}, 2}}, Soil({0, 0, 0, 120}),
                  0.8125F, 0.9375F);
    // A deepest root on a boundary leaves no tail: room for 80 mm/m on 0.125 m.
    ExpectRefills({{12, {200, 200, 200, 200}, 2}}, Soil({200, 200, 200, 120}), 0.875F, 1);
}

// 240 mm/m on 0.125 m are 5 mm too much.
TEST(RefillOfZones, TakesWaterOutOfAZoneAboveCapacityEvenWithoutDrainage) {
    ExpectRefills({{0, {200, 200, 140, 120}, 0}}, Soil({200, 240, 120, 120}), 0.375F, 0.9375F);
    ExpectRefills({{0, {200, 200, 200, 200}, 5}}, Soil({200, 240, 200, 200}), 0.375F, 0.9375F);
}

TEST(RefillOfZones, FailsBelowTheDescribedSoilAndOnAnEmptyInterval) {
    Soil soil({200, 200, 200, 200});
    EXPECT_FAILURE(soil.Refill(0.375F, 1.3F, 9), HasSubstr("zones 0 to 3, not a zone 4"));
    EXPECT_FAILURE(soil.Refill(0.8F, 0.8F, 9), HasSubstr("water content"));
}

TEST(RefillOfLayers, TakesALayersIntervalOneLayerFurtherDown) {
    // Layer 2 is judged by the room of the layer below it, 3, which has 40 mm/m: 10 mm, as has what is below the tip.
    ExpectRefills({{4, {200, 152, 120, 160}, 0},   // 4 mm on the 0.125 m of layer 1 below the tip
                   {16, {200, 200, 144, 160}, 0},  // 6 mm on the 0.25 m of layer 3, written to layer 2
                   {20, {200, 200, 200, 160}, 0},  // layer 2 set to capacity with the room of layer 3
                   {25, {200, 180, 200, 160}, 0},  // the tail, layer 3 again: 5 mm, 160 + 20 written to the tip's layer
                   {37, {200, 200, 200, 200}, 7}},
                  Soil({200, 120, 120, 160}, FourLayers), 0.375F, 1);
    ExpectRefills({{1, {0, 0, 0, 136}, 0}, {6, {0, 0, 0, 200}, 1}}, Soil({0, 0, 0, 120}, FourLayers), 0.875F, 0.9375F);
    // A tip below all layers counts as being in the first one, whose interval then has a negative thickness of 0.875 m:
    // at 100 mm/m its room is -175 + 87.5 mm.
    ExpectRefills({{5, {200, 200, 200, 200}, 92.5F}}, Soil({100, 200, 200, 200}, FourLayers), 1.125F, 1.25F);
}

}  // namespace
}  // namespace veraqua
