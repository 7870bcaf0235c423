#include <gmock/gmock.h>

#include "core/base/numbers.h"
#include "tests/support/builders.h"
#include "tests/support/data_directory.h"
#include "workbench/soil_layers.h"
#include "workbench/soil_zones.h"

namespace veraqua {
namespace {

/// Soil under roots of 1 m: 39 inches, or 100 of the metric unit.
struct SoilEntryTest : DirectoryTest {
    static std::string Said(const Refused& refused) { return refused.Title + ": " + refused.Text; }
    template <class Done>
    static std::string Said(const OrRefused<Done>& outcome) {
        return outcome.IsDone() ? "" : Said(outcome.Why());
    }
};

TEST_F(SoilEntryTest, AnIntervalIsTakenWithinItsBoundsAndWithRoomForItsZones) {
    // An eleventh of the depth is 3.579 inches or 90.91 mm; the metric bound is a tenth of that.
    using Row = std::tuple<bool, const char*, std::string, int>;  // English?, typed, bounds if refused, last zone
    for (const auto& [english, typed, bounds, zoneTop] :
         {Row{true, "3.5", "3.6 and 396.0", -1}, Row{true, "3.6", "", 10}, Row{true, "396.1", "3.6 and 396.0", -1},
          Row{true, "x", "3.6 and 396.0", -1}, Row{true, "39.37", "", 1}, Row{false, "9", "9.1 and 1000.0", -1},
          Row{false, "90.9", "91.0 and 1000.0", -1}, Row{false, "91", "", 10}, Row{false, "1000", "", 1}}) {
        State.EnglishUnits = english;
        ZoneEntry zones(1);
        const std::optional<Refused> refused = zones.TakeInterval(Numeric(typed));
        EXPECT_EQ(refused ? Said(*refused) : "",
                  bounds.empty() ? "" : "Depth Interval Error: Please enter a value between " + bounds)
            << typed;
        EXPECT_EQ(zones.ZoneTop, zoneTop) << typed;
    }
}

TEST_F(SoilEntryTest, CapacityAndContentOfZonesHaveTheirBounds) {
    using Row = std::tuple<bool, const char*, const char*, std::string>;  // English?, entered, what is said
    const std::string tooLow = "Water Capacity Input Error: Please enter a Capacity Value equal to or greater than ";
    const std::string error = "Water Content Input Error: Please enter a value ";
    // 1.5 and 1.6 in/ft are stored as 125 and 133 mm/m, which are 1.5 and 1.596 in/ft.
    for (const auto& [english, capacity, content, said] :
         {Row{true, "0.099", "0", tooLow + "0.1 inches/foot."}, Row{true, "0.1", "0", ""},
          Row{true, "1.5", "1.511", error + "between 0 and 1.51"}, Row{true, "1.5", "-1", error + "between 0 and 1.51"},
          Row{true, "1.6", "1.601", error + "less than or equal to 1.6"}, Row{true, "1.6", "1.6", ""},
          Row{false, "6.9", "0", tooLow + "7 mm/meter."}, Row{false, "7", "7", ""},
          Row{false, "140", "140.1", error + "between 0 and 140"},
          Row{false, "140", "", error + "between 0 and 140"}}) {
        State.EnglishUnits = english;
        ZoneEntry zones(1);
        zones.TakeInterval(english ? 20 : 600);
        TypedZones typed;
        typed.fill({capacity, content});
        const OrRefused<EnteredSoil> soil = zones.Soil(User, {}, typed);
        EXPECT_EQ(Said(soil), said) << capacity << ' ' << content;
        EXPECT_TRUE(!soil.IsDone() || soil->Top == 1);
    }
}

TEST_F(SoilEntryTest, ThicknessesAreWholeAndEndAtTheRootDepth) {
    LayerEntry layers(1);
    using Row = std::tuple<const char*, std::string, const char*, const char*>;  // typed, refused, shown then, told
    for (const auto& [typed, refused, shown, told] :
         {Row{"x", "Input Error: Please enter a numeric value", "x", ""},
          Row{"0.5", "Layer Interval Error: Please enter a value greater than 0", "0", ""}, Row{"12.5", "", "12", ""},
          Row{"40", "", "39", "You have entered soil data below the maximum root depth."}, Row{"", "", "", ""},
          Row{"5", "", "5", ""}}) {
        User.Told.clear();
        std::string text = typed;
        const std::optional<Refused> outcome = layers.TakeThickness(User, 0, text);
        EXPECT_EQ(outcome ? Said(*outcome) : "", refused) << typed;
        EXPECT_EQ(text, shown);
        EXPECT_EQ(User.Told.empty() ? "" : User.Told.back().Text, told);
    }
    EXPECT_EQ(layers.CumDepth, 5);
}

TEST_F(SoilEntryTest, ALayerWithNoneAboveItsNeighbourIsMissed) {
    LayerEntry layers(1);
    for (const auto& [layer, thickness] : {std::pair{0U, "10"}, {2U, "29"}}) {
        std::string text = thickness;
        layers.TakeThickness(User, layer, text);
    }
    const OrRefused<EnteredSoil> soil = layers.Soil(User, {});
    EXPECT_EQ(Said(soil), "Missing root depth: Please enter a root depth for the current layer");
    EXPECT_TRUE(soil.Why().Where == Given::Thickness && soil.Why().Index == 1);
}

TEST_F(SoilEntryTest, ACopiedSoilIsEnteredAsItIs) {
    const FieldFile fixed = AField().Zones(4, 0.3F).Capacity({150, 100}).Content({120, 60});
    ZoneEntry zones(1);
    const StartingZones start = zones.StartFrom(User, CopySoilOf(fixed));
    EXPECT_EQ(start.IntervalText, "11.81");                                          // 0.3 / 0.0254
    EXPECT_EQ(start.Water[0].Capacity + " " + start.Water[1].Content, "1.80 0.72");  // 150 and 60 x 0.3048 / 25.4
    const OrRefused<EnteredSoil> soil = zones.Soil(User, start.IntervalText, start.Water);
    ASSERT_TRUE(soil.IsDone());
    EXPECT_TRUE(soil->Top == 3 && soil->Profile.Capacity[0] == 150 && soil->Profile.Content[1] == 60);
    EXPECT_FLOAT_EQ(soil->Interval, 0.3F);

    State.EnglishUnits = false;
    const FieldFile variable = AField().Layers({0.3F, 0.9F}).Capacity({150, 100}).Content({120, 60});
    LayerEntry layers(1);
    EXPECT_EQ(layers.StartFrom(CopySoilOf(variable)).back().Thickness, "90.0");
    EXPECT_EQ(layers.CumDepth, 120);  // centimetres, against a root depth of 100
}

}  // namespace
}  // namespace veraqua
