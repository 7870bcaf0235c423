#include "reports/schedule_print.h"

#include "reports/report_roads.h"
#include "tests/reports/expected_text.h"
#include "tests/reports/report_forms.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using Message = ScriptScreen::Message;

/// Two fields to be irrigated on one day, hay with a cutting ahead, and one to be harvested; on each the row of 4 May
/// counts. 40 of 72.68 mm are left in the crop's root zone, 165 of 163.28 mm in the meadow's.
struct PrintedScheduleOfFields : ReportForms {
    PrintedScheduleOfFields() {
        Stored(1, SmallCrop().Id("RIPE"), AmountHarvest, MayDay(3));
        Stored(2, SmallCrop(), 43, MayDay(9));
        Stored(3, SmallHay(), 70, MayDay(6)).NextCutDay = MayDay(30);
        Stored(4, SmallHay().Id("FRESH").Days(1).With([](FieldFile& f) { f.Lists.Irrigation.clear(); }), 0);
        Stored(5, SmallCrop().Id("AHEAD"), 5, MayDay(9)).LastDay = MayDay(4);
        State.Stat[6].LastDay = MayDay(3);  // its file is lost
    }
};

TEST_F(PrintedScheduleOfFields, IsSortedByWhatIsToBeDoneFirst) {
    State.CurrentField = 2;
    State.Field.FieldId = "IN WORK";
    for (const bool english : {true, false}) {
        State.EnglishUnits = english;
        PrintSchedule();
        EXPECT_EQ(OnPaper(User.Printed.back()),
                  ExpectedText(english ? "schedule_print_english" : "schedule_print_metric"));
    }
    EXPECT_THAT(User.Told[0], Message({"This is not good. :-( Your field file is missing...  Select another.",
                                       "FIELD:  field6.dat"}));
    EXPECT_THAT(User.Told[1], Message({"Irrigation & Cutting Predictions Report was sent to your default printer"}));
    EXPECT_EQ(State.Stat[2].Depletion, 45);
    EXPECT_EQ(State.Stat[3].Depletion, -1);
    EXPECT_EQ(State.CurrentField, 2);
    EXPECT_EQ(State.Field.FieldId.Text(), "IN WORK");
}

}  // namespace
}  // namespace veraqua
