#include "shell/first_start.h"

#include <gmock/gmock.h>

#include "core/crop_table.h"
#include "core/state.h"
#include "data/embedded.h"
#include "tests/support/builders.h"
#include "tests/support/data_directory.h"
#include "tests/support/failure.h"
#include "weather/default_weather.h"

namespace veraqua {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using FirstStart = DirectoryTest;

TEST_F(FirstStart, MakesTheShippedFilesAndAnEmptyFieldDirectory) {
    const InitOutcome outcome = MakeDataDirectory(User, false);
    EXPECT_FALSE(outcome.Refused);
    EXPECT_THAT(outcome.Created, ElementsAre("VERAGUIDE.doc", "crop.dat", "stat.dat", "updates.dat", "weathdef.dat"));
    EXPECT_EQ(files::Names(), outcome.Created);
    for (const char* name : {"VERAGUIDE.doc", "crop.dat", "weathdef.dat"})
        EXPECT_EQ(Directory.Raw(name), EmbeddedFile(name)) << name;
    EXPECT_THAT(Directory.Raw("VERAGUIDE.doc"), testing::StartsWith("{\\rtf1\\ansi"));
    EXPECT_EQ(Directory.Raw("stat.dat"), std::string(4100, '\0'));
    EXPECT_EQ(State.FieldCount, 0);
    EXPECT_EQ(State.TodayJulian, User.Today);
}

TEST_F(FirstStart, LeavesAloneWhatIsThere) {
    Directory.Put("CROP.DAT", "1\n\"MY CROP\", 30, 10, 0.3, 1, 1820, 1, 0, 0, 0, 0, 0, 1132, 160\n");
    EXPECT_THAT(MakeDataDirectory(User, false).Created,
                ElementsAre("VERAGUIDE.doc", "stat.dat", "updates.dat", "weathdef.dat"));
    EXPECT_THAT(Directory.Raw("CROP.DAT"), HasSubstr("MY CROP"));
    EXPECT_FALSE(Directory.Has("crop.dat"));
    EXPECT_THAT(MakeDataDirectory(User, false).Created, IsEmpty());
}

TEST_F(FirstStart, ACropTableWithoutTheSamplesCropsLeavesDirectoryAndStateAsTheyWere) {
    Directory.Put("crop.dat", "0\n");
    EXPECT_FAILURE(MakeDataDirectory(User, true), HasSubstr("crop.dat: the sample season needs the crop"));
    EXPECT_THAT(files::Names(), ElementsAre("crop.dat"));
    EXPECT_EQ(State.TodayJulian, 0);
    EXPECT_THAT(State.DefaultStations, IsEmpty());
}

TEST_F(FirstStart, WeatherThatEndsBeforeTheSamplesFieldsWerePlantedRefusesIt) {
    AWeatherYear("06", 2002).Through(10).Store();  // a user's own: it stays
    User.Today = JulianFromDate(7, 15, 2002);
    EXPECT_TRUE(MakeDataDirectory(User, true).Refused);
    EXPECT_THAT(User.Texts(), testing::Contains(HasSubstr("No new predictions-weather data needs updating")));
    EXPECT_THAT(files::Names(), ElementsAre("weather06.02"));
}

TEST_F(FirstStart, ShippedTablesHoldAllCropsStationsAndRegions) {
    MakeDataDirectory(User, false);
    const std::vector<Crop> crops = ReadCropTable(User);
    EXPECT_EQ(std::ranges::count_if(crops, &Crop::IsHay), 4);
    EXPECT_EQ(crops.size(), 28U);
    EXPECT_EQ(State.DefaultStations.size(), 33U);

    // ReferenceET a0 of each block, mm per day, as it stands in the file.
    const std::vector<std::pair<std::string_view, float>> regions{{"TELMORAN", 4.70147F}, {"SORA VALLEY", 4.29296F},
                                                                  {"BRESKIN", 4.11854F},  {"DUNMER", 4.58877F},
                                                                  {"KALVIS", 2.12269F},   {"TORV", 4.03579F}};
    for (const auto& [region, mean] : regions) {
        ASSERT_TRUE(LoadWeatherCoefficients(User, region)) << region;
        EXPECT_EQ(State.WeatherCoeff[7][0], mean) << region;
    }
}

}  // namespace

}  // namespace veraqua
