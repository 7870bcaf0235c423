#include "catch_up/field_updates.h"

#include <algorithm>
#include <cerrno>

#include <gmock/gmock.h>

#include "catch_up/weather_commands.h"
#include "core/disk.h"
#include "tests/catch_up/catch_up_fixture.h"
#include "tests/support/failure.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// Counts the waits for the disk, or refuses all writing.
class WatchedDisk : public files::Disk {
  public:
    WatchedDisk() { files::InstallDisk(this); }
    ~WatchedDisk() override { files::InstallDisk(nullptr); }
    WatchedDisk(const WatchedDisk&) = delete;
    WatchedDisk& operator=(const WatchedDisk&) = delete;

    ssize_t Write(int file, const char* bytes, std::size_t count, off_t position) override {
        if (!Full) return Disk::Write(file, bytes, count, position);
        errno = ENOSPC;
        return -1;
    }
    int Flush(int) override { return ++Flushes, 0; }
    int FlushFileSystem(int) override { return ++Flushes, 0; }

    bool Full = false;
    int Flushes = 0;
};

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
    State.StationName = "FENWOLD";
    State.Stat[3].LastDay = Yesterday;  // has nothing to catch up with
    SaveFieldRow(User, 3);
    const auto before = Everything();

    const StationCatchUp catchUp = UpdateFieldsForStation(User, "Updating fields");
    EXPECT_EQ(catchUp.Fields, 3);
    EXPECT_EQ(catchUp.Worst, UpdateStatus::Done);
    EXPECT_THAT(LastDays(), ElementsAre(Yesterday, Tenth, Yesterday, Yesterday));
    const auto after = Everything();
    EXPECT_NE(after.at("field1.dat"), before.at("field1.dat"));
    EXPECT_EQ(after.at("field2.dat"), before.at("field2.dat"));
    EXPECT_EQ(after.at("field3.dat"), before.at("field3.dat"));
    EXPECT_NE(after.at("field5.dat"), before.at("field5.dat"));

    EXPECT_EQ(State.CurrentField, 2);
    EXPECT_TRUE(State.IsHay);
    EXPECT_EQ(State.Hay.StationCode.Text(), "02");
    EXPECT_EQ(State.StationCode, "06");
    EXPECT_EQ(State.StationName, "FENWOLD");
    EXPECT_THAT(User.Steps, testing::Contains(ScriptAsk::ProgressStep{"Updating fields", 4, 4}));

    StartUp(User);
    EXPECT_THAT(LastDays(), ElementsAre(Yesterday, Tenth, Yesterday, Yesterday));  // so it stands on disk
}

TEST_F(FieldUpdates, FollowAnImportAndAreCounted) {
    for (const auto& [command, what] : {std::pair{WeatherCommand::Append, "Updating fields"},
                                        std::pair{WeatherCommand::Overwrite, "Updating fields!"}}) {
        AWeatherYear("06", 2003).Through(194).Store();
        User.Steps.clear();
        const CommandReport report = BringWeather(User, command, [] { StoreNetworkText(NetworkDays(1, 195)); });
        EXPECT_EQ(report.FieldsUpdated, "Fields updated: 03");
        EXPECT_EQ(report.CatchUp->Worst, UpdateStatus::Done);
        EXPECT_THAT(User.Steps, testing::Each(testing::Field(&ScriptAsk::ProgressStep::What, what)));
        EXPECT_THAT(LastDays(), ElementsAre(Yesterday, Tenth, Yesterday, Yesterday));
    }
}

TEST_F(FieldUpdates, GoOnBehindAFieldThatFails) {
    AField().Days(10).Efficiency(0).Content(10).StoreAt(1);
    Directory.Put("field3.dat", Directory.Raw("field3.dat").substr(0, 100));
    const auto before = Everything();
    const StatRecord row = State.Stat[1];

    const StationCatchUp catchUp = UpdateFieldsForStation(User, "Updating fields");
    EXPECT_EQ(catchUp.Worst, UpdateStatus::Failed);
    EXPECT_THAT(User.Texts(), ElementsAre(HasSubstr("field1.dat"), HasSubstr("field3.dat")));
    EXPECT_THAT(LastDays(), ElementsAre(Tenth, Tenth, Tenth, Yesterday));
    EXPECT_EQ(State.Stat[1], row);
    const auto after = Everything();
    EXPECT_EQ(after.at("field1.dat"), before.at("field1.dat"));
    EXPECT_EQ(after.at("field3.dat"), before.at("field3.dat"));
    EXPECT_EQ(State.CurrentField, 0);
}

TEST_F(FieldUpdates, OfRowsGiveTheStatusOfEach) {
    std::string regions(EmbeddedFile("weathdef.dat"));
    regions.replace(regions.find("\nSORA VALLEY"), 5, "\nTHE ");  // no region of that name for station 02
    Directory.Put("weathdef.dat", regions);
    Directory.Put("field3.dat", "");
    AWeatherYear("06", 2003).Through(190).Store();
    EXPECT_THAT(UpdateRows(User, {5, 2, 3, 1}),
                ElementsAre(UpdateStatus::Done, UpdateStatus::Refused, UpdateStatus::Failed, UpdateStatus::Done));
    EXPECT_THAT(User.Texts(), ElementsAre("Your default weather station was not found!", HasSubstr("field3.dat")));
    EXPECT_THAT(LastDays(), ElementsAre(Yesterday - 5, Tenth, Tenth, Yesterday - 5));  // as far as the weather is there
    EXPECT_EQ(State.StationCode, "06");
}

TEST_F(FieldUpdates, AreOneSetOfChanges) {
    const auto flushes = [this](const std::vector<int>& rows) {
        WatchedDisk disk;
        UpdateRows(User, rows);
        return disk.Flushes;
    };
    const int ofOne = flushes({1});
    EXPECT_GT(ofOne, 0);
    EXPECT_EQ(flushes({2, 3, 5}), ofOne);
    EXPECT_THAT(LastDays(), testing::Each(Yesterday));
}

TEST_F(FieldUpdates, ChangeNothingWhereTheDiskRefuses) {
    ASSERT_TRUE(SelectField(User, 5));
    const HayHeader header = State.Hay;
    const auto before = Everything();
    for (int deed = 0; deed < 2; ++deed) {
        WatchedDisk disk;
        disk.Full = true;
        const std::string station = State.StationCode;
        if (deed == 0)
            EXPECT_FAILURE(UpdateRows(User, {1, 2, 3, 5}), HasSubstr("No space left on device"));
        else
            EXPECT_FAILURE(UpdateFieldsForStation(User, ""), HasSubstr("No space left on device"));
        EXPECT_THAT(LastDays(), testing::Each(Tenth));
        EXPECT_EQ(State.CurrentField, 5);
        EXPECT_EQ(State.Hay, header);
        EXPECT_EQ(State.StationCode, station);
        EXPECT_EQ(Everything(), before);
    }
    UpdateRows(User, {1, 2, 3, 5});
    EXPECT_THAT(LastDays(), testing::Each(Yesterday));
}

}  // namespace
}  // namespace veraqua
