#include "reports/schedule_print.h"

#include "reports/report_roads.h"
#include "tests/reports/expected_text.h"
#include "tests/reports/report_forms.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// Two fields to be irrigated on one day, hay with a cutting ahead, one to be harvested, one lost and one that can't be
/// computed with; on each the row of 4 May counts. 40 of 72.68 mm are left in the crop's root zone, 165 of 163.28 mm in
/// the meadow's.
struct PrintedScheduleOfFields : ReportForms {
    PrintedScheduleOfFields() {
        Stored(1, SmallCrop().Id("RIPE"), AmountHarvest, MayDay(3));
        Stored(2, SmallCrop(), 43, MayDay(9));
        Stored(3, SmallHay(), 70, MayDay(6)).NextCutDay = MayDay(30);
        Stored(4, SmallHay().Id("FRESH").Days(1).With([](FieldFile& f) { f.Lists.Irrigation.clear(); }), 0);
        Stored(5, SmallCrop().Id("AHEAD"), 5, MayDay(9)).LastDay = MayDay(4);
        State.Stat[6].LastDay = MayDay(3);  // its file is lost
        Stored(7, SmallCrop().Capacity({0, 0, 0}), 43, MayDay(9));
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
    User.Told.resize(3);
    EXPECT_THAT(User.Texts(), ElementsAre("This is not good. :-( Your field file is missing...  Select another.",
                                          HasSubstr("field7.dat: "),
                                          "Irrigation & Cutting Predictions Report was sent to your default printer"));
    EXPECT_EQ(State.Stat[2].Depletion, 45);
    EXPECT_EQ(State.Stat[3].Depletion, -1);
    EXPECT_EQ(State.CurrentField, 2);
    EXPECT_EQ(State.Field.FieldId.Text(), "IN WORK");
}

}  // namespace
}  // namespace veraqua
