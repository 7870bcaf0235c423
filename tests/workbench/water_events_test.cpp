#include "workbench/water_events.h"

#include "tests/workbench/field_menu_fixture.h"
#include "workbench/event_list.h"

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
    const std::string predicted = Water.txtIrrDate.Text;
    Rain("7/3/2003", "1.00");
    EXPECT_THAT(Stored().Rain, ElementsAre(EventRecord{July(3), 25}));
    EXPECT_EQ(Water.ListRain.Items.at(0).Text, "07-03-03   ...   1.0 inches");
    EXPECT_EQ(Water.txtRAIN.Text, "1.0 inches");
    EXPECT_EQ(Water.txtRainDate.Text, "07-03-2003");

    Entry.Type("txtIrrAdd", "7 10 2003").Type("txtIrrigation", "4").Press("txtIrrigation", Event::EnterKey);
    EXPECT_THAT(Stored().Irrigation, ElementsAre(EventRecord{July(10), 102}));
    EXPECT_NE(State.Stat[1].Depletion, before.Depletion);
    const StatRecord row = State.Stat[1];
    LoadFieldDirectory();
    EXPECT_EQ(State.Stat[1], row);
    EXPECT_NE(Water.txtIrrDate.Text, predicted);
    EXPECT_THAT(Water.lblChange.Caption, HasSubstr("Next irrigation moves from "));

    User.Told.clear();
    Rain("07-03-2003", "0.98");  // 24.9 mm, which are 25
    EXPECT_THAT(Stored().Rain, ElementsAre(EventRecord{July(3), 25}));
    Entry.Click("cmdReturn");
    EXPECT_THAT(User.Told, IsEmpty());
    EXPECT_EQ(User.Presented.back(), FormName::frmFieldData);
}

TEST_F(WaterTest, RefusesDaysAndAmounts) {
    Open(AField());
    struct Case {
        const char* Date;
        const char* Amount;
        JulianValue DepletionDay, DriedOut;
        const char* Says;
        const char* Focus;
    };
    const Case cases[] = {
        {"7/3", "1", 0, 0,
         "Invalid Water Date: Use a Date after 05-01-03.  Dates on or prior to planting date are not "
         "permitted.",
         "txtRainDate"},
        {"5/1/2003", "1", 0, 0,
         "Invalid Water Date: Use a Date after 05-01-03.  Dates on or prior to planting date are "
         "not permitted.",
         "txtRainDate"},
        {"7/16/2003", "1", 0, 0, "Veraqua: Use a Date before 07-16-03.  Dates into the future are not permitted.",
         "txtRainDate"},
        {"7/5/2003", "1", July(5), 0,
         "Veraqua Warning: Irrigation dates prior to updated 'Depletion Date' are not "
         "allowed.  Reset 'Depletion' if you want to add water.",
         "txtRainDate"},
        {"7/9/2003", "1", July(5), July(9),
         "Depletion Warning: Your field dried out (99% water depletion) on 07-09-03.  "
         "Irrigation must be prior to that date.",
         "txtRainDate"},
        {"7/9/2003", "much", 0, 0, "Missing Data!: Please enter a value for your rainfall amount", "txtRainfall"},
        {"7/9/2003", "0", 0, 0, "Bad Data!: Please enter a value greater than 0.  Use Delete button if deleting values",
         "txtRainfall"},
    };
    for (const Case& c : cases) {
        State.Updates[1] = c.DepletionDay;
        State.DriedOutDay = c.DriedOut;
        Rain(c.Date, c.Amount);
        EXPECT_EQ(User.LastSaid(), c.Says);
        EXPECT_EQ(User.FocusedControls.back(), std::string("frmAddWater.") + c.Focus);
    }
    State.Updates[1] = State.DriedOutDay = 0;
    Rain("7/9/2003", "1291");  // inches: more than 32767 mm
    EXPECT_THAT(User.Failures, ElementsAre(HasSubstr("Amount of the day")));
    EXPECT_THAT(Stored().Rain, IsEmpty());
    EXPECT_THAT(Water.RainEvents, IsEmpty());
    Entry.Close();
    EXPECT_EQ(User.LastSaid(), "Veraqua: No irrigation or rainfall data to update");
    EXPECT_TRUE(FormOf(FormName::frmField).Shown);
}

TEST_F(WaterTest, OnHayTheEarliestDayThatIsQuotedIsADayLater) {
    Open(AField().Hay());
    Rain("5/1/2003", "1");
    EXPECT_THAT(User.LastSaid(), HasSubstr("Use a Date after 05-02-03."));
    Rain("5/2/2003", "1");
    EXPECT_THAT(Stored().Rain, ElementsAre(EventRecord{Planting + 1, 25}));
}

TEST_F(WaterTest, DeletesTheSelectedRowOrTheTypedDayAfterAQuestion) {
    Open(AField().Rain(July(3), 25).Rain(July(5), 10));
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
    EXPECT_EQ(Water.txtRAIN.Text, "0.0 inches");
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

TEST(EventList, KeepsOneEntryPerDayInOrder) {
    std::vector<EventRecord> list{{10, 1}, {20, 2}, {30, 3}};
    EXPECT_EQ(ManageEvents(list, 15, 7.5), ListChange::Changed);
    EXPECT_EQ(ManageEvents(list, 31, 4), ListChange::Changed);
    EXPECT_EQ(ManageEvents(list, 20, 2.4), ListChange::Unchanged);
    EXPECT_EQ(ManageEvents(list, 20, 2.6), ListChange::Changed);
    EXPECT_EQ(ManageEvents(list, 30, std::nullopt), ListChange::Changed);
    EXPECT_EQ(ManageEvents(list, 30, std::nullopt), ListChange::NoMatch);
    EXPECT_THAT(list, ElementsAre(EventRecord{10, 1}, EventRecord{15, 8}, EventRecord{20, 3}, EventRecord{31, 4}));
}

}  // namespace

}  // namespace veraqua
