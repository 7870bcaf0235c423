#include "catch_up/field_updates.h"

#include <cerrno>

#include <gmock/gmock.h>

#include "core/field_in_work.h"
#include "tests/catch_up/catch_up_fixture.h"
#include "tests/support/failing_disks.h"
#include "tests/support/failure.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct FieldUpdates : CatchUpTest {
    /// Weather through yesterday, and fields planted on 1 May that stand at 10 May.
    FieldUpdates() {
        for (const char* station : {"06", "02"}) AWeatherYear(station, 2003).Through(195).Store();
        State.WeatherLastJulian = Yesterday;
        AField().Days(10).StoreAt(1);
        AField().Hay().Station("02").Cutting(JulianFromDate(6, 20, 2003), 1).Days(10).StoreAt(2);
        AField().Days(10).StoreAt(3);
        AField().Hay().Cutting(JulianFromDate(6, 20, 2003), 1).Days(10).StoreAt(5);
    }

    static std::vector<JulianValue> LastDays() {
        std::vector<JulianValue> days;
        for (const int row : RowsInUse()) days.push_back(State.Stat[row].LastDay);
        return days;
    }

    static constexpr JulianValue Tenth = JulianFromDate(5, 10, 2003);
};

TEST_F(FieldUpdates, OfAStationLeaveOtherStationsAndTheFieldInWorkAlone) {
    ASSERT_TRUE(SelectField(User, 2));  // hay of another station
    State.StationCode = "06";
    State.Stat[3].LastDay = Yesterday;  // has nothing to catch up with
    SaveFieldRow(User, 3);
    const auto before = files::ContentsOf(Directory.Path());
    const StationCatchUp catchUp = UpdateFieldsForStation(User, "Updating fields");
    EXPECT_EQ(catchUp.Fields, 3);
    EXPECT_EQ(catchUp.Worst, UpdateStatus::Done);
    for (const char* name : {"field2.dat", "field3.dat"}) EXPECT_EQ(Directory.Raw(name), before.at(name));
    EXPECT_EQ(State.CurrentField, 2);
    EXPECT_EQ(State.Hay.StationCode.Text(), "02");
    EXPECT_EQ(State.StationCode, "06");
    StartUp(User);
    EXPECT_THAT(LastDays(), ElementsAre(Yesterday, Tenth, Yesterday, Yesterday));  // so it stands on disk
}

TEST_F(FieldUpdates, GoOnBehindAFieldThatFails) {
    AField().Days(10).Efficiency(0).Content(10).StoreAt(1);
    Directory.Put("field3.dat", Directory.Raw("field3.dat").substr(0, 100));
    const auto before = files::ContentsOf(Directory.Path());
    const StatRecord row = State.Stat[1];
    EXPECT_THAT(UpdateRows(User, {1, 3, 5}),
                ElementsAre(UpdateStatus::Failed, UpdateStatus::Failed, UpdateStatus::Done));
    EXPECT_THAT(User.Texts(), ElementsAre(HasSubstr("field1.dat"), HasSubstr("field3.dat")));
    EXPECT_THAT(LastDays(), ElementsAre(Tenth, Tenth, Tenth, Yesterday));
    EXPECT_EQ(State.Stat[1], row);
    for (const char* name : {"field1.dat", "field3.dat"}) EXPECT_EQ(Directory.Raw(name), before.at(name));
}

TEST_F(FieldUpdates, TellTheWorstOfAStationsFieldsWhateverFollowsIt) {
    Directory.Delete("field3.dat");
    EXPECT_EQ(UpdateFieldsForStation(User, "").Worst, UpdateStatus::Refused);
    AField().Days(10).Efficiency(0).Content(10).StoreAt(1);
    EXPECT_EQ(UpdateFieldsForStation(User, "").Worst, UpdateStatus::Failed);
    State.Stat[5].LastDay = Tenth;
    EXPECT_THAT(UpdateRows(User, {1, 3, 5}),
                ElementsAre(UpdateStatus::Failed, UpdateStatus::Refused, UpdateStatus::Done));
}

TEST_F(FieldUpdates, ChangeNothingWhereTheDiskRefuses) {
    ASSERT_TRUE(SelectField(User, 5));
    const HayHeader header = State.Hay;
    const auto before = files::ContentsOf(Directory.Path());
    files::FailingDisk full(1, ENOSPC, true);
    files::InstallDisk(&full);
    EXPECT_FAILURE(UpdateRows(User, {1, 2, 3, 5}), HasSubstr("No space left on device"));
    EXPECT_FAILURE(UpdateFieldsForStation(User, ""), HasSubstr("No space left on device"));
    files::InstallDisk(nullptr);
    EXPECT_THAT(LastDays(), testing::Each(Tenth));
    EXPECT_EQ(State.CurrentField, 5);
    EXPECT_EQ(State.Hay, header);
    EXPECT_EQ(files::ContentsOf(Directory.Path()), before);
    UpdateRows(User, {1, 2, 3, 5});
    EXPECT_THAT(LastDays(), testing::Each(Yesterday));
}

}  // namespace
}  // namespace veraqua
