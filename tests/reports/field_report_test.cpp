#include "reports/field_report.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/state.h"
#include "tests/reports/expected_text.h"
#include "tests/support/data_directory.h"
#include "tests/support/report_fields.h"

namespace veraqua {
namespace {

constexpr int Row = 3;

/// Puts a field and its row where the program finds them.
void Store(const FieldFile& file, const StatRecord& row) {
    State.Stat[Row] = row;
    State.TodayJulian = MayDay(4);
    StoreFieldFile(Row, file);
}

struct ReportCase {
    bool Hay = false;
    bool Layers = false;
    bool English = false;

    std::string Name() const {
        return std::string(Hay ? "hay" : "crop") + (Layers ? "_layers" : "_zones") + (English ? "_english" : "_metric");
    }
};

/// A field over zones has a dated irrigation ahead, one over layers has none; hay over layers has never been cut.
FieldFile FieldOf(const ReportCase& wanted) {
    AField field = wanted.Hay ? SmallHay() : SmallCrop();
    if (!wanted.Layers) return field;
    return InLayers(field).With([](FieldFile& file) { file.Lists.Cuttings.clear(); });
}

StatRecord RowOf(const ReportCase& wanted, const FieldFile& file) {
    StatRecord row = RowOf(file);
    row.FieldId = wanted.Hay ? "MEADOW" : "NORTH Ñ";
    if (wanted.Layers) {
        row.NextIrrAmount = wanted.Hay ? AmountNotRequired : AmountNoDataYet;
    } else {
        row.NextIrrDay = MayDay(wanted.Hay ? 6 : 5);
        row.NextIrrAmount = wanted.Hay ? 70 : 43;
        row.NextCutDay = wanted.Hay ? MayDay(30) : 0;
    }
    return row;
}

struct WholeFieldReport : DirectoryTest, testing::WithParamInterface<ReportCase> {};

TEST_P(WholeFieldReport, IsSavedAsExpectedToTheLastByte) {
    const FieldFile file = FieldOf(GetParam());
    Store(file, RowOf(GetParam(), file));
    State.EnglishUnits = GetParam().English;

    EXPECT_TRUE(SaveFieldReport(User, Row));

    EXPECT_EQ(Directory.Raw("Field.txt"), ExpectedText("field_" + GetParam().Name()));
}

INSTANTIATE_TEST_SUITE_P(Fields, WholeFieldReport,
                         testing::Values(ReportCase{false, false, false}, ReportCase{false, false, true},
                                         ReportCase{false, true, false}, ReportCase{false, true, true},
                                         ReportCase{true, false, false}, ReportCase{true, false, true},
                                         ReportCase{true, true, false}, ReportCase{true, true, true}),
                         [](const auto& tested) { return tested.param.Name(); });

}  // namespace
}  // namespace veraqua
