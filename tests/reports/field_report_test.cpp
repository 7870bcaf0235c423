#include "reports/field_report.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/state.h"
#include "tests/reports/expected_text.h"
#include "tests/support/data_directory.h"
#include "tests/support/failure.h"
#include "tests/support/report_fields.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Message = ScriptAsk::Message;

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
    EXPECT_EQ(State.ReportFileName, Directory.Path() + "Field.txt");
    EXPECT_THAT(User.Told,
                ElementsAre(Message{"Your Field Report was saved to: " + State.ReportFileName, "File Saved"}));
}

INSTANTIATE_TEST_SUITE_P(Fields, WholeFieldReport,
                         testing::Values(ReportCase{false, false, false}, ReportCase{false, false, true},
                                         ReportCase{false, true, false}, ReportCase{false, true, true},
                                         ReportCase{true, false, false}, ReportCase{true, false, true},
                                         ReportCase{true, true, false}, ReportCase{true, true, true}),
                         [](const auto& tested) { return tested.param.Name(); });

using FieldReportFromDisk = DirectoryTest;

TEST_F(FieldReportFromDisk, LeavesTheFieldInWorkAlone) {
    Store(SmallHay(), RowOf(FieldFile(SmallHay())));
    State.CurrentField = 1;
    const FieldHeader inWork = SmallCrop().Build().Field;
    State.Field = inWork;
    State.VariableSoil = true;
    State.RainTotal = 77;

    EXPECT_TRUE(FieldReportText(User, Row));

    EXPECT_EQ(State.CurrentField, 1);
    EXPECT_FALSE(State.IsHay);
    EXPECT_EQ(State.Field, inWork);
    EXPECT_EQ(State.Hay, HayHeader{});
    EXPECT_TRUE(State.VariableSoil);
    EXPECT_EQ(State.RainTotal, 77);
}

TEST_F(FieldReportFromDisk, StopsWhenTheFieldFileIsMissing) {
    EXPECT_FALSE(SaveFieldReport(User, Row));
    EXPECT_THAT(User.Told, ElementsAre(Message{"This is not good. :-( Your field file is missing...  Select another.",
                                               "FIELD:  field3.dat"}));
    EXPECT_FALSE(Directory.Has("Field.txt"));
}

TEST_F(FieldReportFromDisk, NamesTheFileWhoseNumbersCanNotBeComputedWith) {
    const FieldFile noWater = SmallCrop().Capacity({0, 0, 0});
    const FieldFile tooManyLayers = InLayers(SmallCrop()).With([](FieldFile& file) { file.Field.CapacityTop = 6; });
    for (const FieldFile& file : {noWater, tooManyLayers}) {
        Store(file, RowOf(file));
        EXPECT_FAILURE(FieldReportText(User, Row), HasSubstr("field3.dat: "));
    }
}

TEST(FieldReport, OfThePlantingDayShowsTheSumsAsTheValuesOfTheDay) {
    const FieldFile file = SmallCrop().Days({{20, 7.5F, 0.2F, 3.25F, 4}});
    const FieldReport report = GatherFieldReport(file, RowOf(file), false);
    // Kc is the sine of 22.5 degrees, Kd ln(59.88 + 1) / ln(101), as 20 of 33.4 mm are left.
    EXPECT_EQ(report.History.back(),
              "05-01-03   000  20.00  040  007.5  0008   03.25  003.2  0.38  0.89  01.11  001.1  00.20  00.0  0.0");
    EXPECT_EQ(report.History.size(), 4U);
}

TEST(FieldReport, ShowsNoWaterOfAListThatComesToNothing) {
    const FieldFile file = SmallCrop().Rain(MayDay(3), -17);
    const FieldReport report = GatherFieldReport(file, RowOf(file), false);
    EXPECT_EQ(report.TotalRainfall, "0 mm");
    EXPECT_TRUE(report.History[4].ends_with("25.0  0.0"));
}

}  // namespace
}  // namespace veraqua
