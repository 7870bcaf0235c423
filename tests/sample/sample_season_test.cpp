#include <map>
#include <set>

#include <fmt/format.h>
#include <gmock/gmock.h>

#include "catch_up/field_updates.h"
#include "core/directory.h"
#include "core/field_file.h"
#include "core/state.h"
#include "shell/first_start.h"
#include "tests/support/data_directory.h"
#include "weather/weather_file.h"

namespace veraqua {
namespace {

using testing::AllOf;
using testing::Each;
using testing::Ge;
using testing::Le;

struct SampleOnADay : DirectoryTest, testing::WithParamInterface<Date> {
    SampleOnADay() { User.Today = JulianFromDate(GetParam().Month, GetParam().Day, GetParam().Year); }

    static std::map<std::string, std::string> AllFiles() {
        std::map<std::string, std::string> contents;
        for (const std::string& name : files::Names()) contents[name] = *files::Read(name);
        return contents;
    }
};

TEST_P(SampleOnADay, IsAFarmInFullSwing) {
    MakeDataDirectory(User, true);
    std::set<std::string> ids;
    int dated = 0;
    int overMad = 0;
    int cutHay = 0;
    for (const int row : RowsInUse()) {
        const StatRecord& record = State.Stat[row];
        const FieldFile field = LoadFieldFile(row);
        ids.insert(record.FieldId.Text());
        dated += record.NextIrrDay > 0 && record.NextIrrAmount > 0;
        overMad += record.LastDay == User.Today - 1 && record.Depletion >= record.MadNow;
        cutHay += !field.Lists.Cuttings.empty();
        EXPECT_LE(record.Depletion, 95);
        const auto inSeason =
            testing::Field(&EventRecord::Day, AllOf(Ge(field.Header().PlantDay + 1), Le(User.Today - 1)));
        for (const auto* events : {&field.Lists.Rain, &field.Lists.Irrigation, &field.Lists.Cuttings}) {
            EXPECT_THAT(*events, Each(inSeason));
            EXPECT_TRUE(std::ranges::is_sorted(*events, std::ranges::less_equal{}, &EventRecord::Day));
        }
    }
    EXPECT_THAT(ids.size(), AllOf(Ge(10U), Le(13U)));
    EXPECT_GT(2 * dated, State.FieldCount);
    EXPECT_GE(overMad, 1);
    EXPECT_GE(cutHay, 2);
    EXPECT_TRUE(User.Told.empty() && User.Asked.empty());
}

TEST_P(SampleOnADay, IsUpToDateAndTheSameToTheByteElsewhere) {
    MakeDataDirectory(User, true);
    const auto first = AllFiles();
    EXPECT_THAT(UpdateRows(User, RowsInUse()), Each(UpdateStatus::Done));
    EXPECT_EQ(AllFiles(), first);
    files::Close();
    const TestDirectory elsewhere;
    MakeDataDirectory(User, true);
    EXPECT_EQ(AllFiles(), first);
}

// A leap day, turns of the year, a day on which only neglect lets a field go over its MAD, one when hay of the winter
// meets hay of the summer.
INSTANTIATE_TEST_SUITE_P(Days, SampleOnADay,
                         testing::Values(Date{7, 15, 2026}, Date{1, 1, 2026}, Date{2, 29, 2028}, Date{4, 24, 2027},
                                         Date{5, 20, 2027}, Date{12, 31, 2100}),
                         [](const auto& day) {
                             return fmt::format("{}_{:02}_{:02}", day.param.Year, day.param.Month, day.param.Day);
                         });

using Sample = DirectoryTest;

TEST_F(Sample, AMeasuredYearStandsForTheYearsOfTheSample) {
    User.Today = JulianFromDate(3, 2, 2028);
    MakeDataDirectory(User, true);
    // Days 59 and 60 of 2002, 28 February and 1 March, had 22.50 and 18.28 degrees C at Davis.
    const WeatherFile weather("06", 2028);
    EXPECT_EQ(weather.Day(59).TempMax, 22.5F);
    EXPECT_EQ(weather.Day(60).Source.Text(), "default");  // 29 February
    EXPECT_EQ(weather.Day(61).TempMax, 18.28F);
}

}  // namespace
}  // namespace veraqua
