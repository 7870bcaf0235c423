#include <algorithm>
#include <string>

#include <gmock/gmock.h>

#include "tests/engine/season_fixture.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST_F(UpdateFieldTest, WritesRowsThroughTheEndOfTheSeasonAndTheDirectoryRow) {
    Plant(AField(), Planting + 20);
    EXPECT_EQ(Update(Planting + 20), RunOutcome::Done);
    EXPECT_THAT(Stored().Days, SizeIs(161));
    EXPECT_EQ(Stored().Days[20].EtrSum, 120);
    EXPECT_EQ(State.LastWeatherDay, Planting + 20);
    const StatRecord row = State.Stat[1];
    EXPECT_EQ(row.LastDay, Planting + 20);
    EXPECT_GT(row.NextIrrDay, Planting + 20);
    EXPECT_EQ(State.MadExceededDay, row.NextIrrDay);  // the forecast stays over the MAD from then on
    LoadFieldDirectory();
    EXPECT_EQ(State.Stat[1], row);
    // Years ahead are made by looking.
    EXPECT_EQ(Directory.Raw("weather06.07"), "");
    EXPECT_FALSE(Directory.Has("weather06.08"));
    EXPECT_THAT(User.Told, IsEmpty());
}

TEST_F(UpdateFieldTest, FromAnyResetThatChangesNothingMakesTheSameFile) {
    Plant(LivelyField(), Planting + 50);
    Update(Planting + 50);
    ASSERT_GE(Stored().Lists.History.size(), 2U);
    ASSERT_FALSE(Stored().Lists.Leaching.empty());
    const std::string file = Directory.Raw("field1.dat");
    const StatRecord row = State.Stat[1];
    for (JulianValue day = Planting; day < Planting + 50; ++day) {
        State.Updates[1] = day > Planting ? day : 0;
        Update(Planting + 50);
        EXPECT_EQ(Directory.Raw("field1.dat"), file) << "from day " << day - Planting;
        EXPECT_EQ(State.Stat[1], row) << "from day " << day - Planting;
    }
}

TEST_F(UpdateFieldTest, TellsThatAFieldIsPlantedTooFarAhead) {
    Plant(AField(), Planting - 2);
    const auto files = Files();
    EXPECT_EQ(Update(Planting - 2), RunOutcome::NothingToUpdate);  // planted tomorrow, weather through yesterday
    EXPECT_THAT(User.Told, ElementsAre(ScriptAsk::Message{
                               "No new predictions-weather data needs updating:  Planting date = 05-02-2003.  Latest "
                               "weather = 04-29-2003",
                               "Veraqua Update Warning"}));
    EXPECT_EQ(Files(), files);
    EXPECT_EQ(Update(Planting - 1), RunOutcome::Done);  // planted today: forecast days only
    EXPECT_THAT(Stored().Days, SizeIs(161));
    EXPECT_EQ(State.Stat[1].LastDay, Planting);
}

/// No weather on the tenth day; default weather has another evapotranspiration.
struct HoleTest : UpdateFieldTest {
    void PlantWithHole(const AField& field) {
        DefaultWeather = SteadyWeather(AWeatherDay().ReferenceET(2));
        field.StoreAt(1);
        AWeatherYear("06", 2003).Through(180).On(131, AWeatherDay().From("")).Store();
    }
    static constexpr JulianValue Last = JulianFromDayOfYear(180, 2003);
};

TEST_F(HoleTest, IsFilledWithDefaultWeatherForThisRunOnly) {
    PlantWithHole(AField());
    const std::string weather = Directory.Raw("weather06.03");
    User.OtherAnswer = true;
    EXPECT_EQ(Update(Last), RunOutcome::Done);
    EXPECT_EQ(Stored().Days[11].EtrSum, 10 * 6 + 2);
    EXPECT_EQ(Directory.Raw("weather06.03"), weather);
    Update(Last);
    const ScriptAsk::Question question{"Weather for 05-11-03 needed.  Do you want to use default weather?",
                                       "Missing Data", Icon::Warning, false};
    EXPECT_THAT(User.Asked, ElementsAre(question, question));
}

TEST_F(HoleTest, StopsTheRunAtTheDayBeforeIfTheUserSaysNo) {
    for (const bool isHay : {false, true}) {
        PlantWithHole(isHay ? AField().Hay() : AField());
        User.Answers = {true};
        Update(Last);  // a forecast stands in the file
        const DayRecord lastGood = Stored().Days[9];
        User.Told.clear();
        User.Answers = {false};
        State.WeatherNeedFrom = 0;
        EXPECT_EQ(Update(Last), RunOutcome::StoppedByUser);
        const ScriptAsk::Message writing{"Writing updated Field History", "Veraqua Info"};
        EXPECT_EQ(User.Told, std::vector<ScriptAsk::Message>(isHay ? 0 : 1, writing));
        EXPECT_THAT(Stored().Days, SizeIs(10));
        EXPECT_EQ(Stored().Days[9], lastGood);
        StatRecord expected;
        expected.FieldId = State.Header().FieldId;
        expected.CropName = State.Header().CropName;
        expected.LastDay = Planting + 9;
        const float capacity = 140 * (isHay ? 1.2F : lastGood.RootDepthOrKc);
        expected.Depletion = static_cast<std::int16_t>(DepletionPercent(lastGood.Available, capacity));
        expected.MadNow = 50;
        EXPECT_EQ(State.Stat[1], expected);
        EXPECT_EQ(State.WeatherNeedFrom, -1);
    }
}

TEST_F(UpdateFieldTest, WritesNothingWhereAWeatherRecordIsThatOfAnotherDay) {
    AField().StoreAt(1);
    AWeatherYear("06", 2003).With(150, [](WeatherDay& day) { day.DayOfYear = 151; }).Store();
    const auto files = Files();
    const StatRecord row = State.Stat[1];
    EXPECT_EQ(Update(JulianFromDayOfYear(180, 2003)), RunOutcome::WeatherDamaged);
    EXPECT_THAT(User.Told, ElementsAre(ScriptAsk::Message{"Weather data file is missing or corrupt.  Download KESTA "
                                                          "data or set with Default Data.",
                                                          "Weather File Error"}));
    EXPECT_EQ(Files(), files);
    EXPECT_EQ(State.Stat[1], row);
}

TEST_F(UpdateFieldTest, AResetOverTheMadWaitsForWaterAndEndsTheFileThere) {
    Plant(LivelyField(), Planting + 80);
    Update(Planting + 80);
    const FieldFile before = Stored();
    const StatRecord row = State.Stat[1];
    const JulianValue day = Planting + 65;  // behind all water
    Reset(day, 10);
    EXPECT_EQ(Update(Planting + 80), RunOutcome::Done);

    const FieldFile after = Stored();
    EXPECT_THAT(after.Days, SizeIs(66));
    EXPECT_EQ(after.Lists.Rain, before.Lists.Rain);
    for (const EventRecord& leached : after.Lists.Leaching) EXPECT_LE(leached.Day, day);
    EXPECT_EQ(State.Stat[1].NextIrrDay, day);
    // The capacity of the roots of that day, at 140 mm/m.
    EXPECT_NEAR(State.Stat[1].NextIrrAmount, (before.Days[65].RootDepthOrKc * 140 - 10) / 0.85, 0.5);
    EXPECT_EQ(State.Stat[1].LastDay, row.LastDay);
    EXPECT_EQ(State.Stat[1].Depletion, row.Depletion);
}

TEST_F(UpdateFieldTest, AResetOverTheMadRunsOnWhereWaterFollows) {
    Plant(LivelyField(), Planting + 80);
    Update(Planting + 80);
    const FieldFile before = Stored();
    Reset(Planting + 59, 10);  // the day before the last rain
    Update(Planting + 80);
    EXPECT_THAT(Stored().Days, SizeIs(161));
    EXPECT_TRUE(std::equal(before.Days.begin(), before.Days.begin() + 59, Stored().Days.begin()));
    EXPECT_EQ(Stored().Days[59].Available, 10);
    EXPECT_GT(Stored().Days[60].Available, 25);
}

TEST_F(UpdateFieldTest, KeepsTheNextCuttingInTheHayHeader) {
    const JulianValue cutting = Planting + 31;  // the first day at 490 degree days, 16 a day
    for (const bool isCut : {false, true}) {    // the day of the cutting counts as the first of growth
        Plant(isCut ? AField().Hay().Cutting(Planting + 10, 1) : AField().Hay(), Planting + 10);
        Update(Planting + 10);
        EXPECT_EQ(State.Stat[1].NextCutDay, isCut ? cutting + 9 : cutting);
        EXPECT_EQ(Stored().Hay.NextCutDay, State.Stat[1].NextCutDay);
        EXPECT_EQ(State.Hay.NextCutDay, State.Stat[1].NextCutDay);
    }
}

TEST_F(UpdateFieldTest, ANewFieldBeginsWithTheWaterOfItsSoil) {
    const FieldFile planned = AField().Content(84);  // 60 % of capacity
    AField().Hay().StoreAt(1);                       // sets up the directory
    State.CurrentField = 2;
    State.IsHay = false;
    State.Field = planned.Field;
    for (const std::int16_t mad : {std::int16_t{50}, std::int16_t{40}}) {
        State.Field.MAD = mad;
        CreateField(User, planned.Soil);
        const FieldFile file = LoadFieldFile(2);
        ASSERT_THAT(file.Days, SizeIs(1));
        EXPECT_NEAR(file.Days[0].Available, 25.2, 1e-5);
        EXPECT_EQ(file.Days[0].RootDepthOrKc, 0.3F);
        EXPECT_EQ(file.Days[0].DaysSinceWet, 4);
        EXPECT_EQ(State.Stat[2].Depletion, 40);
        EXPECT_EQ(State.Stat[2].LastDay, Planting);
        EXPECT_EQ(State.Stat[2].NextIrrDay, mad == 40 ? Planting : 0);
        EXPECT_EQ(State.Stat[2].NextIrrAmount, mad == 40 ? 20 : 0);  // 40 % of 42 mm by 0.85
        EXPECT_EQ(State.FieldCount, 2);
    }
}

}  // namespace
}  // namespace veraqua
