#include "workbench/soil_copy.h"

#include "tests/workbench/new_field_fixture.h"
#include "workbench/soil_layers.h"
#include "workbench/soil_zones.h"

namespace veraqua {
namespace {

struct SoilCopyTest : NewFieldTest {
    frmCopySoilData& Copy = The<frmCopySoilData>();

    /// A field in use on zones of two feet, and a harvested field of alfalfa on two layers.
    SoilCopyTest() {
        Plant(AField().Id("WEST").Zones(2, 0.6096F).Capacity({142, 125}).Content(75), 1);
        const FieldFile harvested =
            AField().Hay().Id("B\u00fcel").Layers({0.3F, 0.9F}).Capacity({150, 100}).Content({120, 60});
        files::Write("B\u00fcel      _300603_ 1.dat", FieldFileBytes(harvested));
        files::Write("crop notes of the yr.dat", "xx");  // its name is as long as that of a backup
    }

    /// The user asks for `option`, does `onCopy`, and then `onSoil` on the soil form of the format that results.
    void CopyTo(const char* option, const std::function<void(At&)>& onCopy, FormName soilForm,
                const std::function<void(At&)>& onSoil) {
        User.WhenShown(FormName::frmCopySoilData, [onCopy] {
            At copy(FormName::frmCopySoilData);
            onCopy(copy);
        });
        AtEntry().Click(option);
        EnterSoil(soilForm, onSoil);
    }
};

TEST_F(SoilCopyTest, AFieldInUseIsPreviewedAndCopiedToAnotherRootDepth) {
    Begin(Alfalfa, Variable);
    Describe();
    CopyTo(
        "Opt_current",
        [this](At& copy) {
            copy.Click("cmdSelect");
            EXPECT_EQ(User.LastSaid(), "Veraqua: Please click on a crop to preview it first!");
            copy.Click("cmdPreview").Pick("ComboField", 0).Click("cmdSelect");
            EXPECT_EQ(Copy.ComboField.Text, "WEST        -  MAIZE GRAIN");
            EXPECT_EQ(Copy.txtData.Text,
                      "Fixed depth soil layers: interval = 02.0 feet\n"
                      "Soil Water Capacity\n00.0 to 02.0 ft (in/ft):  1.70\n02.0 to 04.0 ft (in/ft):  1.50\n"
                      "Initial Soil Water Content\n00.0 to 02.0 ft (in/ft):  0.90\n02.0 to 04.0 ft (in/ft):  0.90\n");
            EXPECT_TRUE(State.IsHay);  // the field that is entered, not the one that is looked at
            copy.Click("cmdOK");
        },
        FormName::frmCap,
        [](At& soil) {
            EXPECT_EQ(The<frmCap>().lblCapacity[1].Caption, "Capacity from 24 to 48 in.");
            soil.Click("cmdOK");
        });
    EXPECT_EQ(LoadFieldFile(2).Soil.Capacity, (Zones{142, 125}));
}

TEST_F(SoilCopyTest, ABackupIsCopiedInMetricUnits) {
    State.EnglishUnits = false;
    Begin(Maize, Fixed);
    Describe();
    User.Answers = {true};
    CopyTo(
        "Opt_deleted",
        [this](At& copy) {
            copy.Click("cmdDeleted");
            EXPECT_THAT(Copy.ComboDField.Items,
                        testing::ElementsAre(ListItem{"B\u00fcel  -  @ALFALFA", 1}, ListItem{"  -  ", 2}));
            copy.Pick("ComboDField", 0).Pick("ComboDField", 1);
            EXPECT_EQ(User.Failures.size(), 1U);  // the other file is no field; the preview stays
            EXPECT_EQ(Copy.txtData.Text,
                      "Soil Layers\n Layer 1:   300.00 millimeters\n Layer 2:   900.00 millimeters\n"
                      "Soil Water Capacity\n0.0 to 300.0mm:  150.0mm/m\n300.0 to 1200.0mm:  100.0mm/m\n"
                      "Initial Soil Water Content\n0.0 to 300.0mm:  120.0mm/m\n300.0 to 1200.0mm:  60.0mm/m\n");
            copy.Click("cmdOK");
        },
        FormName::frmCapVar,
        [](At& soil) {
            // A tenth of the thickness in millimetres, against a root depth in the same measure.
            EXPECT_EQ(The<frmCapVar>().lblCumm.Caption, "120 mm.");
            soil.Type("txtRoot(1)", "70").Click("cmdOK");
        });
    EXPECT_EQ(User.LastAsked(), "Confirm Data: Do you wish to select the Previewed Soil & Water Data?");
    EXPECT_FLOAT_EQ(LoadFieldFile(2).Soil.Bounds[1], 0.07F);
    EXPECT_EQ(AsOf(LoadFieldFile(2), Planting).Content[0], 120);
}

TEST_F(SoilCopyTest, AMerePreviewLeavesOnlyItsFormatAndNewDataForgetIt) {
    const auto preview = [](At& copy) { copy.Click("cmdDeleted").Pick("ComboDField", 0).Click("cmdOK"); };
    const auto select = [](At& copy) { copy.Click("cmdPreview").Pick("ComboField", 0).Click("cmdSelect"); };
    Begin();
    Describe();
    CopyTo("Opt_deleted", preview, FormName::frmCapVar, [](At&) { EXPECT_EQ(The<frmCapVar>().CumDepth, 0); });
    Begin();
    Describe();
    CopyTo("Opt_current", select, FormName::frmCap, [](At&) {});
    // A second look at another soil doesn't part the first choice from its format.
    CopyTo("Opt_deleted", preview, FormName::frmCap, [](At&) { EXPECT_EQ(The<frmCap>().ZoneTop, 1); });
    AtEntry().Click("Opt_new");
    EnterSoil(FormName::frmCap, [](At&) { EXPECT_TRUE(The<frmCap>().txtDepth.Text.empty()); });
}

}  // namespace
}  // namespace veraqua
