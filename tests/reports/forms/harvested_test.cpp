#include "reports/forms/harvested.h"

#include "reports/forms/report_roads.h"
#include "tests/reports/expected_text.h"
#include "tests/reports/forms/report_forms.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

/// A harvested crop and a harvested meadow, while another field is in work.
struct HarvestedFields : ReportForms {
    HarvestedFields() {
        files::Write("Meadow    _010903_ 1.dat", FieldFileBytes(SmallHay()));
        for (const char* name : {"North     _300903_ 2.dat", "old letters to banks.dat"})
            files::Write(name, FieldFileBytes(SmallCrop().Id("NORTH Ñ")));
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
                ElementsAre(ListItem{"Meadow  -  @Alfalfa  -  harvested 09-01-03", 0},
                            ListItem{"NORTH Ñ  -  Sugar Beet  -  harvested 09-30-03 (2)", 0},
                            ListItem{"NORTH Ñ  -  Sugar Beet  -  old letters to banks.dat", 0}));
    Choosing("cmd_OK");
    At user(FormName::frmSelectHarvested);
    user.Pick("ComboDField", 1).Click("cmdOK");

    // The report of the field when it stood, with all four leachings and without predictions.
    std::string expected = ExpectedText("field_crop_zones_english");
    const std::size_t predictions = expected.find(" PREDICTIONS:");
    expected.erase(predictions, expected.find(" FIELD HISTORY") - predictions);
    expected.replace(expected.find("00.08 in"), 8, "00.16 in");
    EXPECT_EQ(Directory.Raw("Field NORTH Ñ 09-30-03 (2).txt"), expected);

    Choosing("cmd_print");
    user.Pick("ComboDField", 0).Click("cmdOK");
    EXPECT_EQ(Screen.txtData.Text,
              "Fixed depth soil layers: interval = 01.0 feet\n"
              "Soil Water Capacity\n"
              "00.0 to 01.0 ft (in/ft):  2.00\n01.0 to 02.0 ft (in/ft):  1.80\n"
              "02.0 to 03.0 ft (in/ft):  1.50\n03.0 to 04.0 ft (in/ft):  1.20\n"
              "Initial Soil Water Content\n"
              "00.0 to 01.0 ft (in/ft):  1.20\n01.0 to 02.0 ft (in/ft):  1.08\n"
              "02.0 to 03.0 ft (in/ft):  0.96\n03.0 to 04.0 ft (in/ft):  0.84\n");
    EXPECT_THAT(OnPaper(User.Printed.back()), HasSubstr("| FIELD ID:        Meadow    \n"));
    Choosing("cmd_cancel");
    user.Click("cmdOK").Click("cmdCancel");
    EXPECT_THAT(User.Printed, SizeIs(1));
    EXPECT_EQ(State.Hay.FieldId.Text(), "IN WORK");
}

struct ReportDialog : ReportForms {
    std::vector<std::string> OpenedWith;  ///< title and name in the box, each time it opened

    /// What the user does in the dialog from now on.
    void InDialog(std::function<void(At&)> doing) {
        User.WhenShown(FormName::frmReportOptions, [this, doing = std::move(doing)] {
            EXPECT_TRUE(State.ReportCancelled);
            EXPECT_FALSE(The<frmReportOptions>().cmd_print.Visible);
            OpenedWith.push_back(The<frmReportOptions>().Caption + ": " + The<frmReportOptions>().Txt_filename.Text);
            At user(FormName::frmReportOptions);
            doing(user);
        });
    }
};

TEST_F(ReportDialog, KeepsTheNameThatEachReportUsedLast) {
    Stored(1, SmallCrop(), 43, MayDay(9));
    State.CurrentField = 1;
    const std::string data = Directory.Path();

    InDialog([](At& user) { user.Type("Txt_filename", "July.txt").Click("cmd_OK"); });
    SaveScheduleByDialog();
    InDialog([](At& user) {
        user.Type("Txt_filename", "stat.dat").Click("cmd_OK");  // refused: the dialog stays
        user.Type("Txt_filename", "north.txt").Press("Txt_filename", Event::EnterKey);
    });
    RunFieldReport(ReportDestination::Disk);
    User.Answers = {true};  // keeps July.txt, and so stays in the dialog
    InDialog([](At& user) { user.Click("cmd_OK").Click("cmd_OK"); });
    SaveScheduleByDialog();
    EXPECT_EQ(User.LastAsked(), "File Exists: " + data + "July.txt is there already. Keep it and choose another name?");
    InDialog([](At& user) { user.Click("cmd_OK"); });
    RunFieldReport(ReportDestination::Disk);

    EXPECT_THAT(
        OpenedWith,
        ElementsAre("Save Irrigation Schedule: " + data + "Predict.txt", "Save Field Report: " + data + "Field.txt",
                    "Save Irrigation Schedule: " + data + "July.txt", "Save Field Report: " + data + "north.txt"));
    EXPECT_EQ(User.LastSaid(), "File Saved: Your Field Report was saved to: " + data + "north.txt");
    EXPECT_TRUE(Directory.Raw("north.txt").starts_with(" FIELD DATA as of 05-04-03"));
}

}  // namespace
}  // namespace veraqua
