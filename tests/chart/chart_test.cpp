#include <gmock/gmock.h>

#include "chart/layout.h"
#include "chart/readings.h"

namespace veraqua {
namespace {

using testing::ElementsAre;

constexpr JulianValue Planted = JulianFromDate(4, 1, 2026);

/// 200 days from 1 April 2026, with marks that crowd at the end.
ChartContent Season() {
    ChartContent chart;
    chart.Title = "Water of field EAST";
    chart.DayAxis = "Day";
    chart.Series = {{"Water, \"all\"", "mm", ChartSeries::Look::Line, {}},
                    {"Rain", "mm", ChartSeries::Look::Bars, {{Planted + 199, 25.5}}},
                    {"Irrigation", "mm", ChartSeries::Look::Bars, {{Planted + 20, 30}}}};
    for (int day = 0; day < 200; ++day) chart.Series[0].Points.push_back({Planted + day, 180 - day / 4.0});
    for (const int day : {0, 0, 30, 60, 185, 196, 197, 199, 400})
        chart.Marks.push_back({"Next cutting", Planted + day});
    return chart;
}

/// Type whose letters are all of one width: a title is 8 pixels a letter, all else 7.
ChartType Type() {
    const auto wide = [](double letter) {
        return [letter](const std::string& text) { return letter * static_cast<double>(text.size()); };
    };
    return {wide(7), 15, wide(8), 16};
}

bool Meet(const ChartBox& a, const ChartBox& b) {
    return a.Left < b.Right() && b.Left < a.Right() && a.Top < b.Bottom() && b.Top < a.Bottom();
}

}  // namespace

TEST(ChartLayout, TextsKeepApartAndInsideAtEverySize) {
    const AxisRange season = SeasonOf(Season());
    for (const auto& [width, height] : {std::pair(420.0, 300.0), {900.0, 500.0}, {1400.0, 700.0}})
        for (const double length : {7, 20, 90, 200}) {
            const auto texts = LayOut(Season(), {season.Last - length, season.Last}, width, height, Type()).Texts;
            EXPECT_GT(texts.size(), 12U);
            for (const ChartLayout::Words& words : texts) {
                const ChartBox& box = words.Box;
                EXPECT_TRUE(box.Left >= 0 && box.Top >= 0 && box.Right() <= width && box.Bottom() <= height)
                    << words.Text;
                for (const ChartLayout::Words& other : texts)
                    EXPECT_TRUE(&words == &other || !Meet(box, other.Box)) << words.Text;
            }
        }
}

TEST(ChartLayout, ATitleThatIsTooWideIsCutBetweenItsCharacters) {
    ChartContent chart = Season();
    chart.Title = "Wasser für das östliche Feld";
    // Less two margins of 10 there is room for 12 letters of 8 pixels, each byte being one: 9 beside the three of "…",
    // the ninth of which begins "ü".
    EXPECT_EQ(LayOut(chart, SeasonOf(chart), 116, 300, Type()).Texts[0].Text, "Wasser f…");
    EXPECT_EQ(LayOut(chart, SeasonOf(chart), 132, 300, Type()).Texts[0].Text, "Wasser für…");
}

TEST(ChartLayout, DaysAndValuesLieOnTheirAxes) {
    const ChartLayout laid = LayOut(Season(), SeasonOf(Season()), 900, 500, Type());
    EXPECT_EQ(laid.XOf(Planted - 0.5), laid.Plot.Left);
    EXPECT_EQ(laid.XOf(Planted + 199.5), laid.Plot.Right());
    EXPECT_NEAR(laid.DayAt(laid.XOf(Planted + 42)), Planted + 42, 1e-6);
    EXPECT_EQ(laid.ValueLow, 0);
    EXPECT_NEAR(laid.YOf(200, laid.ValueLow, laid.ValueHigh), laid.NamesBottom, 1e-6) << "the topmost tick";
    EXPECT_LT(laid.YOf(30, 0, laid.AmountHigh), laid.Plot.Bottom() - 0.3 * (laid.Plot.Bottom() - laid.NamesBottom));
    const auto bars = LayOut(Season(), {Planted + 0.0, Planted + 20.0}, 900, 500, Type()).AllBars;
    ASSERT_EQ(bars.size(), 2U) << "side by side, 0.8 of a day together";
    EXPECT_NEAR(bars[0].Offset, -0.4, 1e-9);
    EXPECT_NEAR(bars[1].Offset, 0, 1e-9);
    EXPECT_NEAR(bars[1].Width, 0.4, 1e-9);
    EXPECT_NEAR(laid.AllBars[1].Width * laid.Plot.Width / 200, 2, 1e-9) << "pixels at least";
}

TEST(ChartDays, AreZoomedAboutAPointWithinTheSeason) {
    const AxisRange season{0, 200};
    EXPECT_EQ(Zoomed(season, season, 0.5, 50), (AxisRange{25, 125}));
    EXPECT_EQ(Zoomed(season, {25, 125}, 2, 0), season) << "an end is met";
    EXPECT_EQ(Zoomed(season, {100, 110}, 0.1, 100), (AxisRange{100, 107})) << "no shorter than a week";
    EXPECT_EQ(RangeWithin(season, {190, 230}), (AxisRange{160, 200}));
    const ChartContent cut = CutTo(Season(), {Planted + 20, Planted + 22});
    EXPECT_EQ(cut.Series[0].Points.size(), 3U);
    EXPECT_EQ(cut.Series[1].Points.size() + 10 * cut.Series[2].Points.size(), 10U);
    EXPECT_EQ(cut.Marks, Season().Marks);
}

TEST(ChartDays, HaveDatesThatStayTheSameWhenTheRangeMoves) {
    const auto dates = [](double first, double last, int most) {
        std::vector<std::string> texts;
        for (const JulianValue day : TickDays({Planted + first, Planted + last}, most))
            texts.push_back(JulianToShortText(day));
        return texts;
    };
    EXPECT_THAT(dates(0, 2, 3), ElementsAre("04-01-26", "04-02-26", "04-03-26"));
    EXPECT_THAT(dates(0, 200, 7),
                ElementsAre("04-01-26", "05-01-26", "06-01-26", "07-01-26", "08-01-26", "09-01-26", "10-01-26"));
    EXPECT_THAT(dates(1, 200, 4), ElementsAre("05-01-26", "07-01-26", "09-01-26"));
    EXPECT_EQ(dates(0, 20, 5).size(), 3U) << "by weeks";
    EXPECT_EQ(dates(8, 20, 5)[0], dates(0, 20, 5)[1]);
    EXPECT_EQ(NiceStep(180, 6), 50);
    EXPECT_EQ(NiceStep(0.9, 5), 0.2);
}

TEST(ChartReadings, SayADayInWordsAndTheSeasonAsATable) {
    EXPECT_EQ(DayInWords(Season(), Planted + 199), "10-17-26, Next cutting; Water, \"all\" 130.3 mm; Rain 25.5 mm");
    EXPECT_EQ(LatestDay(Season()), Planted + 199);
    const std::string csv = ChartCsv(Season());
    EXPECT_TRUE(csv.starts_with("Day,\"Water, \"\"all\"\" (mm)\",Rain (mm),Irrigation (mm)\n04-01-2026,180,,\n"));
    EXPECT_TRUE(csv.ends_with("10-16-2026,130.5,,\n10-17-2026,130.25,25.5,\n"));
}

}  // namespace veraqua
