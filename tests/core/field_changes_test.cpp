#include <vector>

#include <gmock/gmock.h>

#include "core/field_file.h"
#include "tests/support/builders.h"
#include "tests/support/failure.h"

namespace veraqua {
namespace {

FieldFile After(FieldFile file, const FieldChanges& changes) {
    WriteField(file, changes);
    return file;
}

TEST(Changes, LeachingAndHistoryKeepTheirRecordsThroughTheSeamAndGoOnWithTheNewOnes) {
    using Days = std::vector<JulianValue>;
    struct Seam {
        JulianValue Day;
        Days New, Merged;
    };
    for (const Seam& seam : {Seam{20, {21, 25}, {10, 20, 21, 25}}, Seam{20, {}, {10, 20}}, Seam{19, {20}, {10, 20}},
                             Seam{9, {}, {}}, Seam{99, {100}, {10, 20, 30, 100}}}) {
        const auto add = [](FieldLists& lists, const Days& days, std::int16_t value) {
            for (const JulianValue day : days) {
                lists.Leaching.push_back({day, value});
                lists.History.push_back({day, {value}});
            }
        };
        FieldFile file = AField();
        FieldChanges changes;
        changes.Merge = true;
        changes.SeamDay = seam.Day;
        add(file.Lists, {10, 20, 30}, 1);
        add(changes.Lists, seam.New, 2);
        FieldLists expected;
        for (const JulianValue day : seam.Merged) add(expected, {day}, day <= seam.Day ? 1 : 2);
        EXPECT_EQ(After(file, changes).Lists, expected) << seam.Day;
    }
}

TEST(Changes, ALoneZeroStandsForNoRecordAndVanishesFromTheFirstRewrittenListOn) {
    FieldFile file = AField().Hay().Cutting(1000, 0).Irrigation(1000, 0).Rain(1000, 0);
    file.Lists.Leaching = file.Lists.MadChanges = {{1000, 0}};
    EXPECT_EQ(After(file, {}).Lists, file.Lists) << "nothing is rewritten";
    FieldChanges rain;
    rain.Lists.Rain = {{1001, 12}};
    FieldLists expected = file.Lists;  // those before the rain stay
    expected.Rain = {{1001, 12}};
    expected.Cuttings.clear();
    expected.Irrigation.clear();
    EXPECT_EQ(After(file, rain).Lists, expected);
    FieldChanges rows;  // which move all lists
    rows.StartDay = file.Hay.PlantDay;
    rows.Days = file.Days;
    EXPECT_EQ(After(file, rows).Lists, FieldLists{});
}

TEST(Changes, NewRowsEndTheFile) {
    const FieldFile file = AField().PlantedOn(1000).Days(5);
    FieldChanges changes;
    changes.Days = {{99, 1, 1, 1, 0}};
    for (const int kept : {0, 1, 3, 5}) {
        changes.StartDay = 1000 + kept;
        std::vector<DayRecord> expected(file.Days.begin(), file.Days.begin() + kept);
        expected.push_back(changes.Days[0]);
        EXPECT_EQ(After(file, changes).Days, expected) << kept;
    }
    for (const JulianValue startDay : {999, 1006}) {
        changes.StartDay = startDay;
        EXPECT_FAILURE(After(file, changes), testing::HasSubstr("5 rows")) << startDay;
    }
}

}  // namespace
}  // namespace veraqua
