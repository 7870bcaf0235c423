#include "reports/schedule.h"

#include "reports/forms/report_roads.h"
#include "reports/schedule_print.h"
#include "tests/reports/expected_text.h"
#include "tests/reports/forms/report_forms.h"

namespace veraqua {
namespace {

void PutField(int row, std::string_view id, std::string_view crop, JulianValue nextIrrDay, std::int16_t nextIrrAmount) {
    StatRecord& field = State.Stat[row];
    field.FieldId = id;
    field.CropName = crop;
    field.LastDay = JulianFromDate(5, 3, 2003);
    field.NextIrrDay = nextIrrDay;
    field.NextIrrAmount = nextIrrAmount;
}

struct Schedule : DirectoryTest {
    Schedule() {
        User.Today = JulianFromDate(5, 4, 2003);
        State.TodayJulian = JulianFromDate(7, 1, 2003);  // the schedule shows the computer's date
    }
};

TEST_F(Schedule, HasALineForEachRowInUseInTheOrderOfTheDirectory) {
    PutField(1, "North Ñ", "Sugar Beets", JulianFromDate(5, 5, 2003), 43);
    PutField(2, "Meadow", "@Alfalfa", JulianFromDate(5, 4, 2003), AmountHarvest);
    // Row 3 has lost its file: the rows behind it stay in the schedule.
    PutField(4, "Ten letter", "Thirteen char", 0, AmountNotRequired);
    PutField(5, "S", "Peas", 0, AmountNoDataYet);
    PutField(100, "Old", "Onions", 0, 127);

    State.EnglishUnits = true;
    EXPECT_EQ(ScheduleText(User), ExpectedText("schedule_english"));
    State.EnglishUnits = false;
    EXPECT_EQ(ScheduleText(User), ExpectedText("schedule_metric"));
}

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
        Stored(8, SmallCrop().Id("ENOUGH"), AmountNotRequired);
    }
};

TEST_F(PrintedScheduleOfFields, IsSortedByWhatIsToBeDoneFirst) {
    State.CurrentField = 2;
    State.Field.FieldId = "IN WORK";
    const auto before = State.Stat;
    for (const bool english : {true, false}) {
        State.EnglishUnits = english;
        PrintSchedule();
        EXPECT_EQ(OnPaper(User.Printed.back()),
                  ExpectedText(english ? "schedule_print_english" : "schedule_print_metric"));
    }
    User.Told.resize(3);
    EXPECT_THAT(User.Texts(),
                testing::ElementsAre("This is not good. :-( Your field file is missing...  Select another.",
                                     testing::HasSubstr("field7.dat (field North "),
                                     "Irrigation & Cutting Predictions Report was sent to your default printer"));
    EXPECT_EQ(State.Stat[2], before[2]);
    EXPECT_EQ(State.Stat[3], before[3]);
    EXPECT_EQ(State.CurrentField, 2);
    EXPECT_EQ(State.Field.FieldId.Text(), "IN WORK");
}

}  // namespace
}  // namespace veraqua
