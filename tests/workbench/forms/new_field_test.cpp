#include "tests/workbench/forms/field_menu_fixture.h"
#include "weather/forms/station_chooser.h"

namespace veraqua {
namespace {

TEST_F(NewFieldTest, ABoxIsLeftOnlyWithWhatItTakes) {
    Begin(Alfalfa);
    const std::string error = "Input Error: Please enter a ";
    const std::string percent = error + "value between 1 and 100!";
    using Step = std::tuple<std::string, const char*, std::string>;
    for (const auto& [box, text, said] :
         {Step{"txtMAD", "0.9", percent}, Step{"txtIrrEff", "100.1", percent}, Step{"txtMADcritical", "x", percent},
          Step{"txtRootD", "101", error + "positive value"}, Step{"txtDry", "", error + "positive integer"},
          Step{"txtDry", "0", error + "positive integer between 1 and 100"},
          Step{"TxtPlantDate", "2/29/2003", "INVALID DATE: Planting date needs to be in mm/dd/yyyy format!"}}) {
        FormOf(FormName::frmLoadField).Focused = nullptr;
        EXPECT_TRUE(AtEntry().Type(box, text).Enter("txtFieldID").Held()) << box;
        EXPECT_EQ(User.LastSaid(), said);
        EXPECT_TRUE(User.FocusedControls.back().starts_with("frmLoadField." + box));
    }
    AtEntry().Click("cmd_Cancel");  // no check stops the way out
    EXPECT_TRUE(!IsLoaded(FormName::frmLoadField) && State.CurrentField == 0);
}

TEST_F(NewFieldTest, OkChecksInItsOrder) {
    Plant(AField().Id("west"), 1);
    Plant(AField().Id("SOUTH"), 3);
    Begin();
    At ok = AtEntry();
    const auto said = [&](const char* text, const char* focused) {
        ok.Click("cmd_OK");
        EXPECT_EQ(User.LastSaid(), text);
        EXPECT_EQ(User.FocusedControls.back(), std::string("frmLoadField.") + focused);
    };
    said("Missing Field ID: Please enter a Field ID Code!", "txtFieldID");
    ok.Type("txtFieldID", "\u20ac");
    said("Input Error: The Field ID Code has a character that no field file can hold.", "txtFieldID");
    for (const char* taken : {"West", "south"}) {
        ok.Type("txtFieldID", taken);
        said("Duplicate Field ID: You have already used this Field ID Code. Please select another!", "txtFieldID");
    }
    ok.Type("txtFieldID", "WEST ");  // a blank makes another ID of it
    said("Nothing selected: Please select a Weather Station from the drop-down list", "ComboKESTA");
    ok.Pick("ComboKESTA", 5).Type("TxtPlantDate", "5.1.03");
    said("Date input error: Please enter a date (greater than 1900) formated like: MM/DD/YYYY", "TxtPlantDate");
    ok.Type("TxtPlantDate", "12/31/1903");
    said("Date input error: The planting date is too far in the past.", "TxtPlantDate");
    ok.Type("TxtPlantDate", "5/1/2003").Type("txt_new_root", "39.5");
    said("Input Error: New value must be less than the default maximum rooting depth.", "txt_new_root");
    ok.Type("txt_new_root", "39.4");  // as the default of 1 m is shown
    EXPECT_EQ(State.Field.RootMax, 1);
}

TEST_F(NewFieldTest, ANewRootDepthCanBeRaisedAgainUpToTheCrops) {
    State.EnglishUnits = false;
    Begin();
    Describe();
    for (const auto& [text, depth] : {std::pair{"600", 0.6F}, {"1000", 1.0F}, {"700", 0.7F}, {"", 1.0F}, {"0", 1.0F}}) {
        AtEntry().Type("txt_new_root", text).Click("cmd_OK");
        EXPECT_EQ(State.Field.RootMax, depth) << text;
    }
}

TEST_F(NewFieldTest, WithoutItsWeatherTheFieldWaitsForAnotherDateOrStation) {
    Begin();
    Describe().Pick("ComboKESTA", 6);
    User.WeatherSource = [](const DayRange&) { return WeatherChoice::Left; };
    AtEntry().Click("cmd_OK");
    EXPECT_TRUE(FormOf(FormName::frmLoadField).Shown);
    EXPECT_FALSE(State.DownloadFailed || State.ReportCancelled || IsLoaded(FormName::frmCap));
    AtEntry().Pick("ComboKESTA", 5).Click("cmd_OK");
    EXPECT_EQ(User.Presented.back(), FormName::frmCap);
}

// Alfalfa under a station without any weather, for which default weather is taken.
TEST_F(NewFieldTest, ANewFieldComesThroughEveryFormToItsFirstPrediction) {
    Begin(Alfalfa);
    Describe("Creek side meadow").Pick("ComboKESTA", 7).Type("TxtPlantDate", "6/20/2003").Type("txtRootD", "36");
    User.WeatherSource = AskForWeatherSource;
    User.WhenShown(FormName::frmKESTA, [] { At(FormName::frmKESTA).Click("Option(2)").Click("cmd_return"); });
    EnterSoil(FormName::frmCap, [](At& soil) {
        soil.Type("txtDepth", "12").Click("cmdDepth");
        for (const char* zone : {"0", "1", "2"})
            soil.Type("txtcap(" + std::string(zone) + ")", "1.7").Type("txtcon(" + std::string(zone) + ")", "1.5");
        soil.Click("cmdOK");
    });
    EXPECT_EQ(User.Presented.back(), FormName::frmFieldData);
    EXPECT_EQ(Form.lbl_ID.Caption, "Field ID is:  Creek side");

    Directory.Reopen();
    StartUp(User);
    EXPECT_EQ(State.Stat[1].LastDay, Today - 1);
    EXPECT_NE(State.Stat[1].NextIrrAmount, AmountNoDataYet);
    const FieldFile file = LoadFieldFile(1);
    EXPECT_EQ(file.Hay.StationCode.Text(), "08");
    EXPECT_TRUE(file.Hay.RootMax == 0.9144F && file.Hay.MADCritical == 65);
    EXPECT_EQ(file.Hay.CapacityTop, 2);                      // 0.9144 / 0.3048 lies below 3, as singles
    EXPECT_EQ(file.Soil.Capacity[2], 142);                   // 1.7 x 25.4 / 0.3048 = 141.67
    EXPECT_FLOAT_EQ(file.Days[0].Available, 125 * 0.9144F);  // 1.5 in/ft are 125 mm/m
}

// The need of grown roots doesn't fit a file, though that of the roots at planting does.
TEST_F(NewFieldTest, AFieldThatCantBeRunLeavesNothingAndCanBeCorrected) {
    Begin(Maize, Variable);
    Describe();
    const auto before = Files();
    EnterSoil(FormName::frmCapVar, [&](At& soil) {
        User.OtherAnswer = true;
        soil.Type("txtRoot(0)", "39").Type("txtcap(0)", "384").Type("txtcon(0)", "0").Click("cmdOK");
        EXPECT_EQ(User.Failures.size(), 1U);
        EXPECT_EQ(Files(), before);
        EXPECT_TRUE(FormOf(FormName::frmCapVar).Shown && FormOf(FormName::frmLoadField).Shown);
        soil.Type("txtcap(0)", "1.68").Type("txtcon(0)", "1.68").Click("cmdOK");
    });
    EXPECT_TRUE(Directory.Has("field1.dat") && State.CurrentField == 1 && State.FieldCount == 1);
}

}  // namespace
}  // namespace veraqua
