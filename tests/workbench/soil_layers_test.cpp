#include "workbench/soil_layers.h"

#include "tests/workbench/new_field_fixture.h"

namespace veraqua {
namespace {

/// Maize in layers: 39 inches of root depth, or 100 of the metric unit.
struct SoilLayersTest : NewFieldTest {
    frmCapVar& Soil = The<frmCapVar>();

    void AtLayers(const std::function<void(At&)>& doing) {
        Begin(Maize, Variable);
        Describe();
        EnterSoil(FormName::frmCapVar, doing);
    }

    /// The next layer down.
    static At& Layer(At& soil, int layer, const char* thickness, const char* capacity, const char* content) {
        const std::string index = "(" + std::to_string(layer) + ")";
        if (layer > 0) soil.Click("cmdDepth");
        return soil.Type("txtRoot" + index, thickness).Type("txtcap" + index, capacity).Type("txtcon" + index, content);
    }
};

TEST_F(SoilLayersTest, ThicknessesAreWholeAndEndAtTheRootDepth) {
    AtLayers([this](At& soil) {
        EXPECT_EQ(Soil.lblMaximum.Caption, "Maximum rooting depth for MAIZE GRAIN is:  39 in.");
        struct Row {
            const char* Typed;
            bool Held;
            const char* Shown;
            const char* Sum;
            const char* Said;
        };
        const char* below = "For your information...: You have entered soil data below the maximum root depth.";
        for (const Row& row : {Row{"x", true, "x", "", "Input Error: Please enter a numeric value"},
                               Row{"0.5", true, "0", "", "Layer Interval Error: Please enter a value greater than 0"},
                               Row{"12.5", false, "12", "12 in.", ""}, Row{"12", false, "12", "12 in.", ""},
                               Row{"40", false, "39", "39 in.", below}, Row{"", false, "", "0 in.", ""},
                               Row{"15", false, "15", "15 in.", ""}}) {
            User.Told.clear();
            FormOf(FormName::frmCapVar).Focused = nullptr;
            EXPECT_EQ(At(soil).Type("txtRoot(0)", row.Typed).Enter("txtcap(0)").Held(), row.Held) << row.Typed;
            EXPECT_EQ(Soil.txtRoot[0].Text, row.Shown);
            EXPECT_EQ(Soil.lblCumm.Caption, row.Sum);
            EXPECT_EQ(User.LastSaid(), row.Said);
        }
        soil.Click("cmdDepth").Type("txtRoot(1)", "30").Enter("txtcap(1)");
        EXPECT_EQ(Soil.txtRoot[1].Text, "24");  // 39 - 15
        soil.Click("cmdDepth");
        EXPECT_EQ(User.LastSaid(), "For your information...: You have already reached your maximum root depth.");
        soil.Click("cmdReset");
        EXPECT_TRUE(Soil.CumDepth == 0 && !Soil.txtRoot[1].Visible && Soil.lblCumm.Caption.empty());
    });
    EXPECT_EQ(State.CurrentField, 0);  // closing the form ends the new field
    EXPECT_FALSE(IsLoaded(FormName::frmLoadField));
}

TEST_F(SoilLayersTest, TheColumnIsDrawnToScale) {
    State.EnglishUnits = false;
    AtLayers([this](At& soil) {
        Layer(soil, 0, "50", "", "");
        Layer(soil, 1, "25", "", "").Enter("txtRoot(1)");
        // Ground at 100 of 300; the layers end half and three quarters of the way from there to the bottom.
        const double left = 24;
        const double right = 40;
        using enum Drawing::Kind;
        const std::vector<Drawing::Shape> expected = {
            {Picture, 70, 60, 130, 120, {}, "picbox1"},      {Line, left, 100, right, 100, colours::Red, ""},
            {Line, 50, 200, 150, 200, colours::Blue, ""},    {Line, left, 200, right, 200, colours::Red, ""},
            {Text, left, 100, right, 200, {}, "50.0"},       {Line, 50, 250, 150, 250, colours::Blue, ""},
            {Line, left, 250, right, 250, colours::Red, ""}, {Text, left, 200, right, 250, {}, "25.0"},
        };
        EXPECT_EQ(Soil.sh_soil.Shapes, expected);
    });
}

TEST_F(SoilLayersTest, TheNextLayerWantsTheThicknessOfTheLastAndSixAreTheMost) {
    AtLayers([this](At& soil) {
        soil.Click("cmdDepth");
        EXPECT_EQ(User.LastSaid(), "Missing root depth: Please enter a root depth for the current layer");
        for (int layer = 0; layer < 6; ++layer) Layer(soil, layer, "5", "1.5", "1");
        soil.Press("txtcon(5)", Event::EnterKey);
        EXPECT_EQ(User.LastSaid(), "Sorry...: Maximum of six soil layers allowed");
        User.Answers = {true};
        soil.Click("cmdOK");
    });
    // 39 - 30 inches are added to the sixth layer of five.
    EXPECT_FLOAT_EQ(LoadFieldFile(1).Soil.Bounds[5], 14 * 0.0254F);
}

TEST_F(SoilLayersTest, ARefusedOkChangesNoThickness) {
    AtLayers([this](At& soil) {
        Layer(soil, 0, "12", "3.01", "2");
        User.Answers = {true, false};  // the last layer is to be increased; the capacity is not to be taken
        soil.Click("cmdOK");
        EXPECT_EQ(User.LastAsked(),
                  "Water Capacity Input Warning: Your 'Capacity' value is greater than 3in/ft (250mm/m).  Do you want "
                  "to proceed?.");
        EXPECT_EQ(User.FocusedControls.back(), "frmCapVar.txtcap(0) (selected)");
        soil.Type("txtRoot(0)", "10").Type("txtcap(0)", "3");
        Layer(soil, 1, "20", "0", "2.12");
        User.Answers = {true};
        soil.Click("cmdOK");
        EXPECT_EQ(User.LastSaid(), "Water Capacity Input Error: Please enter a Capacity Value greater than 0.");
        soil.Type("txtcap(1)", "2");  // 166.67, stored as 167 mm/m: 2.004; with a twentieth more 2.104
        User.Answers = {true};
        soil.Click("cmdOK");
        EXPECT_EQ(User.LastSaid(),
                  "Water Content Input Error - Out of Bounds: Please enter a value between 0 and 2.10");
        EXPECT_TRUE(User.Answers.empty());
        soil.Type("txtcon(1)", "2.11");
        User.Answers = {false, true};
        soil.Click("cmdOK");
        EXPECT_EQ(User.LastSaid(), "Veraqua Warning: Please edit existing layers or add another one");
        soil.Click("cmdOK");
    });
    EXPECT_TRUE(User.Failures.empty());
    const FieldFile file = LoadFieldFile(1);
    EXPECT_FLOAT_EQ(file.Soil.Bounds[0], 0.254F);
    EXPECT_FLOAT_EQ(file.Soil.Bounds[1], 29 * 0.0254F);
    EXPECT_EQ(file.Soil.Bounds[2], 0);
    EXPECT_EQ(file.Soil.Capacity[0], 250);  // 3 x 25.4 / 0.3048, asked nothing
    EXPECT_FLOAT_EQ(file.Days[0].Available, 50.514F);  // 0.254 m of 167 mm/m and 0.046 m of 176 mm/m
    EXPECT_EQ(file.Field.CapacityTop, 1);
    EXPECT_EQ(file.Field.CapacityInterval, 0);
}

TEST_F(SoilLayersTest, WithoutALayerTheFirstTakesTheWholeDepthAndWantsItsCapacity) {
    AtLayers([this](At& soil) {
        User.OtherAnswer = true;
        soil.Click("cmdOK");
        EXPECT_THAT(User.Texts(), testing::ElementsAre("Please enter soils data or click Cancel",
                                                       "Please enter a Capacity Value greater than 0."));
        soil.Type("txtcap(0)", "1.7").Type("txtcon(0)", "1").Click("cmdOK");
    });
    EXPECT_FLOAT_EQ(LoadFieldFile(1).Soil.Bounds[0], 39 * 0.0254F);
}

}  // namespace
}  // namespace veraqua
