#include "reports/graphs.h"
#include "reports/season_chart.h"
#include "tests/workbench/field_menu_fixture.h"

namespace veraqua {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct DisplaysTest : FieldMenuTest {
    frmGraphs& Graphs = The<frmGraphs>();

    /// A field whose root zone holds `content` of 140 mm/m.
    void PlantAt(int row, std::string_view id, std::int16_t content, std::int16_t mad = 50) {
        Plant(AField().Id(id).Content(content).Mad(mad).Days(ThroughYesterday), row);
    }

    std::vector<std::string> ShownIds() const {
        std::vector<std::string> ids;
        for (std::size_t i = 0; i < Graphs.Panels.size(); ++i)
            if (Graphs.Children[i]->Shown) ids.push_back(Graphs.Panels[i]->Caption);
        return ids;
    }
};

TEST_F(DisplaysTest, ABarTurnsYellowAboveTheMadAndRedAboveItByAFifth) {
    PlantAt(1, "FULL", 150);
    PlantAt(2, "AT", 70);     // 50 %
    PlantAt(3, "OVER", 67);   // 52 %
    PlantAt(4, "ALARM", 54);  // 61 %
    PlantAt(5, "EMPTY", -1);  // 101 %
    State.CurrentField = 2;
    Menu.Click("m_displays");
    EXPECT_EQ(State.CurrentField, 2);
    EXPECT_FALSE(FormOf(FormName::frmField).Shown);
    EXPECT_EQ(Graphs.Panels[0]->Caption, "MAIZE GRAIN -- ID: FULL");
    EXPECT_EQ(Graphs.Panels[0]->PBar.Value, 100);
    EXPECT_EQ(Graphs.Panels[4]->PBar.Value, 0);
    EXPECT_EQ(Graphs.Panels[2]->lbl_WaterContent.Caption, "47.9%");
    EXPECT_EQ(Graphs.Panels[2]->lbl_depl.Caption, "Depletion:  52.0%");
    EXPECT_EQ(Graphs.Panels[2]->lbl_MAD.Caption, "MAD:  50.0%");
    EXPECT_FALSE(Graphs.Panels[2]->lbl_k.Visible);
    EXPECT_EQ(Graphs.Panels[1]->Background, std::nullopt);
    EXPECT_EQ(Graphs.Panels[2]->Background, colours::Yellow);
    EXPECT_EQ(Graphs.Panels[3]->Background, colours::Red);
    EXPECT_EQ(Graphs.Panels[3]->lbl_MAD.Background, colours::Red);

    At(*Graphs.Children[3]).Click("cmd_Select");
    EXPECT_EQ(State.CurrentField, 4);
    EXPECT_EQ(Form.lbl_ID.Caption, "Field ID is:  ALARM");
    EXPECT_FALSE(FormOf(FormName::frmGraphs).Loaded);
}

TEST_F(DisplaysTest, PagesThroughTheFieldsAsManyAtATimeAsConfigured) {
    for (int row = 1; row <= 20; ++row) PlantAt(row, std::to_string(100 - row), 100);
    State.DisplayDays = 9;
    Menu.Click("m_displays");
    At displays(FormName::frmGraphs);
    displays.Click("m_prior12");
    EXPECT_EQ(User.LastSaid(), "Veraqua: You're already displaying your first 9 fields.");
    displays.Click("m_next12").Click("m_next12");
    EXPECT_THAT(ShownIds(), SizeIs(2));
    displays.Click("m_next12");
    EXPECT_EQ(User.LastSaid(), "Veraqua: You've displayed all your fields.  You have 20 fields planted.");
    displays.Click("m_prior12").Click("m_Field");
    EXPECT_EQ(Graphs.FirstShown, 10);
    EXPECT_EQ(Graphs.LastShown, 18);
    EXPECT_EQ(Graphs.Rows.front().FieldId, "80");
    EXPECT_EQ(ShownIds().front(), "MAIZE GRAIN -- ID: 89");
    displays.Close();
    EXPECT_TRUE(FormOf(FormName::frmField).Shown);
}

TEST_F(DisplaysTest, AMissingFileLeavesItsPanelOutAndNoFieldNoDisplay) {
    Menu.Click("m_displays");
    EXPECT_EQ(User.LastSaid(), "Veraqua: No fields to display, please Initialize a field before choosing this option");
    PlantAt(1, "A", 100);
    PlantAt(2, "B", 100);
    Directory.Delete("field1.dat");
    Menu.Click("m_displays");
    EXPECT_THAT(ShownIds(), ElementsAre("MAIZE GRAIN -- ID: B"));
}

TEST(GraphRows, EqualKeysComeAsTheShrinkingGapLeavesThem) {
    // Gaps of 2 (2.5 to the even half), 1: keys 2 2 1 1 -> 1 1 2 2, each pair crossed at gap 2.
    std::vector<GraphRow> rows(4);
    for (std::int16_t i = 0; i < 4; ++i) {
        rows[static_cast<std::size_t>(i)].Row = i;
        rows[static_cast<std::size_t>(i)].PlantDate = i < 2 ? 2 : 1;
    }
    SortGraphRows(rows, "Date");
    std::vector<int> order;
    for (const GraphRow& row : rows) order.push_back(row.Row);
    EXPECT_THAT(order, ElementsAre(2, 3, 0, 1));
}

TEST_F(DisplaysTest, TheSeasonChartHoldsWaterAgainstItsLimits) {
    const JulianValue lastDay = Planting + 1;
    FieldFile file = AField().Hay().Days(4).Rain(Planting + 1, 25).Cutting(Planting + 2, 1);
    StatRecord row;
    row.LastDay = lastDay;
    row.NextIrrDay = Planting + 3;
    row.NextIrrAmount = 40;
    const Chart chart = SeasonChart(file, row, lastDay + 1, true);
    std::map<std::string, std::vector<ChartSeries::Point>> series;
    for (const ChartSeries& one : chart.Series) {
        EXPECT_EQ(one.Unit, "in");
        series[one.Name] = one.Points;
    }
    const double full = 140 * 1.2F / 25.4;  // the root zone of 1.2 m
    EXPECT_THAT(series["Root-zone water"], SizeIs(2));
    EXPECT_THAT(series["Forecast"], SizeIs(3));
    EXPECT_EQ(series["Forecast"].front(), series["Root-zone water"].back());
    EXPECT_NEAR(series["Full"].at(3).Value, full, 1e-6);
    EXPECT_NEAR(series["MAD"].at(0).Value, full / 2, 1e-6);
    EXPECT_EQ(series["Dry"].at(0).Value, 0);
    EXPECT_EQ(series["Rain"], (std::vector<ChartSeries::Point>{{Planting + 1, 25 / 25.4}}));
    EXPECT_THAT(series["Irrigation"], IsEmpty());
    EXPECT_THAT(chart.Marks, ElementsAre(ChartMark{"Cutting 1", Planting + 2}, ChartMark{"Today", lastDay + 1},
                                         ChartMark{"Next irrigation", Planting + 3}));

    Plant(AField().Id("EAST").Days(ThroughYesterday), 1);
    Select(0);
    Menu.Click("mnuSeasonChart");
    EXPECT_EQ(The<frmSeasonChart>().Chart1.Title, "EAST - MAIZE GRAIN");
    At(FormName::frmSeasonChart).Click("cmdPrint").Click("cmdExit");
    EXPECT_THAT(User.PrintedForms, ElementsAre(FormName::frmSeasonChart));
}

}  // namespace

}  // namespace veraqua
