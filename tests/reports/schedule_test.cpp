#include "reports/schedule.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/state.h"
#include "tests/reports/expected_text.h"
#include "tests/support/data_directory.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using Message = ScriptAsk::Message;

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

TEST_F(Schedule, WithoutFieldsIsTheHeadingAlone) {
    EXPECT_EQ(ScheduleText(User),
              "\n   IRRIGATION PREDICTIONS as of 05-04-2003\n\n"
              "   FIELD ID\tCROP NAME      IRRIGATE ON      AMOUNT\n"
              "   ===============================================\n");
}

TEST_F(Schedule, ReplacesTheFileOfTheNameThatTheLastReportUsed) {
    SaveSchedule(User);
    const std::string named = Directory.Path() + "mine.txt";
    Directory.Put("mine.txt", std::string(1000, 'x'));
    State.ReportFileName = named;
    SaveSchedule(User);

    EXPECT_EQ(Directory.Raw("Predict.txt"), ScheduleText(User));
    EXPECT_EQ(Directory.Raw("mine.txt"), ScheduleText(User));
    EXPECT_THAT(
        User.Told,
        ElementsAre(Message{"Your Irrigation Schedule was saved to: " + Directory.Path() + "Predict.txt", "File Saved"},
                    Message{"Your Irrigation Schedule was saved to: " + named, "File Saved"}));
}

}  // namespace
}  // namespace veraqua
