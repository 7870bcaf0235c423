#include "shell/sample_season.h"

#include <map>
#include <set>

#include <gmock/gmock.h>

#include "catch_up/field_updates.h"
#include "core/directory.h"
#include "core/field_file.h"
#include "core/state.h"
#include "data/embedded.h"
#include "shell/first_start.h"
#include "tests/support/data_directory.h"
#include "weather/weather_file.h"

namespace veraqua {

namespace {

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::Ge;
using testing::IsEmpty;
using testing::Le;

using Contents = std::map<std::string, std::string>;

Contents AllFiles() {
    Contents contents;
    for (const std::string& name : files::Names()) contents[name] = *files::Read(name);
    return contents;
}

/// The field of parcel `id`.
FieldFile Parcel(std::string_view id) {
    for (const int row : RowsInUse())
        if (State.Stat[row].FieldId.Text() == id) return LoadFieldFile(row);
    throw std::runtime_error("No parcel " + std::string(id));
}

struct SampleTest : DirectoryTest {
    InitOutcome MakeSample(JulianValue today) {
        User.Today = today;
        return MakeDataDirectory(User, true);
    }
};

struct SampleOnADay : SampleTest, testing::WithParamInterface<Date> {
    SampleOnADay() { MakeSample(JulianFromDate(GetParam().Month, GetParam().Day, GetParam().Year)); }
};

TEST_P(SampleOnADay, IsAFarmInFullSwing) {
    std::set<std::string> ids;
    int dated = 0;
    int overMad = 0;
    int cutHay = 0;
    int layered = 0;
    for (const int row : RowsInUse()) {
        SCOPED_TRACE(row);
        const StatRecord& record = State.Stat[row];
        const FieldFile field = LoadFieldFile(row);
        ids.insert(record.FieldId.Text());
        dated += record.NextIrrDay > 0 && record.NextIrrAmount > 0;
        overMad += record.LastDay == User.Today - 1 && record.Depletion >= record.MadNow;
        cutHay += !field.Lists.Cuttings.empty();
        layered += field.VariableSoil();
        EXPECT_LE(record.Depletion, 95);
        EXPECT_NE(record.NextIrrAmount, AmountNoDataYet);
        const auto inSeason =
            testing::Field(&EventRecord::Day, AllOf(Ge(field.Header().PlantDay + 1), Le(User.Today - 1)));
        for (const auto* events : {&field.Lists.Rain, &field.Lists.Irrigation, &field.Lists.Cuttings}) {
            EXPECT_THAT(*events, Each(inSeason));
            EXPECT_TRUE(std::ranges::is_sorted(*events, std::ranges::less_equal{}, &EventRecord::Day));
        }
    }
    const int count = State.FieldCount;
    EXPECT_THAT(count, AllOf(Ge(10), Le(13)));
    EXPECT_EQ(ids.size(), static_cast<std::size_t>(count));
    EXPECT_GT(2 * dated, count);
    EXPECT_GE(overMad, 1);
    EXPECT_GE(cutHay, 2);
    EXPECT_THAT(layered, AllOf(Ge(1), Le(count - 1)));
    EXPECT_THAT(User.Told, IsEmpty());
    EXPECT_THAT(User.Asked, IsEmpty());
}

TEST_P(SampleOnADay, IsUpToDateAndTheSameToTheByteElsewhere) {
    const Contents first = AllFiles();
    EXPECT_THAT(UpdateRows(User, RowsInUse()), Each(UpdateStatus::Done));
    EXPECT_EQ(AllFiles(), first);
    files::Close();
    const TestDirectory elsewhere;
    MakeSample(User.Today);
    EXPECT_EQ(AllFiles(), first);
}

// A leap day, turns of the year, a day on which only neglect lets a field go over its MAD, one when hay of the winter
// meets hay of the summer.
INSTANTIATE_TEST_SUITE_P(Days, SampleOnADay,
                         testing::Values(Date{7, 15, 2026}, Date{1, 1, 2026}, Date{2, 29, 2028}, Date{4, 24, 2027},
                                         Date{5, 20, 2027}, Date{12, 31, 2100}));

TEST_F(SampleTest, AMeasuredYearStandsForTheYearsOfTheSample) {
    MakeSample(JulianFromDate(3, 2, 2028));
    // Days 59 and 60 of 2002, 28 February and 1 March, had 22.50 and 18.28 degrees C at Davis.
    const WeatherFile weather("06", 2028);
    EXPECT_EQ(weather.Days(), 61);
    EXPECT_EQ(weather.Day(59).TempMax, 22.5F);
    EXPECT_EQ(weather.Day(59).Source.Text(), "kesta");
    EXPECT_EQ(weather.Day(60).Source.Text(), "default");  // 29 February
    EXPECT_EQ(weather.Day(61).TempMax, 18.28F);
    EXPECT_EQ(weather.Day(61).DayOfYear, 61);
    // Nobody measured 25 April (day 115) there, nor December at the cold station.
    EXPECT_EQ(WeatherFile("06", 2027).Day(115).Source.Text(), "default");
    EXPECT_EQ(WeatherFile("15", 2027).Day(365).Source.Text(), "default");
    EXPECT_EQ(StationNameOf("06"), "Fenwold (sample)");
}

TEST_F(SampleTest, RainIsThatOfTheMeasuredYearInWholeMillimetres) {
    MakeSample(JulianFromDate(11, 24, 2026));
    // From planting on 09-10 the station's column 12 has 54.61 mm on day 311, 4.83, 5.08 and 4.06 on the next three,
    // 1.52 on day 316, and 0.25 on day 320, which no gauge shows.
    const JulianValue first = JulianFromDayOfYear(311, 2026);
    EXPECT_THAT(Parcel("SLOUGH 25").Lists.Rain,
                ElementsAre(EventRecord{first, 55}, EventRecord{first + 1, 5}, EventRecord{first + 2, 5},
                            EventRecord{first + 3, 4}, EventRecord{first + 5, 2}));
}

TEST_F(SampleTest, HayIsCutWhenItIsReadyAndNotWateredWhileItDries) {
    MakeSample(JulianFromDate(11, 24, 2026));
    for (const char* id : {"HOME 40", "UPLAND 30"}) {
        const FieldFile hay = Parcel(id);
        EXPECT_THAT(hay.Lists.Cuttings.size(), AllOf(Ge(4U), Le(7U))) << id;
        for (const EventRecord& cutting : hay.Lists.Cuttings) {
            const auto evening = static_cast<std::size_t>(cutting.Day - hay.Hay.PlantDay - 1);
            EXPECT_GE(hay.Days[evening].GddSum, hay.Hay.GddCut) << id << " " << JulianToLongText(cutting.Day);
            for (const EventRecord& water : hay.Lists.Irrigation)
                EXPECT_FALSE(water.Day > cutting.Day - 4 && water.Day < cutting.Day + 4)
                    << id << " " << JulianToLongText(water.Day);
        }
    }
}

TEST_F(SampleTest, FieldsAreStoredAsTheEntryFormsStoreThem) {
    const InitOutcome outcome = MakeSample(JulianFromDate(7, 15, 2026));
    const FieldFile layered = Parcel("HOME 40");  // 10, 14 and 23 inches of 2.2, 2.0 and 1.9 inches to the foot
    EXPECT_THAT(layered.Soil.Bounds, ElementsAre(0.254F, 0.3556F, 0.5842F, 0, 0, 0));
    EXPECT_EQ(layered.Header().CapacityTop, 2);
    EXPECT_EQ(layered.Header().CapacityInterval, 0);
    EXPECT_THAT(std::vector(layered.Soil.Capacity.begin(), layered.Soil.Capacity.begin() + 3),
                ElementsAre(183, 167, 158));
    EXPECT_EQ(layered.Hay.RootMax, 1.19888F);    // 47.2 inches
    const FieldFile zoned = Parcel("RIVER 22");  // roots to 0.7 m in zones of a foot
    EXPECT_EQ(zoned.Header().CapacityInterval, 0.3048F);
    EXPECT_EQ(zoned.Header().CapacityTop, 2);
    constexpr std::string_view backup = "GROVE 20  _100626_ 1.dat";  // winter wheat, off the field on 10 June
    ASSERT_THAT(outcome.Created, testing::Contains(backup));
    const FieldFile wheat = ParseFieldFile(*files::Read(backup), false, backup);
    EXPECT_EQ(wheat.Field.CropName.Text(), "WINTER WHEAT");
    EXPECT_EQ(wheat.Field.PlantDay, JulianFromDate(11, 25, 2025));
    EXPECT_GT(wheat.Days.size(), 150U);
}

}  // namespace

}  // namespace veraqua
