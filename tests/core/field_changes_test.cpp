#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "core/field_file.h"
#include "core/state.h"
#include "tests/support/builders.h"
#include "tests/support/data_directory.h"
#include "tests/support/failure.h"

namespace veraqua {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

FieldFile After(FieldFile file, const FieldChanges& changes) {
    ApplyChanges(file, changes);
    return file;
}

std::vector<JulianValue> DaysOf(const std::vector<EventRecord>& list) {
    std::vector<JulianValue> days(list.size());
    std::transform(list.begin(), list.end(), days.begin(), [](const EventRecord& record) { return record.Day; });
    return days;
}

FieldFile EveryList() {
    FieldFile file = AField().Hay();
    file.Lists.History = {{1000, {5}}};
    for (auto* list : {&file.Lists.Leaching, &file.Lists.MadChanges, &file.Lists.DepletionChanges, &file.Lists.Rain,
                       &file.Lists.Cuttings, &file.Lists.Irrigation})
        *list = {{1000, 7}, {1001, 8}};
    file.Lists.EfficiencyChanges = {{1000, 0.5F}};
    return file;
}

TEST(Changes, LeachingAndHistoryKeepTheirRecordsThroughTheSeamAndGoOnWithTheNewOnes) {
    const struct {
        std::vector<EventRecord> Old;
        JulianValue Seam;
        std::vector<EventRecord> New;
        std::vector<JulianValue> Merged;
    } cases[] = {
        {{{10, 1}, {20, 2}, {30, 3}}, 20, {{21, 7}, {25, 8}}, {10, 20, 21, 25}},
        {{{10, 1}, {20, 2}, {30, 3}}, 20, {}, {10, 20}},
        {{{10, 1}, {20, 2}, {30, 3}}, 19, {{20, 7}}, {10, 20}},
        {{{10, 1}, {20, 2}, {30, 3}}, 9, {}, {}},
        {{{10, 1}, {20, 2}, {30, 3}}, 99, {{100, 7}}, {10, 20, 30, 100}},
        {{}, 20, {{21, 7}}, {21}},
        {{}, 20, {}, {}},
    };
    for (const auto& c : cases) {
        FieldFile file = AField();
        FieldChanges changes;
        changes.Merge = true;
        changes.SeamDay = c.Seam;
        file.Lists.Leaching = c.Old;
        changes.Lists.Leaching = c.New;
        for (const EventRecord& event : c.Old) file.Lists.History.push_back({event.Day, {event.Amount}});
        for (const EventRecord& event : c.New) changes.Lists.History.push_back({event.Day, {event.Amount}});
        const FieldLists merged = After(file, changes).Lists;
        EXPECT_EQ(DaysOf(merged.Leaching), c.Merged) << c.Seam;
        ASSERT_THAT(merged.History, SizeIs(c.Merged.size())) << c.Seam;
        for (std::size_t i = 0; i < c.Merged.size(); ++i) {
            EXPECT_EQ(merged.History[i].Day, c.Merged[i]);
            EXPECT_EQ(merged.History[i].Content[0], merged.Leaching[i].Amount);
        }
    }
}

/// In every list one record of value 0, which stands for no record.
FieldFile LoneZeros() {
    FieldFile file = AField().Hay();
    file.Lists.History = {{0, {5}}};
    for (auto* list : {&file.Lists.Leaching, &file.Lists.MadChanges, &file.Lists.DepletionChanges, &file.Lists.Rain,
                       &file.Lists.Cuttings, &file.Lists.Irrigation})
        *list = {{1000, 0}};
    file.Lists.EfficiencyChanges = {{1000, 0}};
    return file;
}

std::size_t Records(const FieldLists& lists) {
    return lists.History.size() + lists.Leaching.size() + lists.MadChanges.size() + lists.EfficiencyChanges.size() +
           lists.DepletionChanges.size() + lists.Rain.size() + lists.Cuttings.size() + lists.Irrigation.size();
}

TEST(Changes, ALoneZeroVanishesFromTheFirstRewrittenListOn) {
    EXPECT_EQ(Records(After(LoneZeros(), {}).Lists), 8U) << "nothing is rewritten";

    FieldChanges rain;
    rain.Lists.Rain = {{1001, 12}};
    const FieldLists afterRain = After(LoneZeros(), rain).Lists;
    EXPECT_THAT(afterRain.MadChanges, ElementsAre(EventRecord{1000, 0})) << "lies before the rain and stays";
    EXPECT_THAT(afterRain.DepletionChanges, SizeIs(1));
    EXPECT_THAT(afterRain.Rain, ElementsAre(EventRecord{1001, 12}));
    EXPECT_THAT(afterRain.Cuttings, IsEmpty());
    EXPECT_THAT(afterRain.Irrigation, IsEmpty());

    FieldChanges efficiency;
    efficiency.Lists.EfficiencyChanges = {{1001, 0.5F}};
    EXPECT_EQ(Records(After(LoneZeros(), efficiency).Lists), 4U);

    FieldChanges rows;
    rows.StartDay = LoneZeros().Hay.PlantDay;
    rows.Days = LoneZeros().Days;
    EXPECT_EQ(Records(After(LoneZeros(), rows).Lists), 0U) << "rows move all lists";

    FieldChanges run;
    run.Merge = true;
    run.SeamDay = 2000;
    EXPECT_EQ(Records(After(LoneZeros(), run).Lists), 0U);
}

TEST(Changes, AZeroThatIsNotAloneOrIsAProfileStays) {
    FieldFile file = AField();
    file.Lists.History = {{1000, {0, 0, 0, 0}}};
    file.Lists.Rain = {{1000, 0}, {1001, 0}};
    FieldChanges run;
    run.Merge = true;
    run.SeamDay = 2000;
    run.Lists.Irrigation = {{1000, 0}};
    const FieldLists lists = After(file, run).Lists;
    EXPECT_THAT(lists.History, SizeIs(1));
    EXPECT_THAT(lists.Rain, SizeIs(2));
    EXPECT_THAT(lists.Irrigation, IsEmpty()) << "a new list of one zero is none";
}

TEST(Changes, AnEmptyListIsCarriedOverUnlessItsRecordsWereRemoved) {
    const FieldLists before = EveryList().Lists;
    const struct {
        bool FieldChanges::*Removed;
        std::vector<EventRecord> FieldLists::*List;
    } cases[] = {
        {&FieldChanges::RainRemoved, &FieldLists::Rain},
        {&FieldChanges::CutsRemoved, &FieldLists::Cuttings},
        {&FieldChanges::IrrigationRemoved, &FieldLists::Irrigation},
    };
    for (const auto& c : cases) {
        FieldChanges changes;
        EXPECT_EQ(After(EveryList(), changes).Lists, before);
        changes.*c.Removed = true;
        FieldLists expected = before;
        (expected.*c.List).clear();
        EXPECT_EQ(After(EveryList(), changes).Lists, expected);

        // With the flag set a list that is not empty still counts.
        expected.*c.List = changes.Lists.*c.List = {{730430, 9}};
        EXPECT_EQ(After(EveryList(), changes).Lists, expected);
    }
}

TEST(Changes, NewRowsEndTheFile) {
    const FieldFile file = AField().PlantedOn(1000).Days(5);
    const DayRecord wet{99, 1, 1, 1, 0};
    const struct {
        JulianValue StartDay;
        std::vector<DayRecord> Rows;
        std::vector<DayRecord> Result;
    } cases[] = {
        {1003, {wet, wet, wet}, {file.Days[0], file.Days[1], file.Days[2], wet, wet, wet}},
        {1001, {wet}, {file.Days[0], wet}},
        {1000, {wet}, {wet}},
        {1005, {wet}, {file.Days[0], file.Days[1], file.Days[2], file.Days[3], file.Days[4], wet}},
        {5000, {}, file.Days},
    };
    for (const auto& c : cases) {
        FieldChanges changes;
        changes.StartDay = c.StartDay;
        changes.Days = c.Rows;
        EXPECT_EQ(After(file, changes).Days, c.Result) << c.StartDay;
    }
    for (const JulianValue startDay : {999, 1006}) {
        FieldChanges changes;
        changes.StartDay = startDay;
        changes.Days = {wet};
        EXPECT_FAILURE(After(file, changes), HasSubstr("5 rows")) << startDay;
    }
}

TEST_F(DirectoryTest, AWriterBringsHeaderAndSoilAndTheRestIsCarriedOver) {
    const FieldFile old = AField().Days(3).Rain(731700, 12).Irrigation(731701, 40).StoreAt(1);
    const std::string bytes = Directory.Raw("field1.dat");
    Directory.Put("field1.dat", bytes + "surplus");
    ASSERT_TRUE(SelectField(User, 1));
    State.Field.MAD = 45;
    FieldChanges changes;
    changes.StartDay = old.Field.PlantDay + 1;
    changes.Days = {{41, 9, 0.25F, 6, 5}};
    changes.RainRemoved = true;
    SoilProfile soil = old.Soil;
    soil.Content = {80, 85, 95, 100};
    WriteField(changes, soil);

    const FieldFile written = LoadFieldFile(1);
    FieldHeader header = old.Field;
    header.MAD = 45;
    EXPECT_EQ(written.Field, header);
    EXPECT_EQ(written.Soil, soil);
    EXPECT_THAT(written.Days, ElementsAre(old.Days[0], changes.Days[0]));
    EXPECT_THAT(written.Lists.Rain, IsEmpty());
    EXPECT_EQ(written.Lists.Irrigation, old.Lists.Irrigation);
    EXPECT_EQ(Directory.Raw("field1.dat").size(), bytes.size() - 18 - 6) << "a row and a record less, no surplus";
}

}  // namespace

}  // namespace veraqua
