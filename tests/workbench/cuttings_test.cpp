#include "workbench/cuttings.h"

#include "tests/workbench/field_menu_fixture.h"
#include "workbench/change_line.h"

namespace veraqua {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct CutsTest : FieldMenuTest {
    frmCuts& Cuts = The<frmCuts>();
    At Entry{FormName::frmCuts};

    void Open(const AField& field) {
        Plant(AField(field).Days(ThroughYesterday), 1);
        Select(0);
        Menu.Click("MnuPred").Click("mnuCuts");
    }

    static std::vector<EventRecord> Stored() { return LoadFieldFile(1).Lists.Cuttings; }

    void Cut(std::string_view date, std::string_view number) {
        Entry.Type("txtCutAdd", date).Type("txtCutNumber", number).Press("txtCutNumber", Event::EnterKey);
    }
};

TEST_F(CutsTest, RecordsCuttingsFromTheOnsetOfGrowthOn) {
    Open(AField().Hay());
    Cut("5/1/2003", "1");
    Cut("6/20/2003", "2");
    Cut("06-20-2003", "3");
    EXPECT_THAT(Stored(), ElementsAre(EventRecord{Planting, 1}, EventRecord{JulianFromDate(6, 20, 2003), 3}));
    EXPECT_EQ(Cuts.ListCuts.Items.at(1).Text, "06-20-03   ..........   #3");
    EXPECT_EQ(Cuts.txtCutDate.Text, JulianToShortText(State.Stat[1].NextCutDay));
    Cut("6/20/2003", "0");  // removes it
    EXPECT_THAT(Stored(), ElementsAre(EventRecord{Planting, 1}));
    Cut("6/21/2003", "0");
    EXPECT_EQ(User.LastSaid(), "Try again...: No matching date found");
    User.OtherAnswer = true;
    Entry.Pick("ListCuts", 0).Click("cmdDelete");
    EXPECT_EQ(User.LastAsked(), "DELETE Confirmation: Are you sure you wish to delete the CUTTING on: 05-01-03?");
    EXPECT_THAT(Stored(), IsEmpty());
}

TEST_F(CutsTest, RefusesDaysAndNumbers) {
    Open(AField().Hay());
    struct Case {
        const char* Date;
        const char* Number;
        const char* Says;
        const char* Focus;
    };
    const Case cases[] = {
        {"4/30/2003", "1", "Veraqua: Use a Date after 05-01-03.  Only data after growth onset can be used.",
         "txtCutAdd"},
        {"7/16/2003", "1", "Veraqua: Use a Date before 07-16-03.  Can't count on future weather or work...",
         "txtCutAdd"},
        {"7/1/2003", "", "Input Error: Please enter a number value for your cut number", "txtCutNumber"},
        {"7/1/2003", "2.5", "Input Error: Please enter a whole number for your cut number", "txtCutNumber"},
        {"7/1/2003", "-1", "Input Error: Please enter a positive whole number for your cut number", "txtCutNumber"},
    };
    for (const Case& c : cases) {
        Cut(c.Date, c.Number);
        EXPECT_EQ(User.LastSaid(), c.Says);
        EXPECT_EQ(User.FocusedControls.back(), std::string("frmCuts.") + c.Focus);
    }
    EXPECT_THAT(Stored(), IsEmpty());
    Entry.Click("cmdReturn");
    EXPECT_EQ(User.LastSaid(), "Veraqua: No cuttings to update");
}

TEST_F(CutsTest, CancelPutsTheCuttingsBack) {
    Open(AField().Hay());
    const auto files = Files();
    Cut("6/20/2003", "1");
    Cut("7/10/2003", "2");
    ASSERT_NE(Files(), files);
    Entry.Click("cmdCancel");
    EXPECT_EQ(Files(), files);
}

TEST(ChangeLine, SaysWhatMoves) {
    State.EnglishUnits = true;
    StatRecord before;
    before.NextIrrDay = JulianFromDate(7, 12, 2026);
    before.NextIrrAmount = 43;
    StatRecord after = before;
    EXPECT_EQ(ChangeLine(before, after), "Next irrigation stays: 07-12-26.");
    after.NextIrrDay += 2;
    EXPECT_EQ(ChangeLine(before, after), "Next irrigation moves from 07-12-26 to 07-14-26.");
    after.NextIrrAmount = 51;
    after.NextCutDay = after.NextIrrDay + 10;
    EXPECT_EQ(ChangeLine(before, after),
              "Next irrigation moves from 07-12-26 to 07-14-26. Its amount changes from 1.69 inches to 2.01 inches. "
              "Next cutting moves from not known to 07-24-26.");
    after.NextIrrAmount = AmountNotRequired;
    EXPECT_EQ(ChangeLine(after, after), "Next irrigation stays: not required.");
}

}  // namespace

}  // namespace veraqua
