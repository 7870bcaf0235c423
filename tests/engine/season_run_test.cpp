#include <cerrno>
#include <string>

#include <gmock/gmock.h>

#include "core/base/failure.h"
#include "tests/engine/season_fixture.h"
#include "tests/support/failing_disks.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

TEST_F(UpdateFieldTest, FromAnyResetThatChangesNothingMakesTheSameFile) {
    Plant(LivelyField(), Planting + 50);
    Update(Planting + 50);
    EXPECT_THAT(Stored().Days, SizeIs(161));
    const std::string file = Directory.Raw("field1.dat");
    const StatRecord row = State.Stat[1];
    for (JulianValue day = Planting; day < Planting + 50; ++day) {
        State.Updates[1] = day > Planting ? day : 0;
        Update(Planting + 50);
        EXPECT_EQ(Directory.Raw("field1.dat"), file) << "from day " << day - Planting;
        EXPECT_EQ(State.Stat[1], row);
    }
}

TEST_F(UpdateFieldTest, TellsWhyItDoesNotRunAndWritesNothing) {
    AField().StoreAt(1);
    AWeatherYear("06", 2003).With(150, [](WeatherDay& day) { day.DayOfYear = 151; }).Store();
    const auto files = Files();
    EXPECT_EQ(Update(Planting - 2), RunOutcome::NothingToUpdate);  // planted tomorrow, weather through yesterday
    EXPECT_EQ(Update(JulianFromDayOfYear(180, 2003)), RunOutcome::WeatherDamaged);
    EXPECT_EQ(Files(), files);
    EXPECT_THAT(
        User.Texts(),
        ElementsAre("No new predictions-weather data needs updating:  Planting date = 05-02-2003.  Latest weather = "
                    "04-29-2003",
                    "Weather data file is missing or corrupt.  Download KESTA data or set with Default Data."));
}

// Beside the hole on the tenth day, one day is default weather, and one has no temperature: default weather, with
// another evapotranspiration, stands in for it. The last real day may come from anywhere.
TEST_F(UpdateFieldTest, AsksToFillAHoleInTheWeatherAndElseStopsTheDayBefore) {
    constexpr JulianValue last = JulianFromDayOfYear(180, 2003);
    DefaultWeather = SteadyWeather(AWeatherDay().ReferenceET(2));
    AWeatherYear year("06", 2003);
    year.Through(180).On(122, AWeatherDay().From("default")).On(125, AWeatherDay().Temperature(1, MissingDayMark));
    year.On(131, AWeatherDay().From("")).On(180, AWeatherDay().From("mine")).Store();
    const std::string weather = Directory.Raw("weather06.03");
    for (const bool isHay : {false, true}) {
        (isHay ? AField().Hay() : AField()).StoreAt(1);
        User.Told.clear();
        User.Asked.clear();
        User.Answers = {true, false};
        EXPECT_EQ(Update(last), RunOutcome::Done);
        EXPECT_EQ(Stored().Days[11].EtrSum, 9 * 6 + 2 * 2);
        EXPECT_EQ(Stored().Hay.NextCutDay, isHay ? Planting + 31 : 0);  // the first day at 490 degree days, 16 a day
        const DayRecord lastGood = Stored().Days[9];
        EXPECT_EQ(Update(last), RunOutcome::StoppedByUser);
        const ScriptAsk::Question question{"Weather for 05-11-03 needed.  Do you want to use default weather?",
                                           "Missing Data", Icon::Warning, false};
        EXPECT_THAT(User.Asked, ElementsAre(question, question));
        const ScriptAsk::Message writing{"Writing updated Field History", "Veraqua Info"};
        EXPECT_EQ(User.Told, std::vector<ScriptAsk::Message>(isHay ? 0 : 1, writing));
        EXPECT_THAT(Stored().Days, SizeIs(10));
        EXPECT_EQ(Stored().Days[9], lastGood);
        EXPECT_EQ(State.Stat[1].LastDay, Planting + 9);
        EXPECT_EQ(State.Stat[1].NextIrrDay, 0);
        EXPECT_EQ(State.WeatherNeedFrom, -1);
    }
    EXPECT_EQ(Directory.Raw("weather06.03"), weather);
}

// The user sets the depletion behind all water: the file ends there.
TEST_F(UpdateFieldTest, AResetOverTheMadWaitsForWater) {
    constexpr JulianValue day = Planting + 65;
    Plant(LivelyField(), Planting + 80);
    Update(Planting + 80);
    FieldFile file = Stored();
    file.Days[65].Available = 10;
    StoreFieldFile(1, file);
    State.Updates[1] = day;
    SaveFieldRow(User, 1);
    EXPECT_EQ(Update(Planting + 80), RunOutcome::Done);
    EXPECT_THAT(Stored().Days, SizeIs(66));
    EXPECT_EQ(Stored().Lists.Rain, file.Lists.Rain);
    EXPECT_EQ(State.Stat[1].NextIrrDay, day);
    // The capacity of the roots of that day, at 140 mm/m.
    EXPECT_NEAR(State.Stat[1].NextIrrAmount, (file.Days[65].RootDepthOrKc * 140 - 10) / 0.85, 0.5);
    EXPECT_EQ(State.Stat[1].LastDay, Planting + 80);
}

TEST_F(UpdateFieldTest, ANewFieldBeginsWithTheWaterOfItsSoil) {
    const FieldFile planned = AField().Content(84).Mad(40);  // 60 % of capacity
    AField().Hay().StoreAt(1);                               // sets up the directory
    State.CurrentField = 2;
    State.IsHay = false;
    State.Field = planned.Field;
    CreateField(User, planned.Soil);
    EXPECT_THAT(LoadFieldFile(2).Days, ElementsAre(DayRecord{0.3F * 84, 0, 0.3F, 0, 4}));
    EXPECT_EQ(State.Stat[2].Depletion, 40);
    EXPECT_EQ(State.Stat[2].NextIrrDay, Planting);
    EXPECT_EQ(State.Stat[2].NextIrrAmount, 20);  // 40 % of 42 mm by 0.85
    EXPECT_EQ(State.FieldCount, 2);
}

struct UpdateOnABreakingDisk : UpdateFieldTest {
    static constexpr JulianValue Last = Planting + 50;

    /// Whether the update comes through on the disk.
    bool Survives(files::RefusingDisk& disk) {
        files::InstallDisk(&disk);
        bool survives = false;
        try {
            Update(Last);
            survives = true;
        } catch (const RunTimeFailure&) {
        } catch (const files::Died&) {}
        files::InstallDisk(nullptr);
        return survives;
    }
};

TEST_F(UpdateOnABreakingDisk, LeavesFieldFileAndDirectoryRowBothOldOrBothNew) {
    Plant(LivelyField(), Last);
    const auto old = Files();
    Update(Last);
    const auto done = Files();
    for (const bool kills : {false, true}) {
        int stayedOld = 0;
        bool isDone = false;
        for (int n = 1; !isDone; ++n) {
            SCOPED_TRACE(testing::Message() << n << (kills ? ", the program killed" : ""));
            for (const auto& [name, bytes] : done) Directory.Delete(name);
            for (const auto& [name, bytes] : old) Directory.Put(name, bytes);
            Directory.Reopen();
            LoadFieldDirectory();
            const StatRecord row = State.Stat[1];
            files::FailingDisk failing(n, EIO, true);
            files::DyingDisk dying(Directory.Path());
            dying.RefuseCall(n);
            isDone = kills ? Survives(dying) : Survives(failing);
            const bool rowStands = State.Stat[1] == row;
            Directory.Reopen();  // the next start
            const auto left = Files();
            ASSERT_TRUE(left == done || (left == old && !isDone));
            EXPECT_TRUE(rowStands || left == done);
            stayedOld += left == old;
        }
        EXPECT_GT(stayedOld, 5);
    }
}

}  // namespace
}  // namespace veraqua
