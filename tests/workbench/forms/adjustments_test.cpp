#include "tests/workbench/forms/field_menu_fixture.h"

namespace veraqua {
namespace {

struct AdjustmentsTest : FieldMenuTest {
    void SelectNew(AField field, int days = IntoTheForecast) {
        Plant(field.Days(days), 1);
        Select(0);
    }
    static FieldFile Stored() { return LoadFieldFile(1); }
    static float WaterOn(JulianValue day) {
        return Stored().Days.at(static_cast<std::size_t>(day - Planting)).Available;
    }
};

TEST_F(AdjustmentsTest, MadIsStoredInTheHeaderAloneAndRoundedToTheEvenHalf) {
    SelectNew(AField().Hay());
    State.Hay.FieldId = "OTHER";  // as after a walk over the fields
    Menu.Click("mnu_MAD");
    for (const char* wrong : {"", "100.1", "-1", "1,5"}) {
        Menu.Type("txtNewMAD", wrong).Click("cmdMADOK");
        EXPECT_EQ(User.LastSaid(), "Input Error: Please enter a value from 0-100.");
        EXPECT_EQ(User.FocusedControls.back(), "frmField.txtNewMAD");
    }
    Menu.Type("txtNewMAD", "34.5").Click("cmdMADOK");
    EXPECT_EQ(User.LastSaid(), "Input Error: Please enter a value from 0-100 for Critical MAD.");
    Menu.Type("txtNewMADC", "100").Click("cmdMADOK");
    EXPECT_EQ(User.LastSaid(), ": New MAD set to: 34.5%");
    EXPECT_EQ(Stored().Hay.MAD, 34);
    EXPECT_EQ(Stored().Hay.MADCritical, 100);
    EXPECT_EQ(Stored().Hay.FieldId.Text(), "CREEK");
}

TEST_F(AdjustmentsTest, AFieldWhoseEfficiencyIsZeroCanBeRepaired) {
    // So dry that the run asks for irrigation at once.
    Plant(AField().Content(40).Efficiency(0).Days(ThroughYesterday), 1, Today - 2);
    const auto before = Files();
    Select(0);
    EXPECT_EQ(User.Failures.size(), 1U);
    EXPECT_EQ(Files(), before);
    Menu.Click("mnuIEffic").Type("TxtNewIRR", "62.5").Click("cmdIRROK");
    EXPECT_EQ(User.LastSaid(), ": New Irrigation Efficiency set to: 62.5%");
    Select(0);
    EXPECT_GT(State.Stat[1].NextIrrAmount, 0);
}

TEST_F(AdjustmentsTest, ADepletionSetIsInTheWaterOfItsDayAndInTheRunFromThere) {
    SelectNew(AField().Roots(0.3F, 0.3F));  // roots that don't grow: the root zone holds 42 mm all along
    Menu.Click("mnuDepletion");
    EXPECT_EQ(Form.lblRootWater.Caption, "Available water in root zone:  0.5 in/ft");  // 42 mm
    State.EnglishUnits = false;
    for (const JulianValue lastDay : {Today - 1, Today - 3}) {  // one that stands behind yesterday is run on from there
        State.Stat[1].LastDay = State.WeatherLastJulian = lastDay;
        Menu.Click("mnuDepletion").Type("TxtNewDepl", "25").Click("cmdDeplOK");
        // A quarter of the 42 mm is gone.
        EXPECT_EQ(User.LastSaid(), ": New depletion set to: 25%\nNew water content in root zone set to: 31.5mm/m");
        const JulianValue day = lastDay == Today - 1 ? Today : lastDay;
        EXPECT_EQ(State.Updates[1], day);
        EXPECT_EQ(WaterOn(day), 31.5F);
        EXPECT_LT(WaterOn(day + 1), 31.5F);
    }
}

TEST_F(AdjustmentsTest, WhatCannotBeSetLeavesTheFilesAlone) {
    SelectNew(AField(), ThroughYesterday);
    auto before = Files();
    Menu.Click("mnuDepletion").Type("TxtNewDepl", "30").Click("cmdDeplOK");
    EXPECT_EQ(User.Told.back().Title, "Veraqua Warning");
    EXPECT_EQ(Files(), before);

    SelectNew(AField().Efficiency(0));  // its run fails where it has to tell an amount
    before = Files();
    Menu.Click("mnuDepletion").Type("TxtNewDepl", "60").Click("cmdDeplOK");
    EXPECT_EQ(User.Failures.size(), 1U);
    EXPECT_EQ(Files(), before);
}

TEST_F(AdjustmentsTest, AResetStartsFromTheSoilOfPlantingWithoutAnyEvents) {
    SelectNew(AField().Content(60).Rain(Planting + 9, 20).Mad(40).With([](FieldFile& file) {
        file.Lists.History = {{Planting + 10, {100, 100, 100, 100}}};
    }));
    State.Updates[1] = Today - 5;
    Menu.Click("mnuDepletion").Click("cmd_Reset");
    EXPECT_THAT(User.LastAsked(), testing::EndsWith("continue?\nWhat goes: 1 rain and 0 irrigations."));
    EXPECT_EQ(Stored().Lists.Rain.size(), 1U);  // the answer was No
    User.Answers = {true};
    Menu.Click("cmd_Reset");
    EXPECT_EQ(User.LastSaid(), "Veraqua: Depletion has been reset");
    EXPECT_FLOAT_EQ(WaterOn(Planting), 30);  // 100 mm/m in 0.3 m
    EXPECT_TRUE(Stored().Lists.Rain.empty());
    EXPECT_EQ(Stored().Field.MAD, 40);
    EXPECT_EQ(State.Updates[1], 0);
}

}  // namespace
}  // namespace veraqua
