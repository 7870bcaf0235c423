#include "reports/harvested.h"

#include "tests/reports/expected_text.h"
#include "tests/reports/report_forms.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

/// A harvested crop and a harvested meadow, while another field is in work.
struct HarvestedFields : ReportForms {
    HarvestedFields() {
        files::Write("Meadow    _010903_ 1.dat", FieldFileBytes(SmallHay()));
        files::Write("North     _010903_ 1.dat", FieldFileBytes(SmallCrop().Id("NORTH Ñ")));
        State.IsHay = true;
        State.Hay.FieldId = "IN WORK";
        Show(FormName::frmSelectHarvested);
    }

    void Choosing(std::string_view button) {
        User.WhenShown(FormName::frmReportOptions, [button] { At(FormName::frmReportOptions).Click(button); });
    }

    frmSelectHarvested& Screen = The<frmSelectHarvested>();
};

TEST_F(HarvestedFields, ArePreviewedAndReportedFromTheirBackups) {
    EXPECT_THAT(Screen.ComboDField.Items,
                ElementsAre(ListItem{"Meadow  -  @Alfalfa", 0}, ListItem{"NORTH Ñ  -  Sugar Beet", 0}));
    Choosing("cmd_OK");
    At user(FormName::frmSelectHarvested);
    user.Pick("ComboDField", 1);
    EXPECT_EQ(Screen.StatusBar1.Panels[0], "Field=2  ID=NORTH Ñ");
    EXPECT_THAT(Screen.txtData.Text, HasSubstr("interval = 01.0 feet\nSoil Water Capacity\n"));
    user.Click("cmdOK");

    // The report of the field when it stood, with all four leachings and without predictions.
    std::string expected = ExpectedText("field_crop_zones_english");
    const std::size_t predictions = expected.find(" PREDICTIONS:");
    expected.erase(predictions, expected.find(" FIELD HISTORY") - predictions);
    expected.replace(expected.find("00.08 in"), 8, "00.16 in");
    EXPECT_EQ(Directory.Raw("Field.txt"), expected);

    Choosing("cmd_print");
    user.Pick("ComboDField", 0).Click("cmdOK");
    EXPECT_THAT(OnPaper(User.Printed.back()), HasSubstr("| FIELD ID:        Meadow    \n"));
    Choosing("cmd_cancel");
    user.Click("cmdOK").Click("cmdCancel");
    EXPECT_THAT(User.Printed, SizeIs(1));
    EXPECT_FALSE(IsLoaded(FormName::frmSelectHarvested));
    EXPECT_TRUE(State.IsHay);
    EXPECT_EQ(State.Hay.FieldId.Text(), "IN WORK");
}

TEST_F(HarvestedFields, ThatAreDamagedAreNotReported) {
    Directory.Put("Meadow    _010903_ 1.dat", std::string(100, '@'));
    At(FormName::frmSelectHarvested).Pick("ComboDField", 1).Pick("ComboDField", 0).Click("cmdOK");
    EXPECT_THAT(User.Failures, ElementsAre(HasSubstr("Meadow    _010903_ 1.dat")));
    EXPECT_EQ(User.LastSaid(), "Veraqua: Select a field from the drop-down list to your right.");
}

TEST_F(ReportForms, WithoutHarvestedFieldsTheFormClosesAtOnce) {
    Show(FormName::frmSelectHarvested);
    EXPECT_EQ(User.LastSaid(), "Veraqua: No deleted fields found on disk!");
    EXPECT_FALSE(IsLoaded(FormName::frmSelectHarvested));
}

}  // namespace
}  // namespace veraqua
