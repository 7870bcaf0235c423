#include <vector>

#include <gmock/gmock.h>

#include "core/field_file.h"
#include "tests/support/builders.h"
#include "tests/support/failure.h"

namespace veraqua {

namespace {

using testing::HasSubstr;

FieldFile After(FieldFile file, const FieldChanges& changes) {
    ApplyChanges(file, changes);
    return file;
}

FieldChanges RunFrom(JulianValue seam) {
    FieldChanges changes;
    changes.Merge = true;
    changes.SeamDay = seam;
    return changes;
}

TEST(Changes, LeachingAndHistoryKeepTheirRecordsThroughTheSeamAndGoOnWithTheNewOnes) {
    using Days = std::vector<JulianValue>;
    struct Seam {
        JulianValue Day;
        Days New, Merged;
    };
    for (const Seam& seam : {Seam{20, {21, 25}, {10, 20, 21, 25}}, Seam{20, {}, {10, 20}}, Seam{19, {20}, {10, 20}},
                             Seam{9, {}, {}}, Seam{99, {100}, {10, 20, 30, 100}}}) {
        FieldFile file = AField();
        FieldChanges changes = RunFrom(seam.Day);
        const auto add = [](FieldLists& lists, const Days& days, std::int16_t value) {
            for (const JulianValue day : days) {
                lists.Leaching.push_back({day, value});
                lists.History.push_back({day, {value}});
            }
        };
        add(file.Lists, {10, 20, 30}, 1);
        add(changes.Lists, seam.New, 2);
        FieldLists expected;
        for (const JulianValue day : seam.Merged) add(expected, {day}, day <= seam.Day ? 1 : 2);
        EXPECT_EQ(After(file, changes).Lists, expected) << seam.Day;
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

TEST(Changes, ALoneZeroVanishesFromTheFirstRewrittenListOn) {
    EXPECT_EQ(After(LoneZeros(), {}).Lists, LoneZeros().Lists) << "nothing is rewritten";
    FieldChanges rain;
    rain.Lists.Rain = {{1001, 12}};
    FieldLists expected = LoneZeros().Lists;  // those before the rain stay
    expected.Rain = {{1001, 12}};
    expected.Cuttings.clear();
    expected.Irrigation.clear();
    EXPECT_EQ(After(LoneZeros(), rain).Lists, expected);
    FieldChanges rows;  // which move all lists
    rows.StartDay = LoneZeros().Hay.PlantDay;
    rows.Days = LoneZeros().Days;
    EXPECT_EQ(After(LoneZeros(), rows).Lists, FieldLists{});
    EXPECT_EQ(After(LoneZeros(), RunFrom(2000)).Lists, FieldLists{});

    FieldFile file = AField().Rain(1000, 0).Rain(1001, 0);  // no lone zeros
    file.Lists.History = {{1000, {0, 0, 0, 0}}};
    FieldChanges run = RunFrom(2000);
    run.Lists.Irrigation = {{1000, 0}};
    EXPECT_EQ(After(file, run).Lists, file.Lists);
}

TEST(Changes, AnEmptyListIsCarriedOverUnlessItsRecordsWereRemoved) {
    const FieldFile file = AField().Hay().Rain(1000, 7).Rain(1001, 8).Cutting(1000, 7).Irrigation(1000, 7);
    struct Removal {
        bool FieldChanges::*Removed;
        std::vector<EventRecord> FieldLists::*List;
    };
    for (const Removal& removal : {Removal{&FieldChanges::RainRemoved, &FieldLists::Rain},
                                   Removal{&FieldChanges::CutsRemoved, &FieldLists::Cuttings},
                                   Removal{&FieldChanges::IrrigationRemoved, &FieldLists::Irrigation}}) {
        FieldChanges changes;
        changes.*removal.Removed = true;
        FieldLists expected = file.Lists;
        (expected.*removal.List).clear();
        EXPECT_EQ(After(file, changes).Lists, expected);
        // With the flag set a list that is not empty still counts.
        expected.*removal.List = changes.Lists.*removal.List = {{730430, 9}};
        EXPECT_EQ(After(file, changes).Lists, expected);
    }
}

TEST(Changes, NewRowsEndTheFile) {
    const FieldFile file = AField().PlantedOn(1000).Days(5);
    FieldChanges changes;
    changes.Days = {{99, 1, 1, 1, 0}};
    for (const std::size_t kept : {0U, 1U, 3U, 5U}) {
        changes.StartDay = 1000 + static_cast<JulianValue>(kept);
        std::vector<DayRecord> expected(file.Days.begin(), file.Days.begin() + static_cast<std::ptrdiff_t>(kept));
        expected.push_back(changes.Days[0]);
        EXPECT_EQ(After(file, changes).Days, expected) << kept;
    }
    for (const JulianValue startDay : {999, 1006}) {
        changes.StartDay = startDay;
        EXPECT_FAILURE(After(file, changes), HasSubstr("5 rows")) << startDay;
    }
}

}  // namespace

}  // namespace veraqua
