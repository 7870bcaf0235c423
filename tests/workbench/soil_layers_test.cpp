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

    /// What is said last after an OK with these answers to its questions.
    std::string AfterOk(At& soil, std::initializer_list<bool> answers) {
        User.Answers = answers;
        soil.Click("cmdOK");
        EXPECT_TRUE(User.Answers.empty());
        return User.LastSaid();
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
        const char* below = "For your information...: You have entered soil data below the maximum root depth.";
        using Row = std::tuple<const char*, bool, const char*, const char*, const char*>;
        for (const auto& [typed, held, shown, sum, said] :
             {Row{"x", true, "x", "", "Input Error: Please enter a numeric value"},
              Row{"0.5", true, "0", "", "Layer Interval Error: Please enter a value greater than 0"},
              Row{"12.5", false, "12", "12 in.", ""}, Row{"12", false, "12", "12 in.", ""},
              Row{"40", false, "39", "39 in.", below}, Row{"", false, "", "0 in.", ""},
              Row{"15", false, "15", "15 in.", ""}}) {
            User.Told.clear();
            FormOf(FormName::frmCapVar).Focused = nullptr;
            EXPECT_EQ(At(soil).Type("txtRoot(0)", typed).Enter("txtcap(0)").Held(), held) << typed;
            EXPECT_EQ(Soil.txtRoot[0].Text, shown);
            EXPECT_EQ(Soil.lblCumm.Caption, sum);
            EXPECT_EQ(User.LastSaid(), said);
        }
        soil.Click("cmdDepth").Type("txtRoot(1)", "30").Click("cmdDepth");
        EXPECT_EQ(Soil.txtRoot[1].Text, "24");  // 39 - 15
        EXPECT_EQ(User.LastSaid(), "For your information...: You have already reached your maximum root depth.");
    });
    EXPECT_FALSE(IsLoaded(FormName::frmLoadField));  // closing the form ends the new field
}

TEST_F(SoilLayersTest, TheColumnIsDrawnToScale) {
    State.EnglishUnits = false;
    AtLayers([this](At& soil) {
        Layer(soil, 0, "50", "", "");
        Layer(soil, 1, "25", "", "").Enter("txtRoot(1)");
        // Ground at 100 of 300; the layers end half and three quarters of the way from there to the bottom.
        std::vector<double> boundaries;
        for (const Drawing::Shape& shape : Soil.sh_soil.Shapes)
            if (shape.Ink == colours::Blue) boundaries.push_back(shape.Top);
        EXPECT_EQ(boundaries, (std::vector<double>{200, 250}));
        EXPECT_EQ(Soil.sh_soil.Shapes.front().Text, "picbox1");
        EXPECT_EQ(Soil.sh_soil.Shapes.back(), (Drawing::Shape{Drawing::Kind::Text, 24, 200, 40, 250, {}, "25.0"}));
    });
}

TEST_F(SoilLayersTest, TheNextLayerWantsTheThicknessOfTheLastAndSixAreTheMost) {
    AtLayers([this](At& soil) {
        soil.Click("cmdDepth");
        EXPECT_EQ(User.LastSaid(), "Missing root depth: Please enter a root depth for the current layer");
        for (int layer = 0; layer < 6; ++layer) Layer(soil, layer, "5", "1.5", "1");
        soil.Press("txtcon(5)", Event::EnterKey);
        EXPECT_EQ(User.LastSaid(), "Sorry...: Maximum of six soil layers allowed");
        AfterOk(soil, {true});
    });
    // 39 - 30 inches are added to the sixth layer of five.
    EXPECT_FLOAT_EQ(LoadFieldFile(1).Soil.Bounds[5], 14 * 0.0254F);
}

TEST_F(SoilLayersTest, ARefusedOkChangesNoThickness) {
    AtLayers([this](At& soil) {
        const std::string noCapacity = "Water Capacity Input Error: Please enter a Capacity Value greater than 0.";
        EXPECT_EQ(AfterOk(soil, {true}), noCapacity);  // of the one layer that takes the whole depth
        EXPECT_EQ(User.Texts().front(), "Please enter soils data or click Cancel");
        Layer(soil, 0, "12", "3.01", "2");
        AfterOk(soil, {true, false});  // the last layer is to be increased; the capacity is not to be taken
        EXPECT_EQ(User.LastAsked(),
                  "Water Capacity Input Warning: Your 'Capacity' value is greater than 3in/ft (250mm/m).  Do you want "
                  "to proceed?.");
        soil.Type("txtRoot(0)", "10").Type("txtcap(0)", "3");
        Layer(soil, 1, "20", "0", "2.12");
        EXPECT_EQ(AfterOk(soil, {true}), noCapacity);
        soil.Type("txtcap(1)", "2");  // 166.67, stored as 167 mm/m: 2.004; with a twentieth more 2.104
        EXPECT_EQ(AfterOk(soil, {true}),
                  "Water Content Input Error - Out of Bounds: Please enter a value between 0 and 2.10");
        soil.Type("txtcon(1)", "2.11");
        EXPECT_EQ(AfterOk(soil, {false}), "Veraqua Warning: Please edit existing layers or add another one");
        AfterOk(soil, {true});
    });
    const FieldFile file = LoadFieldFile(1);
    EXPECT_FLOAT_EQ(file.Soil.Bounds[0], 0.254F);
    EXPECT_FLOAT_EQ(file.Soil.Bounds[1], 29 * 0.0254F);
    EXPECT_EQ(file.Soil.Capacity[0], 250);             // 3 x 25.4 / 0.3048, asked nothing
    EXPECT_FLOAT_EQ(file.Days[0].Available, 50.514F);  // 0.254 m of 167 mm/m and 0.046 m of 176 mm/m
    EXPECT_TRUE(file.Field.CapacityTop == 1 && file.Field.CapacityInterval == 0);
}

}  // namespace
}  // namespace veraqua
