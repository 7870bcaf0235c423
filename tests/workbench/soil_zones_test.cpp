#include "workbench/soil_zones.h"

#include "tests/workbench/new_field_fixture.h"

namespace veraqua {
namespace {

struct SoilZonesTest : NewFieldTest {
    frmCap& Soil = The<frmCap>();

    void AtZones(const std::function<void(At&)>& doing) {
        Begin(Maize, Fixed);
        Describe(("F" + std::to_string(State.FieldCount)).c_str());
        EnterSoil(FormName::frmCap, doing);
    }

    void Fill(At& soil, const char* capacity, const char* content) const {
        for (int zone = 0; zone <= Soil.ZoneTop; ++zone) {
            const std::string index = "(" + std::to_string(zone) + ")";
            soil.Type("txtcap" + index, capacity).Type("txtcon" + index, content);
        }
    }
};

TEST_F(SoilZonesTest, AnIntervalIsTakenWithinItsBoundsAndWithRoomForItsZones) {
    // Maize roots to 1 m: an eleventh is 3.579 inches or 90.91 mm; the metric bound is a tenth of that.
    using Row = std::tuple<bool, const char*, std::string, int>;  // English?, typed, bounds if refused, last zone
    for (const auto& [english, typed, bounds, zoneTop] :
         {Row{true, "3.5", "3.6 and 396.0", -1}, Row{true, "3.6", "", 10}, Row{true, "396.1", "3.6 and 396.0", -1},
          Row{true, "x", "3.6 and 396.0", -1}, Row{true, "39.37", "", 1}, Row{false, "9", "9.1 and 1000.0", -1},
          Row{false, "90.9", "91.0 and 1000.0", -1}, Row{false, "91", "", 10}, Row{false, "1000", "", 1}}) {
        State.EnglishUnits = english;
        AtZones([text = typed](At& soil) { soil.Type("txtDepth", text).Click("cmdDepth"); });
        const std::string refused = "Depth Interval Error: Please enter a value between " + bounds;
        EXPECT_EQ(User.LastSaid(), bounds.empty() ? "" : refused) << typed;
        EXPECT_EQ(Soil.ZoneTop, zoneTop) << typed;
        User.Told.clear();
        AtEntry().Click("cmd_Cancel");  // where leaving the form leads back to
    }
}

TEST_F(SoilZonesTest, AThinnerIntervalShowsMoreZonesAndAThickerOneEmptiesThem) {
    AtZones([this](At& soil) {
        soil.Click("cmdOK");
        EXPECT_EQ(User.LastSaid(), "Depth Interval Error: Please enter a value between 3.6 and 396.0");
        soil.Type("txtDepth", "7.5").Click("cmdDepth");
        EXPECT_EQ(Soil.lblContent[1].Caption, "Content from 08 to 15 in.");
        Fill(soil, "2", "1");
        soil.Type("txtDepth", "15").Click("cmdDepth");
        EXPECT_TRUE(Soil.txtcap[2].Visible && !Soil.txtcap[3].Visible && Soil.txtcap[3].Text.empty());
    });
}

TEST_F(SoilZonesTest, CapacityAndContentHaveTheirBounds) {
    using Row = std::tuple<bool, const char*, const char*, std::string>;  // English?, entered, what is said
    const std::string tooLow = "Water Capacity Input Error: Please enter a Capacity Value equal to or greater than ";
    const std::string error = "Water Content Input Error: Please enter a value ";
    // 1.5 and 1.6 in/ft are stored as 125 and 133 mm/m, which are 1.5 and 1.596 in/ft.
    for (const auto& [english, capacity, content, said] :
         {Row{true, "0.099", "0", tooLow + "0.1 inches/foot."}, Row{true, "0.1", "0", ""},
          Row{true, "1.5", "1.511", error + "between 0 and 1.51"}, Row{true, "1.5", "-1", error + "between 0 and 1.51"},
          Row{true, "1.6", "1.601", error + "less than or equal to 1.6"}, Row{true, "1.6", "1.6", ""},
          Row{false, "6.9", "0", tooLow + "7 mm/meter."}, Row{false, "7", "7", ""}, Row{false, "140", "140", ""},
          Row{false, "140", "140.1", error + "between 0 and 140"},
          Row{false, "140", "", error + "between 0 and 140"}}) {
        State.EnglishUnits = english;
        AtZones([this, ofCapacity = capacity, ofContent = content](At& soil) {
            soil.Type("txtDepth", State.EnglishUnits ? "5.5" : "137").Click("cmdDepth");
            Fill(soil, ofCapacity, ofContent);
            soil.Click("cmdOK");
        });
        EXPECT_EQ(User.LastSaid(), said) << capacity << ' ' << content;
        EXPECT_EQ(IsLoaded(FormName::frmLoadField), !said.empty());
        User.Told.clear();
        Unload(FormName::frmLoadField);
    }
}

}  // namespace
}  // namespace veraqua
