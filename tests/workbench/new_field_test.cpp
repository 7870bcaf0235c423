#include "workbench/new_field.h"

#include <gmock/gmock.h>

#include "core/crop_table.h"
#include "data/embedded.h"
#include "tests/support/builders.h"
#include "tests/support/data_directory.h"

namespace veraqua {
namespace {

/// 15 July 2003, with the weather of station 06 through yesterday. Crops as shipped: maize roots to 1 m, alfalfa
/// to 1.2.
struct StartFieldTest : DirectoryTest {
    enum Crop { Maize = 1, Alfalfa = 25 };

    StartFieldTest() {
        for (const char* shipped : {"weathdef.dat", "crop.dat"}) Directory.Put(shipped, EmbeddedFile(shipped));
        StartUp(User);
        AWeatherYear("06", 2003).Through(195).Store();
        LoadCropList(User);
    }

    FieldEntry Begin(Crop crop) {
        State.CurrentField = static_cast<std::int16_t>(*RowForNewField());
        ReadCrop(User, crop);
        FieldEntry entry = StartingEntry();
        entry.FieldId = "EAST";
        entry.PlantDate = "5/1/2003";
        entry.Station = 6;
        return entry;
    }
};

TEST_F(StartFieldTest, TheFirstFreeRowAndTheNameOfACropBeginAField) {
    AField().StoreAt(1);
    AField().StoreAt(3);
    EXPECT_EQ(*RowForNewField(), 2);
    for (int row = 1; row <= MaxFields; ++row) State.Stat[row].LastDay = 1;
    EXPECT_FALSE(RowForNewField().IsDone());
    State.CropNames = {"corn", "CORN", " Hay "};
    EXPECT_EQ(CropCalled("CORN"), 2);  // the very name before one in other letters
    EXPECT_EQ(CropCalled(" Corn"), 1);
    EXPECT_EQ(CropCalled("hay"), 3);
    EXPECT_EQ(CropCalled("cor"), std::nullopt);
}

TEST_F(StartFieldTest, EachWayOfPickingRefusesItsOwnStations) {
    std::vector<int> clicked;
    std::vector<int> typed;
    for (int number = 1; number <= static_cast<int>(State.DefaultStations.size()); ++number) {
        if (PickStation(number, StationPick::Clicked)) clicked.push_back(number);
        if (PickStation(number, StationPick::Typed)) typed.push_back(number);
    }
    EXPECT_THAT(clicked, testing::ElementsAre(18, 19, 26));
    EXPECT_THAT(typed, testing::ElementsAre(11, 16, 17, 18, 25));
    PickStation(7, StationPick::Clicked);
    EXPECT_EQ(State.StationCode, "07");
}

TEST_F(StartFieldTest, WhatIsEnteredIsTakenOnceAllOfItPasses) {
    FieldEntry entry = Begin(Alfalfa);
    entry.RootDepth = "36";
    EXPECT_EQ(DescribeField(User, entry)->Where, Given::CriticalMad);  // which starts empty
    entry.MadCritical = "65.6";
    entry.PlantDate = " 12/31/1903 ";
    EXPECT_EQ(DescribeField(User, entry)->Text, "The planting date is too far in the past.");
    EXPECT_EQ(entry.PlantDate, "12-31-1903");
    entry.PlantDate = "5/1/2003";
    EXPECT_FALSE(DescribeField(User, entry));
    EXPECT_EQ(State.Hay.RootMax, 0.9144F);  // 36 x 0.0254
    EXPECT_TRUE(State.Hay.MADCritical == 66 && State.Hay.MAD == 50 && State.Hay.IrrEff == 0.75F);
}

TEST_F(StartFieldTest, TheFileAndItsFirstRunAreOneDeed) {
    FieldEntry entry = Begin(Maize);
    ASSERT_EQ(DescribeField(User, entry), std::nullopt);
    ASSERT_TRUE(FindWeather(User));
    const std::string directory = Directory.Raw("stat.dat");
    EnteredSoil soil{{}, 2, 0.4F};
    soil.Profile.Capacity.fill(32000);  // mm/m: what grown roots would need fits no file
    EXPECT_THROW(StartField(User, soil), RunTimeFailure);
    EXPECT_FALSE(Directory.Has("field1.dat"));
    EXPECT_EQ(Directory.Raw("stat.dat"), directory);

    soil.Profile.Capacity.fill(150);
    soil.Profile.Content.fill(120);
    const StartedField started = StartField(User, soil);
    EXPECT_EQ(started.Row, 1);
    EXPECT_EQ(started.FirstRun, RunOutcome::Done);
    EXPECT_EQ(State.Stat[1].LastDay, JulianFromDate(7, 14, 2003));
    const FieldFile file = LoadFieldFile(1);
    EXPECT_TRUE(file.Field.CapacityTop == 2 && file.Field.ContentTop == 2 && file.Field.ContentInterval == 0.4F);
    EXPECT_EQ(file.Days[0].Available, 120 * file.Field.RootStart);
}

}  // namespace
}  // namespace veraqua
