#include "reports/today_list.h"

#include <algorithm>

#include <gmock/gmock.h>

#include "core/state.h"
#include "tests/reports/expected_text.h"
#include "tests/support/data_directory.h"
#include "tests/support/report_fields.h"
#include "weather/default_weather.h"

namespace veraqua {
namespace {

/// The fields of 4 May 2003, known through the day before.
struct TodayOfFields : DirectoryTest {
    TableContent List;

    TodayOfFields() { State.TodayJulian = MayDay(4); }

    /// At 40 % of a MAD of 50 %.
    static StatRecord& Field(int row, std::string_view id, std::int16_t amount, JulianValue irrigation = 0,
                             std::int16_t depletion = 40) {
        StatRecord& field = State.Stat[row] = {{}, {}, MayDay(3), depletion, 50, irrigation, 0, amount};
        return field.FieldId = id, field.CropName = "MAIZE GRAIN", field;
    }

    static std::string Shown(const TableContent::Cell& cell) {
        const char* colour = !cell.Background                         ? ""
                             : cell.Background == colours::PaleRed    ? " (red)"
                             : cell.Background == colours::PaleYellow ? " (yellow)"
                                                                      : " (green)";
        return (cell.Text.empty() ? "-" : cell.Text) + colour;
    }

    /// A line for each row: the cells with their colours, "-" for an empty one.
    std::vector<std::string> Lines(const std::vector<std::string_view>& headings) {
        std::vector<std::string> lines;
        FillTodayList(List);
        for (const TableContent::Row& row : List.Rows) {
            std::string line;
            for (std::size_t i = 0; i < List.Columns.size(); ++i)
                if (std::ranges::count(headings, List.Columns[i].Heading) > 0)
                    line += (line.empty() ? "" : "; ") + Shown(row.Cells[i]);
            lines.push_back(line);
        }
        return lines;
    }
};

TEST_F(TodayOfFields, StandWorstFirstInWordsAndColours) {
    Field(1, "NEW", AmountNoDataYet).LastDay = MayDay(1);
    Field(2, "RIPE", AmountHarvest);
    Field(3, "WET", AmountNotRequired, 0, -3);
    Field(4, "LATER", 43, MayDay(7));
    Field(5, "IN TWO", 43, MayDay(6), 45);
    Field(6, "TOMORROW", 43, MayDay(5));
    Field(7, "DRY", 43, MayDay(3), 60);
    Field(8, "DRIER", 43, MayDay(2), 61);
    Field(9, "STOPPED", AmountNoDataYet, 0, 51);
    Field(100, "DUE", 43, MayDay(4), 50);  // behind rows whose files are lost
    EXPECT_THAT(Lines({"Field", "What to do", "Depletion %", "Irrigate on", "Amount (in.)", "Days left"}),
                testing::ElementsAre("DRIER; Irrigate now (red); 61 (red); 05-02-03; 1.69; 0",
                                     "DRY; Irrigate now (red); 60 (yellow); 05-03-03; 1.69; 0",
                                     "DUE; Irrigate now (red); 50; 05-04-03; 1.69; 0",
                                     "STOPPED; Over MAD (yellow); 51 (yellow); -; -; -",
                                     "TOMORROW; Irrigate tomorrow (yellow); 40; 05-05-03; 1.69; 1",
                                     "IN TWO; Irrigate in 2 days (yellow); 45; 05-06-03; 1.69; 2",
                                     "LATER; Irrigate in 3 days (green); 40; 05-07-03; 1.69; 3",
                                     "WET; No irrigation needed (green); Full; -; -; -",
                                     "RIPE; Harvest (green); 40; -; -; -", "NEW; No data yet; 40; -; -; -"));
    EXPECT_EQ(TodaySummary(), "10 fields, 3 need water. Weather is up to 2 days behind.");
    EXPECT_EQ(List.Rows[2].Data, 100);
    List.Index = 6;
    State.Stat[100] = {};  // harvested
    State.EnglishUnits = false;
    EXPECT_EQ(Lines({"Field", "Amount (mm)"})[5], "LATER; 43");
    EXPECT_EQ(List.Index, 5);                               // still the same field
    EXPECT_GT(*List.Rows[7].Cells[6].SortKey, MayDay(31));  // nothing stands behind any day
}

TEST_F(TodayOfFields, TellThroughWhichDayTheyAreKnown) {
    State.TodayJulian = MayDay(20);
    Field(1, "STALE", 43, MayDay(5), 70);
    Field(2, "RIPE", AmountHarvest).NextIrrDay = 0;  // its season is over: no weather is missing
    Field(3, "BY HAND", 43, MayDay(19), 70).LastDay = MayDay(18);
    State.Updates[3] = MayDay(19);  // waits for water, whatever the weather
    Field(4, "WEEK OLD", 43, MayDay(25)).LastDay = MayDay(12);
    State.Updates[4] = MayDay(13);
    Field(5, "AHEAD", 43, MayDay(25)).LastDay = MayDay(22);  // the user has put an earlier day in today's place
    StatRecord& hay = Field(6, "CREEK", 43, MayDay(25));
    hay.CropName = "@ALFALFA";
    hay.LastDay = MayDay(18);
    EXPECT_THAT(
        Lines({"Field", "What to do", "Depletion %", "Next cutting", "Computed through", "Weather"}),
        testing::ElementsAre("BY HAND; Irrigate now (red); 70 (red); -; 05-19-03; -",
                             "STALE; Weather first (yellow); 70; -; 05-03-03; 16 days behind (yellow)",
                             "WEEK OLD; Irrigate in 5 days (green); 40; -; 05-13-03; 6 days behind (yellow)",
                             "CREEK; Irrigate in 5 days (green); 40; No Data Yet!; 05-18-03; 1 day behind",
                             "RIPE; Harvest (green); 40; -; 05-03-03; -", "AHEAD; Looking back; 40; -; 05-20-03; -"));
    hay.NextCutDay = MayDay(30);
    EXPECT_EQ(Lines({"Next cutting"})[3], "05-30-03");
    EXPECT_EQ(TodaySummary(), "6 fields, 1 needs water. Weather is up to 16 days behind.");
}

/// 28, -5 and 45 % are what schedule and bars show of the rows of 2, 3 and 4 May.
TEST_F(TodayOfFields, HaveTheDepletionOfThePresentDayFromTheirFiles) {
    for (const int row : {1, 2}) SmallCrop().StoreAt(row);
    State.Stat[1].LastDay = MayDay(3);
    State.Stat[2].LastDay = MayDay(2);
    Field(3, "LOST", 43, MayDay(9));
    const auto before = State.Stat;
    const auto inOrderOfRows = [&] {
        Lines({});
        std::ranges::sort(List.Rows, {}, &TableContent::Row::Data);
        std::vector<std::string> texts;
        texts.reserve(List.Rows.size());
        for (const TableContent::Row& row : List.Rows)
            texts.push_back(row.Cells[2].Text + "; " + row.Cells[3].Text + "; " + row.Cells[4].Text);
        return texts;
    };
    EXPECT_THAT(inOrderOfRows(), testing::ElementsAre("No data yet; 45; 05-04-03", "No data yet; Full; 05-03-03",
                                                      "Irrigate in 5 days; 40; 05-03-03"));
    State.StationCode = LoadFieldFile(1).Header().StationCode.Text();
    WriteDefaultWeather({MayDay(2), MayDay(3)});
    EXPECT_THAT(Lines({"Weather"}),
                testing::UnorderedElementsAre("2 days by default", "1 day behind, 1 day by default", "-"));
    State.TodayJulian = MayDay(2);
    EXPECT_THAT(inOrderOfRows(), testing::ElementsAre("Looking back; 28; 05-02-03", "No data yet; 28; 05-02-03",
                                                      "Looking back; 40; 05-03-03"));
    State.TodayJulian = MayDay(1) - 1;
    EXPECT_THAT(inOrderOfRows(),
                testing::ElementsAre("Not planted yet; ; ", "Not planted yet; ; ", "Looking back; 40; 05-03-03"));
    for (const int row : {1, 2, 3}) EXPECT_EQ(State.Stat[row], before[row]);
}

TEST_F(TodayOfFields, AreFoundByWordsAndSavedAsShown) {
    Field(1, "AÑO, 7", 43, MayDay(7));
    Field(2, "WEST", AmountHarvest);
    List.Index = -1;
    FillTodayList(List, "maize año");
    ASSERT_EQ(List.Rows.size(), 1U);
    EXPECT_EQ(List.Rows[0].Data, 1);
    for (std::size_t i = 3; i < List.Columns.size(); ++i) List.Columns[i].IsHidden = true;
    FillTodayList(List);
    EXPECT_EQ(TodayListCsv(List),
              "Field,Crop,What to do\n\"AÑO, 7\",MAIZE GRAIN,Irrigate in 3 days\nWEST,MAIZE GRAIN,Harvest\n");
    EXPECT_EQ(List.Rows[0].Cells[2].ToolTip, "Green: there is time until 05-07-03.");
}

TEST_F(TodayOfFields, ArePrintedOnOnePage) {
    Field(1, "NÖRD 40 EA", 3048, MayDay(5) + 98, 100).CropName = "SPRING BARLEY";
    Field(2, "WEST", AmountNotRequired).NextCutDay = MayDay(30);
    State.Stat[2].CropName = "@BERMUDA HAY";
    State.Stat[1].LastDay = MayDay(3) - 5;
    FillTodayList(List);
    const PrintedDocument paper = PrintedTodayList(List);
    EXPECT_TRUE(paper.OnOnePage);
    EXPECT_EQ(paper.HeadingFirst + paper.HeadingCount + 4, paper.Lines.size());
    std::string text;
    for (const PrintedLine& line : paper.Lines) text += line.Text + "\n";
    EXPECT_EQ(text, ExpectedText("today_print"));  // read column by column against the rows above
}

}  // namespace
}  // namespace veraqua
