#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reports/days_csv.h"
#include "reports/season_chart.h"
#include "tests/reports/expected_text.h"
#include "tests/support/report_fields.h"

namespace veraqua {
namespace {

// The expected texts were computed apart from the program, from the numbers of tests/support/report_fields.h.

TEST(DaysForASpreadsheet, AreAsExpectedToTheLastByte) {
    EXPECT_EQ(DaysCsv(SmallCrop(), true), ExpectedText("days_crop"));
    EXPECT_EQ(DaysCsv(SmallHay(), false), ExpectedText("days_hay"));
}

/// A line for each series with the days of May and their values, then the marks.
std::string TextOf(const ChartContent& chart) {
    constexpr std::array looks{"line", "dashed", "limit", "bars"};
    const auto may = [](JulianValue day) { return day - MayDay(1) + 1; };
    std::string text = fmt::format("{}; {}; {}\n", chart.Title, chart.DayAxis, chart.ValueAxis);
    for (const ChartSeries& series : chart.Series) {
        text += fmt::format("{} ({}, {}):", series.Name, series.Unit, looks.at(static_cast<std::size_t>(series.Shape)));
        for (const auto& point : series.Points) text += fmt::format(" {} {:.2f}", may(point.Day), point.Value);
        text += "\n";
    }
    for (const ChartMark& mark : chart.Marks) text += fmt::format("{} {}\n", mark.Name, may(mark.Day));
    return text;
}

TEST(SeasonOfAField, IsDrawnAsExpected) {
    const FieldFile crop = SmallCrop();
    StatRecord row = RowOf(crop);
    row.NextIrrDay = MayDay(5);
    row.NextIrrAmount = 43;
    EXPECT_EQ(TextOf(SeasonChart(crop, row, MayDay(4), true)), ExpectedText("chart_crop"));
    const FieldFile hay = SmallHay();
    row = RowOf(hay);
    row.NextIrrDay = MayDay(6);
    row.NextIrrAmount = AmountHarvest;
    row.NextCutDay = MayDay(30);
    EXPECT_EQ(TextOf(SeasonChart(hay, row, MayDay(4), false)), ExpectedText("chart_hay"));
}

}  // namespace
}  // namespace veraqua
