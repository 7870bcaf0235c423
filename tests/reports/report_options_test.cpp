#include "reports/report_options.h"

#include "reports/report_roads.h"
#include "tests/reports/report_forms.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ReportDialog : ReportForms {
    std::vector<std::string> OpenedWith;  ///< names in the box, each time it opened

    /// What the user does in the dialog from now on.
    void InDialog(std::function<void(At&)> doing) {
        User.WhenShown(FormName::frmReportOptions, [this, doing = std::move(doing)] {
            EXPECT_TRUE(State.ReportCancelled);
            OpenedWith.push_back(The<frmReportOptions>().Txt_filename.Text);
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
    RunFieldReport("disk");
    InDialog([](At& user) { user.Click("cmd_OK"); });
    SaveScheduleByDialog();
    RunFieldReport("disk");

    EXPECT_THAT(OpenedWith,
                ElementsAre(data + "Predict.txt", data + "Field.txt", data + "July.txt", data + "north.txt"));
    EXPECT_EQ(User.LastSaid(), "File Saved: Your Field Report was saved to: " + data + "north.txt");
    EXPECT_TRUE(Directory.Raw("July.txt").starts_with("\n   IRRIGATION PREDICTIONS"));
    EXPECT_TRUE(Directory.Raw("north.txt").starts_with(" FIELD DATA as of 05-04-03"));
}

TEST_F(ReportDialog, LeftWithoutAChoiceSavesNothing) {
    for (const bool byFrame : {false, true}) {
        InDialog([byFrame](At& user) { byFrame ? user.Close() : user.Click("cmd_cancel"); });
        SaveScheduleByDialog();
        RunFieldReport("disk");
        EXPECT_EQ(ChooseDestination(SavedReport::HarvestedField), ReportDestination::None);
    }
    EXPECT_THAT(User.Told, IsEmpty());
    EXPECT_EQ(State.ReportFileName, "");
}

}  // namespace
}  // namespace veraqua
