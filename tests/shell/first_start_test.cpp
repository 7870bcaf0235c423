#include "shell/first_start.h"

#include <algorithm>

#include <gmock/gmock.h>

#include "core/crop_table.h"
#include "core/state.h"
#include "data/embedded.h"
#include "tests/support/builders.h"
#include "tests/support/data_directory.h"
#include "tests/support/failure.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using FirstStart = DirectoryTest;

TEST_F(FirstStart, MakesTheShippedFilesAndAnEmptyFieldDirectory) {
    const InitOutcome outcome = MakeDataDirectory(User, false);
    EXPECT_THAT(outcome.Created, ElementsAre("VERAGUIDE.doc", "crop.dat", "stat.dat", "updates.dat", "weathdef.dat"));
    EXPECT_EQ(files::Names(), outcome.Created);
    for (const char* name : {"VERAGUIDE.doc", "crop.dat", "weathdef.dat"})
        EXPECT_EQ(Directory.Raw(name), EmbeddedFile(name)) << name;
    EXPECT_EQ(Directory.Raw("stat.dat"), std::string(4100, '\0'));
}

TEST_F(FirstStart, LeavesAloneWhatIsThere) {
    Directory.Put("CROP.DAT", "1\n\"MY CROP\", 30, 10, 0.3, 1, 1820, 1, 0, 0, 0, 0, 0, 1132, 160\n");
    EXPECT_THAT(MakeDataDirectory(User, false).Created,
                ElementsAre("VERAGUIDE.doc", "stat.dat", "updates.dat", "weathdef.dat"));
    EXPECT_THAT(Directory.Raw("CROP.DAT"), HasSubstr("MY CROP"));
    EXPECT_THAT(MakeDataDirectory(User, false).Created, IsEmpty());
}

TEST_F(FirstStart, ACropTableWithoutTheSamplesCropsLeavesTheDirectoryAsItWas) {
    Directory.Put("crop.dat", "0\n");
    EXPECT_FAILURE(MakeDataDirectory(User, true), HasSubstr("crop.dat: the sample season needs the crop"));
    EXPECT_THAT(files::Names(), ElementsAre("crop.dat"));
}

TEST_F(FirstStart, ShippedTablesHoldAllCropsStationsAndRegions) {
    MakeDataDirectory(User, false);
    const std::vector<Crop> crops = ReadCropTable(User);
    EXPECT_EQ(std::ranges::count_if(crops, &Crop::IsHay), 4);
    EXPECT_EQ(crops.size(), 28U);
    EXPECT_EQ(State.DefaultStations.size(), 33U);
}

TEST_F(FirstStart, PutsNoSampleIntoAFarmWithFields) {
    MakeDataDirectory(User, false);
    AField().StoreAt(1);
    const std::vector<std::string> names = files::Names();
    const std::string row = Directory.Raw("stat.dat");
    EXPECT_TRUE(MakeDataDirectory(User, true).Refused);
    EXPECT_THAT(User.Texts(),
                ElementsAre("There are fields in this directory. The sample season needs one without fields."));
    EXPECT_EQ(files::Names(), names);
    EXPECT_EQ(Directory.Raw("stat.dat"), row);
    EXPECT_FALSE(MakeDataDirectory(User, false).Refused);
}

TEST_F(FirstStart, LeavesNothingOfTheSampleInWork) {
    MakeDataDirectory(User, true);
    EXPECT_EQ(State.CurrentField, 0);
    EXPECT_EQ(State.StationCode + " " + State.StationName, "00 UNKNOWN");
    EXPECT_EQ(State.TodayJulian, User.Today);
}

}  // namespace
}  // namespace veraqua
