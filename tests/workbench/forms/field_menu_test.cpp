#include "reports/forms/graphs.h"
#include "tests/workbench/forms/field_menu_fixture.h"

namespace veraqua {
namespace {

TEST_F(FieldMenuTest, WhatNeedsAFieldSaysSoWithoutOne) {
    const std::string select = "Information Message: Please select or initialize a field before choosing this option";
    std::map<std::string, std::string> said = {
        {"mnuCuts", "Information Message: Please select a field before choosing this option"},
        {"mnuFieldSummary", "No field data to display: Please add or select a field first..."},
        {"mnuFieldDetails", "No field data to display: Please select a field first..."},
        {"mnuSelect", "No fields found!: Click [Add New Field] to initialize a new field."},
        {"mnuRestore", "Warning: No deleted fields found on disk!"}};
    for (const char* item : {"MnuPred", "mnuAdd", "mnu_MAD", "mnuIEffic", "mnuDepletion", "mnuSeasonChart",
                             "m_prt_print", "m_rpt_disk", "m_rpt_display"})
        said[item] = select;
    for (const auto& [item, text] : said) {
        Menu.Click(item);
        EXPECT_EQ(User.LastSaid(), text) << item;
    }
    EXPECT_EQ(User.Presented, std::vector{FormName::frmField});
}

TEST_F(FieldMenuTest, AFieldPickedIsShownAndRunOnlyIfItStandsBehindYesterday) {
    Plant(AField().Id("west").Days(ThroughYesterday), 1);
    Plant(AField().Hay().Cutting(Planting + 40, 1).Days(ThroughYesterday), 2, Today - 2);
    const auto before = Files();
    Select(0);
    EXPECT_EQ(Files(), before);  // the upper case of its ID is in memory only
    Select(1);
    EXPECT_EQ(State.Stat[2].LastDay, Today - 1);
    EXPECT_EQ(Form.lbl_ID.Caption, "Field ID is:  CREEK");
    EXPECT_THAT(Form.Caption, testing::HasSubstr("CREEK"));
    Menu.Click("mnuSelect");  // and gives it up
    EXPECT_EQ(Form.Caption + Form.StatusBar1.Panels[0], "Field Options, Veraqua " + State.VersionString);
}

TEST_F(FieldMenuTest, AFieldWithoutItsWeatherOrItsFileIsNotSelected) {
    Plant(AField().Station("07"), 1);
    Plant(AField(), 2);
    User.WeatherSource = [](const DayRange&) { return WeatherChoice::Left; };
    Select(0);
    EXPECT_EQ(State.CurrentField, 0);
    EXPECT_FALSE(State.DownloadFailed || State.ReportCancelled || Form.ComboField.Visible || Form.lbl_ID.Visible);
    Directory.Put("field2.dat", "short");
    Select(1);
    EXPECT_EQ(State.CurrentField, 0);
}

TEST_F(FieldMenuTest, RowsWithAGapAreListedByTheirNumberAndANewFieldTakesTheGap) {
    Plant(AField().Days(ThroughYesterday), 1);
    Plant(AField().Days(ThroughYesterday), 3);
    Select(1);
    EXPECT_EQ(State.CurrentField, 3);
    Menu.Click("mnuNew").Click("mnu_MAD");  // a field that is being entered is none yet
    EXPECT_EQ(State.CurrentField, 2);
    EXPECT_EQ(User.Told.back().Title, "Information Message");
    Menu.Escape();
    for (int row = 1; row <= MaxFields; ++row) State.Stat[row].LastDay = Today;
    Menu.Click("mnuNew");
    EXPECT_EQ(User.LastSaid(), "Veraqua: Veraqua keeps at most 100 fields.");
    EXPECT_EQ(State.CurrentField, 0);
}

TEST_F(FieldMenuTest, APickForTheHarvestThatIsGivenUpHarvestsNothing) {
    Plant(AField().Days(ThroughYesterday), 1);
    for (const char* way : {"cmd_Cancel", "Esc", "mnuNew", "mnuSelect"}) {
        Menu.Click("mnuSelect").Click("mnuDelete");
        EXPECT_EQ(User.LastSaid(), "Information Message: Please select a field to delete.");
        std::string(way) == "Esc" ? Menu.Escape() : Menu.Click(way);
        Select(0);
        EXPECT_TRUE(User.Asked.empty() && Form.lbl_ID.Visible) << way;
    }
    Menu.Close();
    EXPECT_EQ(State.CurrentField, 0);
}

TEST_F(FieldMenuTest, TheFieldInWorkShowsHowItStandsWhateverElseIsShown) {
    Plant(AField()
              .Content(67)  // of 140: a depletion of 52 %
              .Days(IntoTheForecast)
              .Rain(Today - 12, 13)
              .Irrigation(Today - 3, 102)
              .Irrigation(Today + 2, 50),  // after the day set back to
          1);
    Select(0);
    EXPECT_EQ(Form.lblDepletion.Caption, "Depletion on 07-15-03:  52 %   MAD:  50 %");
    EXPECT_EQ(Form.lblDepletion.Background, colours::Yellow);
    EXPECT_EQ(Form.lblLastRain.Caption, "Last rain:  07-03-03   0.51 inches");
    EXPECT_EQ(Form.lblLastIrrigation.Caption, "Last irrigation:  07-12-03   4.02 inches");
    EXPECT_EQ(Form.Chart1.Title, "NORTH 40 - MAIZE GRAIN");
    Menu.Click("mnuDepletion").Type("TxtNewDepl", "20").Click("cmdDeplOK");
    EXPECT_THAT(Form.lblDepletion.Caption, testing::HasSubstr("  20 %"));
    EXPECT_TRUE(Form.lblDepletion.Visible && Form.Chart1.Visible);
    Menu.Click("mgeese1");
    EXPECT_TRUE(Form.Image1.Visible && !Form.Chart1.Visible);
    Directory.Put("field1.dat", "short");
    State.TodayJulian = Today + 1;
    Menu.Click("mnuCuts");  // an event, with nothing to say of the file
    EXPECT_FALSE(Form.lblDepletion.Visible);
    Menu.Click("mnuSelect");
    EXPECT_FALSE(Form.lblNext.Visible || Form.Chart1.Visible);
}

TEST_F(FieldMenuTest, ABarTurnsYellowAboveTheMadAndRedAboveItByAFifth) {
    int row = 0;
    for (const auto& [id, content] : std::vector<std::pair<const char*, std::int16_t>>{
             {"FULL", 150}, {"AT", 70}, {"OVER", 67}, {"ALARM", 54}, {"EMPTY", -1}})  // of 140: 50, 52, 61 and 101 %
        Plant(AField().Id(id).Content(content).Days(ThroughYesterday), ++row);
    const frmGraphs& graphs = The<frmGraphs>();
    State.CurrentField = 2;
    Menu.Click("m_displays");
    EXPECT_EQ(State.CurrentField, 2);
    EXPECT_EQ(graphs.Panels[0]->PBar.Value, 100);
    EXPECT_EQ(graphs.Panels[4]->PBar.Value, 0);
    EXPECT_EQ(graphs.Panels[2]->lbl_WaterContent.Caption, "47.9%");
    EXPECT_EQ(graphs.Panels[1]->Background, std::nullopt);
    EXPECT_EQ(graphs.Panels[2]->Background, colours::Yellow);
    EXPECT_EQ(graphs.Panels[3]->Background, colours::Red);
    At(*graphs.Children[3]).Click("cmd_Select");
    EXPECT_EQ(State.CurrentField, 4);
    EXPECT_EQ(Form.lbl_ID.Caption, "Field ID is:  ALARM");
}

}  // namespace
}  // namespace veraqua
