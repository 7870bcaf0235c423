#include "tests/workbench/forms/field_menu_fixture.h"
#include "workbench/forms/soil_copy.h"
#include "workbench/forms/soil_layers.h"
#include "workbench/forms/soil_zones.h"

namespace veraqua {
namespace {

struct SoilTest : NewFieldTest {
    frmCap& Zones = The<frmCap>();
    frmCapVar& Layers = The<frmCapVar>();

    /// Maize: 39 inches of root depth, or 100 of the metric unit.
    void AtSoil(FormName form, const std::function<void(At&)>& doing) {
        Begin(Maize, form == FormName::frmCap ? Fixed : Variable);
        Describe(("F" + std::to_string(State.FieldCount)).c_str());
        EnterSoil(form, doing);
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

TEST_F(SoilTest, TheZonesOfAnIntervalAreShownAndWhatIsWrongIsSelected) {
    AtSoil(FormName::frmCap, [this](At& soil) {
        const auto refused = [&](const std::string& said, const std::string& focused) {
            EXPECT_EQ(User.LastSaid(), said);
            EXPECT_EQ(User.FocusedControls.back(), "frmCap." + focused + " (selected)");
        };
        soil.Click("cmdOK");
        refused("Depth Interval Error: Please enter a value between 3.6 and 396.0", "txtDepth");
        soil.Type("txtDepth", "20").Click("cmdDepth");
        EXPECT_TRUE(Zones.txtcon[1].Visible && !Zones.txtcon[2].Visible);
        EXPECT_EQ(Zones.lblCapacity[1].Caption, "Capacity from 20 to 40 in.");
        soil.Type("txtcap(0)", "x").Press("txtcap(0)", Event::EnterKey);
        EXPECT_EQ(User.LastSaid(), "Water Capacity Must Be NUMERIC: Please enter a value between 0 and 3");
        soil.Type("txtcap(0)", "1.5").Click("cmdOK");
        refused("Water Capacity Input Error: Please enter a Capacity Value equal to or greater than 0.1 inches/foot.",
                "txtcap(1)");
        soil.Type("txtcap(1)", "1.5").Type("txtcon(0)", "1.5").Type("txtcon(1)", "1.6").Click("cmdOK");
        refused("Water Content Input Error: Please enter a value between 0 and 1.51", "txtcon(1)");
        soil.Press("txtcon(0)", Event::EnterKey);
        EXPECT_EQ(User.FocusedControls.back(), "frmCap.txtcap(1)");

        for (const bool takesIt : {false, true}) {  // an interval that was typed only
            soil.Type("txtDepth", "13");
            AfterOk(soil, {takesIt});
            EXPECT_EQ(Zones.txtDepth.Text, takesIt ? "13" : "20");
            EXPECT_EQ(Zones.txtcon[3].Visible, takesIt);
        }
        AfterOk(soil.Type("txtcap(0)", "400"), {true});  // 32767 mm/m are 393.2 in/ft
        refused("Water Capacity Input Error: Please enter a value of at most 393.20", "txtcap(0)");
        User.Answers = {true};
        soil.Click("cmdCancel");  // and keeps what was entered
        EXPECT_TRUE(FormOf(FormName::frmCap).Loaded && User.Answers.empty());
    });
}

TEST_F(SoilTest, UpToSixLayersAreBegunOneAfterTheOther) {
    AtSoil(FormName::frmCapVar, [this](At& soil) {
        using Row = std::tuple<const char*, const char*, bool, const char*>;  // typed, shown then, held, last focus
        for (const auto& [typed, shown, held, focus] :
             {Row{"x", "x", true, "frmCapVar.txtRoot(0) (selected)"}, Row{"0.5", "0", true, "frmCapVar.txtRoot(0)"},
              Row{"12.5", "12", false, "frmCapVar.txtRoot(0)"}, Row{"5", "5", false, "frmCapVar.txtRoot(0)"}}) {
            FormOf(FormName::frmCapVar).Focused = nullptr;
            EXPECT_EQ(At(soil).Type("txtRoot(0)", typed).Enter("txtcap(0)").Held(), held) << typed;
            EXPECT_EQ(Layers.txtRoot[0].Text, shown);
            EXPECT_EQ(User.FocusedControls.back(), focus);
        }
        for (int layer = 0; layer < 6; ++layer) Layer(soil, layer, "5", "1.5", "1");
        EXPECT_EQ(Layers.lblCumm.Caption, "30 in.");
        soil.Press("txtcon(5)", Event::EnterKey);
        EXPECT_EQ(User.LastSaid(), "Sorry...: Maximum of six soil layers allowed");
        AfterOk(soil, {true});
    });
    // 39 - 30 inches are added to the sixth layer of five.
    EXPECT_FLOAT_EQ(LoadFieldFile(1).Soil.Bounds[5], 14 * 0.0254F);
}

TEST_F(SoilTest, ARefusedOkChangesNoThickness) {
    AtSoil(FormName::frmCapVar, [this](At& soil) {
        const std::string noCapacity = "Water Capacity Input Error: Please enter a Capacity Value greater than 0.";
        EXPECT_EQ(AfterOk(soil, {true}), noCapacity);  // of the one layer that takes the whole depth
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
    EXPECT_FLOAT_EQ(file.Soil.Bounds[1], 29 * 0.0254F);
    EXPECT_EQ(file.Soil.Capacity[0], 250);             // 3 x 25.4 / 0.3048, asked nothing
    EXPECT_FLOAT_EQ(file.Days[0].Available, 50.514F);  // 0.254 m of 167 mm/m and 0.046 m of 176 mm/m
}

TEST_F(SoilTest, TheSoilOfABackupIsCopiedInMetricUnits) {
    files::Write(
        "B\u00fcel      _300603_ 1.dat",
        FieldFileBytes(AField().Hay().Id("B\u00fcel").Layers({0.3F, 0.9F}).Capacity({150, 100}).Content({120, 60})));
    files::Write("crop notes of the yr.dat", "xx");  // its name is as long as that of a backup
    State.EnglishUnits = false;
    Begin(Maize, Fixed);
    Describe();
    User.Answers = {true};
    User.WhenShown(FormName::frmCopySoilData, [this] {
        const auto& form = The<frmCopySoilData>();
        At copy(FormName::frmCopySoilData);
        copy.Click("cmdDeleted");
        EXPECT_THAT(form.ComboDField.Items,
                    testing::ElementsAre(ListItem{"B\u00fcel  -  @ALFALFA  -  harvested 06-30-03", 1},
                                         ListItem{"  -    -  crop notes of the yr.dat", 2}));
        copy.Pick("ComboDField", 0).Pick("ComboDField", 1);
        EXPECT_EQ(User.Failures.size(), 1U);  // the other file is no field; the preview stays
        EXPECT_EQ(form.txtData.Text,
                  "Soil Layers\n Layer 1:   300.00 millimeters\n Layer 2:   900.00 millimeters\n"
                  "Soil Water Capacity\n0.0 to 300.0mm:  150.0mm/m\n300.0 to 1200.0mm:  100.0mm/m\n"
                  "Initial Soil Water Content\n0.0 to 300.0mm:  120.0mm/m\n300.0 to 1200.0mm:  60.0mm/m\n");
        copy.Click("cmdOK");
    });
    AtEntry().Click("Opt_deleted");
    EnterSoil(FormName::frmCapVar, [](At& soil) {
        // A tenth of the thickness in millimetres, against a root depth in the same measure.
        EXPECT_EQ(The<frmCapVar>().lblCumm.Caption, "120 mm.");
        soil.Type("txtRoot(1)", "70").Click("cmdOK");
    });
    EXPECT_EQ(User.LastAsked(), "Confirm Data: Do you wish to select the Previewed Soil & Water Data?");
    EXPECT_FLOAT_EQ(LoadFieldFile(1).Soil.Bounds[1], 0.07F);
    EXPECT_EQ(AsOf(LoadFieldFile(1), Planting).Content[0], 120);
}

}  // namespace
}  // namespace veraqua
