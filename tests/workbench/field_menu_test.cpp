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
    const std::vector<std::tuple<const char*, FormName, int>> ways = {
        {"mnuAdd", FormName::frmAddWater, 0},
        {"MnuPred", FormName::frmFieldData, 0},
        {"mnuFieldSummary", FormName::frmFieldData, 0},
        {"mnuFieldDetails", FormName::frmFieldDetails, 0},
        {"mnuSeasonChart", FormName::frmSeasonChart, 0},
        {"m_rpt_display", FormName::frmFieldHistory, 0},
        {"m_rpt_display", FormName::frmHayFieldHistory, 1},
        {"mnuCuts", FormName::frmCuts, 1}};
    for (const auto& [item, opened, position] : ways) {
        Plant(AField().Days(IntoTheForecast), 1);
        Plant(AField().Hay().Days(IntoTheForecast), 2);
        Show(FormName::frmField);
        Select(position);
        Menu.Click(item);
        EXPECT_EQ(User.Presented.back(), opened) << item;
    }
    Show(FormName::frmField);
    Select(0);
    Menu.Click("mnuCuts");
    EXPECT_EQ(User.LastSaid(), "Pick Another Option: This option only applies to Alfalfa fields");
    EXPECT_TRUE(User.Failures.empty());
}

TEST_F(FieldMenuTest, AFieldPickedIsShownAndRunOnlyIfItStandsBehindYesterday) {
    Plant(AField().Days(IntoTheForecast).Id("west"), 1);
    Plant(AField().Hay().Days(IntoTheForecast).Cutting(Planting + 40, 1), 2, Today - 2);
    const auto before = Files();
    Select(0);
    EXPECT_EQ(Files(), before);  // the upper case of its ID is in memory only
    EXPECT_EQ(Form.lbl_ID.Caption, "Field ID is:  WEST");
    EXPECT_EQ(Form.lbl_plantdate.Caption, "Planted on:  05-01-03");
    EXPECT_EQ(Form.StatusBar1.Panels[0], "Field=MAIZE GRAIN  ID=WEST ");
    EXPECT_TRUE(Form.lbl_more2.Visible && !Form.cmd_Summary.Visible && !Form.ComboField.Visible);
    Select(1);
    EXPECT_EQ(State.Stat[2].LastDay, Today - 1);
    EXPECT_EQ(Form.Caption, "Field=@ALFALFA.   ID=CREEK.   Planted: 05-01-03.    Kesta Location: " +
                                State.DefaultStations[5] + ".    Veraqua Ver 1.17");
}

TEST_F(FieldMenuTest, AFieldWithoutItsWeatherOrItsFileIsNotSelected) {
    Plant(AField().Days(IntoTheForecast).Station("07"), 1);
    Plant(AField().Days(IntoTheForecast), 2);
    User.WeatherSource = [] { State.DownloadFailed = State.ReportCancelled = true; };
    Select(0);
    EXPECT_EQ(State.CurrentField, 0);
    EXPECT_EQ(State.StationCode, "00");
    EXPECT_FALSE(State.DownloadFailed || State.ReportCancelled || Form.ComboField.Visible || Form.lbl_ID.Visible);
    Directory.Put("field2.dat", "short");
    Select(1);
    EXPECT_EQ(User.Failures.size(), 1U);
    EXPECT_EQ(State.CurrentField, 0);
    Directory.Delete("field2.dat");
    Menu.Pick("ComboField", 1);
    EXPECT_EQ(User.Told.back().Title, "FIELD:  field2.dat");
    EXPECT_EQ(State.CurrentField, 0);
}

TEST_F(FieldMenuTest, RowsWithAGapAreListedByTheirNumberAndANewFieldTakesTheGap) {
    Plant(AField().Days(IntoTheForecast), 1);
    Plant(AField().Days(IntoTheForecast), 3);
    Select(1);
    EXPECT_EQ(State.CurrentField, 3);
    Menu.Click("mnuNew").Click("mnu_MAD");  // a field that is being entered is none yet
    EXPECT_EQ(State.CurrentField, 2);
    EXPECT_EQ(User.Told.back().Title, "Information Message");
    Menu.Press("comboCrops", Event::EscapeKey);
    EXPECT_EQ(State.CurrentField, 0);
    for (int row = 1; row <= MaxFields; ++row) State.Stat[row].LastDay = Today;
    Menu.Click("mnuNew");
    EXPECT_EQ(User.LastSaid(), "Veraqua: Veraqua keeps at most 100 fields.");
    EXPECT_FALSE(Form.comboCrops.Visible);
}

TEST_F(FieldMenuTest, ANewFieldWantsACropAndASoilFormat) {
    Menu.Click("mnuNew").Pick("comboCrops", -1);
    EXPECT_EQ(User.LastSaid(), "Pick a crop!: Please select a crop from the drop-down list");
    Menu.Click("cmd_OK");
    EXPECT_EQ(User.LastSaid(), "Missing Crop: Please select a crop to plant");
    Menu.Pick("comboCrops", 24).Click("cmd_OK");
    EXPECT_EQ(User.LastSaid(), "Missing Soil: Please select a soils format");
    EXPECT_EQ(User.FocusedControls.back(), "frmField.Combo_Soils");
    Menu.Pick("Combo_Soils", 1);
    EXPECT_TRUE(State.VariableSoil);
    Menu.Pick("Combo_Soils", 0).Click("cmd_OK");
    EXPECT_FALSE(State.VariableSoil);
    EXPECT_EQ(State.Stat[1].CropName.Text(), "@ALFALFA");
    EXPECT_EQ(User.FocusedControls.back(), "frmLoadField.txtFieldID");
    EXPECT_FALSE(FormOf(FormName::frmField).Shown);
}

TEST_F(FieldMenuTest, APickForTheHarvestThatIsGivenUpHarvestsNothing) {
    Plant(AField().Days(IntoTheForecast), 1);
    for (const char* way : {"cmd_Cancel", "Esc", "mnuNew", "mnuSelect"}) {
        Menu.Click("mnuSelect").Click("mnuDelete");
        EXPECT_EQ(User.LastSaid(), "Information Message: Please select a field to delete.");
        std::string(way) == "Esc" ? Menu.Press("ComboField", Event::EscapeKey) : Menu.Click(way);
        Select(0);
        EXPECT_TRUE(User.Asked.empty() && Form.lbl_ID.Visible) << way;
    }
    Menu.Close();
    EXPECT_EQ(State.CurrentField, 0);
    EXPECT_FALSE(IsLoaded(FormName::frmField));
}

}  // namespace

}  // namespace veraqua
