#include "workbench/forms/water_events.h"

#include "reports/prediction_text.h"
#include "tests/support/failing_disks.h"
#include "tests/workbench/forms/field_menu_fixture.h"
#include "workbench/forms/cuttings.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr JulianValue July(int day) { return JulianFromDate(7, day, 2003); }

/// The entry of water for hay or an ordinary crop that stands at yesterday.
struct WaterTest : FieldMenuTest {
    frmAddWater& Water = The<frmAddWater>();
    At Entry{FormName::frmAddWater};

    /// Days so mild that no field dries out.
    WaterTest() { AWeatherYear("06", 2003).Through(195).Every(AWeatherDay().ReferenceET(2)).Store(); }

    void Open(const AField& field) {
        Plant(AField(field).Days(ThroughYesterday), 1);
        Select(0);
        Menu.Click("MnuPred");
        Menu.Click("mnuAdd");
    }

    static FieldLists Stored() { return LoadFieldFile(1).Lists; }

    void Rain(std::string_view date, std::string_view amount) {
        Entry.Type("txtRainDate", date).Type("txtRainfall", amount).Click("cmdOKRain");
    }
};

TEST_F(WaterTest, EachEntryReachesTheFileWithTheRunThatItCauses) {
    Open(AField());
    const StatRecord before = State.Stat[1];
    Rain("7/3/2003", "1.00");
    EXPECT_THAT(Stored().Rain, ElementsAre(EventRecord{July(3), 25}));
    EXPECT_EQ(Water.ListRain.Items.at(0).Text, "07-03-03   ...   1.0 inches  (0.98)");
    Entry.Type("txtIrrAdd", "7 10 2003").Type("txtIrrigation", "4").Press("txtIrrigation", Event::EnterKey);
    EXPECT_THAT(Stored().Irrigation, ElementsAre(EventRecord{July(10), 102}));
    EXPECT_NE(State.Stat[1].Depletion, before.Depletion);
    const StatRecord row = State.Stat[1];
    LoadFieldDirectory();
    EXPECT_EQ(State.Stat[1], row);
    EXPECT_THAT(Water.lblChange.Caption, HasSubstr("Next irrigation moves from "));
    Rain("07-03-2003", "0.98");  // 24.9 mm, which are 25
    EXPECT_THAT(Stored().Rain, ElementsAre(EventRecord{July(3), 25}));
    Entry.Click("cmdReturn");
    EXPECT_THAT(User.Told, IsEmpty());
    EXPECT_EQ(User.Presented.back(), FormName::frmFieldData);
}

TEST_F(WaterTest, TheWorkbenchSaysWhenToIrrigateNextAfterEachReturnToIt) {
    Open(AField());
    EXPECT_THAT(Form.lblNext.Caption, HasSubstr("Exceeded MAD"));
    EXPECT_EQ(Form.lblNext.Background, colours::Red);
    const auto irrigate = [this](std::string_view date) {
        Entry.Type("txtIrrAdd", date).Type("txtIrrigation", "4").Click("cmdOKIrrigation");
    };
    irrigate("7/10/2003");
    Entry.Click("cmdReturn");
    const StatRecord& row = State.Stat[1];
    EXPECT_EQ(Form.lblNext.Caption, "Next irrigation:  " + JulianToShortText(row.NextIrrDay) + "   " +
                                        IrrigationAmount(row.NextIrrAmount, true));
    EXPECT_EQ(Form.lblNext.Background, std::nullopt);
    const std::string wet = Form.lblNext.Caption;
    Menu.Click("mnuAdd");
    irrigate("7/12/2003");
    Entry.Click("cmdCancel");
    EXPECT_EQ(Form.lblNext.Caption, wet);
    Menu.Click("mnu_MAD");
    EXPECT_TRUE(Form.lblNext.Visible);
    Menu.Enter("cmdMADOK").Escape();  // ends the adjustment, not the work on the field
    EXPECT_FALSE(Form.ShapeMAD.Visible);
    EXPECT_EQ(State.CurrentField, 1);
}

TEST_F(WaterTest, ARefusalPutsTheFocusWhereItIsSetRight) {
    Open(AField());
    using Case = std::array<std::string, 4>;  // date, amount, title, focus
    for (const auto& [date, amount, title, focus] : {Case{"7/3", "1", "Invalid Water Date", "txtRainDate"},
                                                     Case{"7/9/2003", "much", "Missing Data!", "txtRainfall"},
                                                     Case{"7/9/2003", "0", "Bad Data!", "txtRainfall"}}) {
        Rain(date, amount);
        EXPECT_EQ(User.Told.back().Title, title);
        EXPECT_EQ(User.FocusedControls.back(), "frmAddWater." + focus) << title;
    }
    State.DriedOutDay = July(9);
    Rain("7/9/2003", "1");
    EXPECT_EQ(User.LastSaid(),
              "Depletion Warning: Your field dried out (99% water depletion) on 07-09-03.  Irrigation must be prior to "
              "that date.");
    State.Updates[1] = July(9);  // which comes first
    Rain("7/9/2003", "1");
    EXPECT_EQ(User.LastSaid(),
              "Veraqua Warning: Irrigation dates prior to updated 'Depletion Date' are not allowed.  Reset 'Depletion' "
              "if you want to add water.");
    State.Updates[1] = State.DriedOutDay = 0;
    Rain("7/9/2003", "1291");  // 32767 mm are 1290.04 inches
    EXPECT_EQ(User.LastSaid(), "Bad Data!: Please enter a value of at most 1290.04 inches");
    EXPECT_EQ(User.FocusedControls.back(), "frmAddWater.txtRainfall");
    EXPECT_THAT(Stored().Rain, IsEmpty());
    EXPECT_THAT(Water.RainEvents, IsEmpty());
    Rain("7/9/2003", "0.01");
    EXPECT_EQ(Water.lblChange.Caption, "Stored as 0 mm: less than half a millimetre counts as no water.");
}

TEST_F(WaterTest, DeletesTheSelectedRowOrTheTypedDayAfterAQuestion) {
    Open(AField().Hay().Rain(July(3), 25).Rain(July(5), 10));
    Rain("5/1/2003", "1");
    EXPECT_THAT(User.LastSaid(), HasSubstr("Use a Date after 05-02-03."));  // hay: a day later than what is taken
    Entry.Pick("ListRain", 0).Click("cmdDeleteR");
    EXPECT_EQ(User.LastAsked(), "DELETE Confirmation: Are you sure you wish to delete rainfall data on: 07-03-03?");
    EXPECT_THAT(Stored().Rain, testing::SizeIs(2));
    User.OtherAnswer = true;
    Entry.Click("cmdDeleteR");
    EXPECT_THAT(Stored().Rain, ElementsAre(EventRecord{July(5), 10}));
    Entry.Type("txtRainDate", "7/3/2003").Click("cmdDeleteR");
    EXPECT_EQ(User.LastSaid(), "Try again...: No matching date found");
    Entry.Type("txtRainDate", "7/5/2003").Click("cmdDeleteR");
    EXPECT_THAT(Stored().Rain, IsEmpty());
}

TEST_F(WaterTest, CancelPutsEverythingBackWhateverTheListsHeld) {
    for (const int entries : {0, 130}) {
        AField field;
        for (int i = 0; i < entries; ++i) field.Irrigation(Planting + 1 - i - 10, 1);  // before anything that counts
        if (entries > 0)
            field.With(
                [](FieldFile& file) { std::reverse(file.Lists.Irrigation.begin(), file.Lists.Irrigation.end()); });
        Open(field);
        const auto files = Files();
        Rain("7/3/2003", "2");
        Entry.Type("txtIrrAdd", "7/4/2003").Type("txtIrrigation", "2").Click("cmdOKIrrigation");
        ASSERT_NE(Files(), files);
        Entry.Click("cmdCancel");
        EXPECT_EQ(Files(), files) << entries;
        EXPECT_TRUE(FormOf(FormName::frmField).Shown);
    }
}

TEST_F(WaterTest, AFailedRunLeavesListsFileAndRowAsTheyWere) {
    Open(AField());
    FieldFile broken = LoadFieldFile(1);
    broken.Field.IrrEff = 0;
    StoreFieldFile(1, broken);
    Entry.Click("cmdCancel");
    Menu.Click("mnuAdd");
    const auto files = Files();
    const StatRecord row = State.Stat[1];
    Rain("7/3/2003", "0.1");
    EXPECT_THAT(User.Failures, testing::SizeIs(1));
    EXPECT_EQ(Files(), files);
    EXPECT_EQ(State.Stat[1], row);
    EXPECT_THAT(Water.ListRain.Items, IsEmpty());
    EXPECT_EQ(State.CurrentField, 1);
}

TEST_F(WaterTest, TheNextEntryIsTypedStraightOnAndTypedValuesAreNotLostInSilence) {
    Open(AField());
    Rain("7/3/2003", "1");
    EXPECT_EQ(User.FocusedControls.back(), "frmAddWater.txtRainDate (selected)");
    EXPECT_EQ(Water.txtRainfall.Text, "");
    Entry.Type("txtIrrAdd", "7/4/2003").Type("txtIrrigation", "4");
    User.Answers = {true};
    Entry.Click("cmdReturn");
    EXPECT_EQ(User.LastAsked(), "Veraqua: \"7/4/2003\" is typed but not accepted yet.  Do you wish to go back to it?");
    EXPECT_EQ(User.FocusedControls.back(), "frmAddWater.txtIrrAdd (selected)");
    ASSERT_TRUE(FormOf(FormName::frmAddWater).Shown);
    Entry.Click("cmdOKIrrigation").Escape();
    EXPECT_EQ(User.Asked.size(), 1U) << "all is accepted";
    EXPECT_FALSE(FormOf(FormName::frmAddWater).Shown);
}

TEST_F(WaterTest, DeleteTakesWhatWasTouchedLastAndIsOffWhereThatIsNothing) {
    Open(AField().Rain(July(3), 25).Rain(July(5), 10).Rain(July(7), 12));
    EXPECT_FALSE(Water.cmdDeleteR.Enabled);
    User.OtherAnswer = true;
    Entry.Press("ListRain", Event::DeleteKey);
    EXPECT_THAT(User.Asked, IsEmpty()) << "no row is selected";
    Entry.Arrow("ListRain").Type("txtRainDate", "7/5/2003").Click("cmdDeleteR");
    EXPECT_THAT(Stored().Rain, ElementsAre(EventRecord{July(3), 25}, EventRecord{July(7), 12}));
    Entry.Type("txtRainDate", "7/3/2003").Arrow("ListRain", 2).Press("ListRain", Event::DeleteKey);
    EXPECT_THAT(Stored().Rain, ElementsAre(EventRecord{July(3), 25}));
    Entry.Type("txtRainDate", "");
    EXPECT_FALSE(Water.cmdDeleteR.Enabled);
}

TEST_F(WaterTest, WithoutItsFileTheWorkbenchStaysAndACancelThatCantSaveClosesTheForm) {
    Open(AField());
    Rain("7/3/2003", "1");
    files::FailingDisk full(1, ENOSPC, true);
    files::InstallDisk(&full);
    Entry.Click("cmdCancel");
    files::InstallDisk(nullptr);
    EXPECT_THAT(User.Failures, testing::SizeIs(1));
    EXPECT_TRUE(FormOf(FormName::frmField).Shown && !FormOf(FormName::frmAddWater).Loaded);
    Directory.Delete("field1.dat");
    Menu.Click("mnuAdd");
    EXPECT_TRUE(FormOf(FormName::frmField).Shown && !FormOf(FormName::frmAddWater).Loaded);
}

struct CutsTest : WaterTest {
    At Cuts{FormName::frmCuts};

    CutsTest() {
        Open(AField().Hay());
        Entry.Click("cmdCancel");
        Menu.Click("mnuCuts");
    }

    void Cut(std::string_view date, std::string_view number) {
        Cuts.Type("txtCutAdd", date).Type("txtCutNumber", number).Press("txtCutNumber", Event::EnterKey);
    }
};

TEST_F(CutsTest, RecordsCuttingsFromTheOnsetOfGrowthOnAndCancelPutsThemBack) {
    const auto files = Files();
    Cut("5/1/2003", "1");
    Cut("6/20/2003", "2");
    Cut("06-20-2003", "3");
    EXPECT_THAT(Stored().Cuttings, ElementsAre(EventRecord{Planting, 1}, EventRecord{JulianFromDate(6, 20, 2003), 3}));
    EXPECT_EQ(The<frmCuts>().ListCuts.Items.at(1).Text, "06-20-03   ..........   #3");
    Cut("6/20/2003", "0");  // removes it
    EXPECT_THAT(Stored().Cuttings, ElementsAre(EventRecord{Planting, 1}));
    User.Answers = {true};
    EXPECT_EQ(The<frmCuts>().txtCutNumber.Text, "");
    Cuts.Arrow("ListCuts").Press("ListCuts", Event::DeleteKey);
    EXPECT_EQ(User.LastAsked(), "DELETE Confirmation: Are you sure you wish to delete the CUTTING on: 05-01-03?");
    EXPECT_THAT(Stored().Cuttings, IsEmpty());
    Cut("7/10/2003", "2");
    Cuts.Click("cmdCancel");
    EXPECT_EQ(Files(), files);
}

TEST_F(CutsTest, ARefusalPutsTheFocusWhereItIsSetRight) {
    Cut("4/30/2003", "1");
    EXPECT_EQ(User.FocusedControls.back(), "frmCuts.txtCutAdd");
    EXPECT_FALSE(Cuts.Click("cmdCancel").Held());
    EXPECT_THAT(User.LastAsked(), HasSubstr("\"04-30-2003\" is typed but not accepted yet."));
    Menu.Click("mnuCuts");
    Cut("7/1/2003", "2.5");
    EXPECT_EQ(User.FocusedControls.back(), "frmCuts.txtCutNumber");
    EXPECT_THAT(Stored().Cuttings, IsEmpty());
}

}  // namespace
}  // namespace veraqua
