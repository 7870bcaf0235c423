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
    struct Row {
        bool English;
        const char* Typed;
        const char* Bounds;  ///< in the refusal; null: taken
        int ZoneTop;
    };
    // Maize roots to 1 m: an eleventh is 3.579 inches or 90.91 mm; the metric bound is a tenth of that.
    for (const Row& row :
         {Row{true, "3.5", "3.6 and 396.0", -1}, Row{true, "3.6", nullptr, 10}, Row{true, "396.1", "3.6 and 396.0", -1},
          Row{true, "x", "3.6 and 396.0", -1}, Row{true, "39.37", nullptr, 1}, Row{true, "12", nullptr, 3},
          Row{false, "9", "9.1 and 1000.0", -1}, Row{false, "90.9", "91.0 and 1000.0", -1},
          Row{false, "91", nullptr, 10}, Row{false, "1000", nullptr, 1}}) {
        State.EnglishUnits = row.English;
        AtZones([&](At& soil) {
            soil.Type("txtDepth", row.Typed).Click("cmdDepth");
            const std::string said =
                row.Bounds == nullptr ? ""
                                      : "Depth Interval Error: Please enter a value between " + std::string(row.Bounds);
            EXPECT_EQ(User.LastSaid(), said) << row.Typed;
            EXPECT_EQ(Soil.ZoneTop, row.ZoneTop) << row.Typed;
            User.Told.clear();
            soil.Click("cmdOK");
            EXPECT_FALSE(User.Told.empty());
            User.Told.clear();
        });
        EXPECT_TRUE(FormOf(FormName::frmLoadField).Shown);  // where leaving the form leads back to
        AtEntry().Click("cmd_Cancel");
    }
}

TEST_F(SoilZonesTest, AThinnerIntervalShowsMoreZonesAndAThickerOneEmptiesThem) {
    AtZones([this](At& soil) {
        EXPECT_EQ(Soil.lblMaximum.Caption, "Max rooting depth for MAIZE GRAIN is:  39.0 in.");
        soil.Type("txtDepth", "7.5").Click("cmdDepth");
        EXPECT_EQ(Soil.lblContent[1].Caption, "Content from 08 to 15 in.");
        Fill(soil, "2", "1");
        soil.Type("txtDepth", "15").Click("cmdDepth");
        EXPECT_TRUE(Soil.txtcap[2].Visible && !Soil.txtcap[3].Visible && Soil.txtcap[3].Text.empty());
        EXPECT_EQ(Soil.txtcap[2].Text, "2");
        soil.Click("cmdReset");
        EXPECT_TRUE(!Soil.txtcap[0].Visible && Soil.txtcap[0].Text.empty());
    });
}

TEST_F(SoilZonesTest, CapacityAndContentHaveTheirBounds) {
    struct Row {
        bool English;
        const char* Capacity;
        const char* Content;
        std::string Said;  ///< empty: taken
    };
    const std::string tooLow = "Water Capacity Input Error: Please enter a Capacity Value equal to or greater than ";
    const std::string error = "Water Content Input Error: Please enter a value ";
    // 1.5 and 1.6 in/ft are stored as 125 and 133 mm/m, which are 1.5 and 1.596 in/ft.
    for (const Row& row :
         {Row{true, "0.099", "0", tooLow + "0.1 inches/foot."}, Row{true, "0.1", "0", ""},
          Row{true, "1.5", "1.511", error + "between 0 and 1.51"}, Row{true, "1.5", "-1", error + "between 0 and 1.51"},
          Row{true, "1.6", "1.601", error + "less than or equal to 1.6"}, Row{true, "1.6", "1.6", ""},
          Row{false, "6.9", "0", tooLow + "7 mm/meter."}, Row{false, "7", "7", ""}, Row{false, "140", "140", ""},
          Row{false, "140", "140.1", error + "between 0 and 140"},
          Row{false, "140", "", error + "between 0 and 140"}}) {
        State.EnglishUnits = row.English;
        const int fields = State.FieldCount;
        AtZones([&](At& soil) {
            soil.Type("txtDepth", row.English ? "5.5" : "137").Click("cmdDepth");
            Fill(soil, row.Capacity, row.Content);
            soil.Click("cmdOK");
        });
        EXPECT_EQ(User.LastSaid(), row.Said) << row.Capacity << ' ' << row.Content;
        EXPECT_EQ(State.FieldCount, fields + row.Said.empty());
        User.Told.clear();
        Unload(FormName::frmLoadField);
    }
    EXPECT_TRUE(User.Asked.empty());
}

}  // namespace
}  // namespace veraqua
