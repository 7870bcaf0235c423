#include "tests/workbench/field_menu_fixture.h"

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

TEST_F(FieldMenuTest, EachItemOpensItsWindowOnTheFieldSelected) {
    Plant(AField().Days(IntoTheForecast), 1);
    Plant(AField().Hay().Days(IntoTheForecast), 2);
    const auto opened = [&](int position, const char* item) {
        Show(FormName::frmField);
        Select(position);
        Menu.Click(item);
        return User.Presented.back();
    };
    EXPECT_EQ(opened(0, "mnuFieldSummary"), FormName::frmFieldData);
    EXPECT_EQ(opened(0, "mnuSeasonChart"), FormName::frmSeasonChart);
    EXPECT_EQ(opened(0, "m_rpt_display"), FormName::frmFieldHistory);
    EXPECT_EQ(opened(1, "m_rpt_display"), FormName::frmHayFieldHistory);
    EXPECT_EQ(opened(0, "mnuAdd"), FormName::frmAddWater);
    EXPECT_EQ(opened(1, "mnuCuts"), FormName::frmCuts);
    EXPECT_EQ(opened(0, "mnuCuts"), FormName::frmField);
    EXPECT_EQ(User.LastSaid(), "Pick Another Option: This option only applies to Alfalfa fields");
    EXPECT_EQ(opened(0, "MnuPred"), FormName::frmFieldData);
}

TEST_F(FieldMenuTest, AFieldPickedIsShownAndRunOnlyIfItStandsBehindYesterday) {
    Plant(AField().Id("west").Days(ThroughYesterday), 1);
    Plant(AField().Hay().Cutting(Planting + 40, 1).Days(ThroughYesterday), 2, Today - 2);
    const auto before = Files();
    Select(0);
    EXPECT_EQ(Files(), before);  // the upper case of its ID is in memory only
    EXPECT_EQ(Form.StatusBar1.Panels[0], "Field=MAIZE GRAIN  ID=WEST ");
    EXPECT_TRUE(Form.lbl_more2.Visible && !Form.cmd_Summary.Visible && !Form.ComboField.Visible);
    Select(1);
    EXPECT_EQ(State.Stat[2].LastDay, Today - 1);
    EXPECT_EQ(Form.lbl_ID.Caption, "Field ID is:  CREEK");
}

TEST_F(FieldMenuTest, AFieldWithoutItsWeatherOrItsFileIsNotSelected) {
    Plant(AField().Station("07"), 1);
    Plant(AField(), 2);
    User.WeatherSource = [] { State.DownloadFailed = State.ReportCancelled = true; };
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
    Menu.Press("comboCrops", Event::EscapeKey);
    for (int row = 1; row <= MaxFields; ++row) State.Stat[row].LastDay = Today;
    Menu.Click("mnuNew");
    EXPECT_EQ(User.LastSaid(), "Veraqua: Veraqua keeps at most 100 fields.");
    EXPECT_EQ(State.CurrentField, 0);
}

TEST_F(FieldMenuTest, ANewFieldWantsACropAndASoilFormat) {
    Menu.Click("mnuNew").Click("cmd_OK");
    EXPECT_EQ(User.LastSaid(), "Missing Crop: Please select a crop to plant");
    Menu.Pick("comboCrops", 24).Click("cmd_OK");
    EXPECT_EQ(User.LastSaid(), "Missing Soil: Please select a soils format");
    Menu.Pick("Combo_Soils", 1).Click("cmd_OK");
    EXPECT_TRUE(State.VariableSoil);
    EXPECT_EQ(State.Stat[1].CropName.Text(), "@ALFALFA");
    EXPECT_EQ(User.FocusedControls.back(), "frmLoadField.txtFieldID");
    EXPECT_FALSE(FormOf(FormName::frmField).Shown);
}

TEST_F(FieldMenuTest, APickForTheHarvestThatIsGivenUpHarvestsNothing) {
    Plant(AField().Days(ThroughYesterday), 1);
    for (const char* way : {"cmd_Cancel", "Esc", "mnuNew", "mnuSelect"}) {
        Menu.Click("mnuSelect").Click("mnuDelete");
        EXPECT_EQ(User.LastSaid(), "Information Message: Please select a field to delete.");
        std::string(way) == "Esc" ? Menu.Press("ComboField", Event::EscapeKey) : Menu.Click(way);
        Select(0);
        EXPECT_TRUE(User.Asked.empty() && Form.lbl_ID.Visible) << way;
    }
    Menu.Close();
    EXPECT_EQ(State.CurrentField, 0);
}

}  // namespace

}  // namespace veraqua
