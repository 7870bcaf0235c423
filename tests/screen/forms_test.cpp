#include "screen/forms.h"

#include <gmock/gmock.h>

#include "core/base/failure.h"
#include "tests/support/script_screen.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> happened;  ///< in order

std::vector<std::string> Happened() { return std::exchange(happened, {}); }

/// A made-up form for one entry, and one that it opens.
struct frmEntry : Form {
    TextBox txtDay{"today"};
    TextBox txtAmount;
    TextBox txtNote{"dry"};
    OptionButton optRain{"Rain", true}, optIrrigation{"Irrigation"};
    ComboBox comboCrop, comboStation{true};
    Calendar Cal1;
    frmEntry() {
        Cal1.Visible = false;
        for (const char* row : {"Maize", "Alfalfa", "Beans"}) comboCrop.Add(row), comboStation.Add(row);
    }
    Button cmdOK{"OK"}, cmdDelete{"DELETE"}, cmdCancel{"CANCEL"};
};

struct frmAsked : Form {
    Button cmdYes{"Yes"};
};

enum class Loading { Passes, Fails, EndsTheForm } loading;

bool CheckedNumber(const TextBox& box, const char* name) {
    happened.push_back(std::string(name) + " checked");
    if (box.Text.find_first_not_of("0123456789") == std::string::npos && !box.Text.empty()) return true;
    TheScreen().Tell("That's no number.");
    Focus(box);
    SelectText(box);
    return false;
}

FormTable TableOf(frmEntry& form) {
    FormFor table(form, FormName::frmAddWater, "frmEntry");
    table.Add("txtDay", form.txtDay).Change(+[](frmEntry&) { happened.emplace_back("txtDay typed"); });
    table.Add("txtAmount", form.txtAmount).Leave(+[](frmEntry& f) { return CheckedNumber(f.txtAmount, "txtAmount"); });
    table.Add("txtNote", form.txtNote).Leave(+[](frmEntry& f) { return CheckedNumber(f.txtNote, "txtNote"); });
    table.Add("optRain", form.optRain);
    table.Add("optIrrigation", form.optIrrigation).Click(+[](frmEntry&) { happened.emplace_back("irrigation"); });
    table.Add("comboCrop", form.comboCrop).Click(+[](frmEntry& f) {
        happened.push_back(f.comboCrop.Text + " picked");
    });
    table.Add("comboStation", form.comboStation).Change(+[](frmEntry& f) {
        happened.push_back(f.comboStation.Text + " typed");
        if (f.comboStation.Selected() == nullptr) Focus(f.comboStation);
    });
    table.Add("Cal1", form.Cal1);
    table.Add("cmdOK", form.cmdOK).Click(+[](frmEntry&) {
        if (LeaveChecksPass(FormName::frmAddWater)) happened.emplace_back("recorded");
    });
    table.Add("cmdDelete", form.cmdDelete).Click(+[](frmEntry& f) {
        ShowModal(FormName::frmCuts);
        happened.push_back("back with " + f.txtDay.Text);
    });
    table.Add("cmdCancel", form.cmdCancel).Click(+[](frmEntry&) { Unload(FormName::frmAddWater); }).Exit();
    table.Load(+[](frmEntry&) {
        happened.emplace_back("Load");
        if (loading == Loading::Fails) throw RunTimeFailure("field7.dat is short.");
        if (loading == Loading::EndsTheForm) Unload(FormName::frmAddWater);
    });
    table.Appear(+[](frmEntry&) { happened.emplace_back("Appear"); });
    table.Fill(+[](frmEntry& f) { f.txtDay.Text = "filled"; });
    table.Unload(+[](frmEntry&) { happened.emplace_back("Unload"); });
    return table.Done();
}

FormTable TableOf(frmAsked& form) {
    FormFor table(form, FormName::frmCuts, "frmAsked");
    table.Add("cmdYes", form.cmdYes).Click(+[](frmAsked&) {
        The<frmEntry>().txtDay.Text = "yes";
        Show(FormName::frmAddWater);
    });
    return table.Done();
}

struct Watched : ScriptScreen {
    void Present(FormTable& form) override { happened.push_back("Present " + std::string(form.Text)); }
    void Withdraw(FormTable& form) override { happened.push_back("Withdraw " + std::string(form.Text)); }
};

struct FormsTest : testing::Test {
    TestDirectory Directory;
    Watched User;
    frmEntry& Entry = The<frmEntry>();
    FormTable& Table;

    FormsTest() : Table((AddForm<frmEntry>(), AddForm<frmAsked>(), FormOf(FormName::frmAddWater))) {}
    ~FormsTest() override {
        for (FormTable* form : AllForms()) form->Loaded = form->Shown = false;
        happened.clear();
        loading = Loading::Passes;
    }
    FormsTest(const FormsTest&) = delete;
    FormsTest& operator=(const FormsTest&) = delete;

    At Opened() {
        Show(FormName::frmAddWater);
        happened.clear();
        return At(FormName::frmAddWater);
    }
};

TEST_F(FormsTest, AFormIsLoadedOnceAndAppearsEachTimeUntilItIsUnloaded) {
    Entry.txtDay.Text = "left";
    Fill(FormName::frmAddWater);
    EXPECT_EQ(Entry.txtDay.Text, "left") << "one that isn't loaded isn't filled";
    Show(FormName::frmAddWater);
    EXPECT_THAT(Happened(), ElementsAre("Load", "Appear", "Present frmEntry"));
    Fill(FormName::frmAddWater);
    Hide(FormName::frmAddWater);
    Hide(FormName::frmAddWater);
    EXPECT_TRUE(IsLoaded(FormName::frmAddWater) && !Table.Shown);
    Show(FormName::frmAddWater);
    EXPECT_EQ(Entry.txtDay.Text, "filled");
    EXPECT_THAT(Happened(), ElementsAre("Withdraw frmEntry", "Appear", "Present frmEntry"));
    Focus(Entry.txtNote);
    Unload(FormName::frmAddWater);
    Unload(FormName::frmAddWater);
    EXPECT_FALSE(IsLoaded(FormName::frmAddWater) || Table.Shown);
    EXPECT_THAT(Happened(), ElementsAre("Unload", "Withdraw frmEntry"));
    Show(FormName::frmAddWater);
    EXPECT_EQ(Entry.txtDay.Text, "today") << "as it is designed";
    EXPECT_EQ(Table.Focused, nullptr);
}

TEST_F(FormsTest, AModalFormGivesBackItsAnswerAndIsLeftAsByItsFrame) {
    At entry = Opened();
    User.WhenShown(FormName::frmCuts, [] { At(FormName::frmCuts).Click("cmdYes"); });
    entry.Click("cmdDelete");
    EXPECT_THAT(Happened(), ElementsAre("Appear", "Present frmEntry", "Withdraw frmAsked", "back with yes"));
    EXPECT_FALSE(IsLoaded(FormName::frmCuts));
    entry.Close();
    EXPECT_THAT(Happened(), ElementsAre("Unload", "Withdraw frmEntry"));
}

TEST_F(FormsTest, AFormThatEndsOrFailsWhileItLoadsIsNotShownAndTheFailureIsToldAtTheEvent) {
    loading = Loading::EndsTheForm;
    Show(FormName::frmAddWater);
    EXPECT_THAT(Happened(), ElementsAre("Load", "Unload")) << "it is never presented";
    loading = Loading::Fails;
    EXPECT_THROW(Show(FormName::frmAddWater), RunTimeFailure);
    EXPECT_FALSE(IsLoaded(FormName::frmAddWater) || Table.Shown);
    Show(FormName::frmCuts);
    happened.clear();
    At(FormName::frmCuts).Click("cmdYes");
    EXPECT_THAT(User.Failures, ElementsAre("field7.dat is short."));
    EXPECT_FALSE(IsLoaded(FormName::frmAddWater));
    EXPECT_TRUE(FormOf(FormName::frmCuts).Shown);
    // Where nothing is left on the screen the form in work comes back.
    Hide(FormName::frmCuts);
    happened.clear();
    EXPECT_FALSE(RunEvent(FormOf(FormName::frmCuts), *FormOf(FormName::frmCuts).Find("cmdYes"), Event::Click));
    EXPECT_THAT(Happened(), ElementsAre("Load", "Present frmAsked"));
}

TEST_F(FormsTest, ACheckKeepsTheFocusButNotOnTheWayToAnExit) {
    At entry = Opened();
    entry.Type("txtAmount", "much").Click("cmdOK");
    EXPECT_TRUE(entry.Held());
    EXPECT_THAT(Happened(), ElementsAre("txtAmount checked")) << "the click is lost";
    EXPECT_EQ(Table.Focused, &Entry.txtAmount);
    EXPECT_THAT(User.FocusedControls, ElementsAre("frmEntry.txtAmount", "frmEntry.txtAmount (selected)"));
    At(FormName::frmAddWater).Enter("txtAmount");
    EXPECT_THAT(Happened(), IsEmpty()) << "it isn't left for itself";
    Entry.txtAmount.Visible = false;
    At(FormName::frmAddWater).Enter("txtDay");
    EXPECT_THAT(Happened(), IsEmpty()) << "what is hidden meanwhile keeps nobody";
    Entry.txtAmount.Visible = true;
    At(FormName::frmAddWater).Enter("txtAmount").Click("cmdCancel");
    EXPECT_THAT(Happened(), ElementsAre("Unload", "Withdraw frmEntry"));
}

TEST_F(FormsTest, OkRepeatsTheChecksOfBoxesThatWereChangedOrAreEmpty) {
    const auto ok = [this] { RunEvent(Table, *Table.Find("cmdOK"), Event::Click); };
    At entry = Opened();
    ok();
    EXPECT_THAT(Happened(), ElementsAre("txtAmount checked")) << "it is empty; the note is as it was";
    Entry.txtAmount.Text = "5";
    ok();
    EXPECT_THAT(Happened(), ElementsAre("recorded")) << "set by the program, not changed by the user";
    entry.Type("txtNote", "7").Type("txtAmount", "6");
    EXPECT_THAT(Happened(), ElementsAre("txtAmount checked", "txtNote checked")) << "each as it is left";
    ok();
    EXPECT_THAT(Happened(), ElementsAre("txtAmount checked", "txtNote checked", "recorded"));
    Entry.txtNote.Text = "wet";
    Entry.txtNote.Visible = false;
    ok();
    EXPECT_THAT(Happened(), ElementsAre("txtAmount checked", "recorded")) << "nobody can mend what is hidden";
}

TEST_F(FormsTest, ARowThatIsOnlyMovedToIsNoPick) {
    At entry = Opened();
    entry.Wheel("comboCrop");
    EXPECT_EQ(Entry.comboCrop.Index, -1) << "the focus is elsewhere";
    entry.Arrow("comboCrop", 2).Enter("txtDay");
    EXPECT_EQ(Entry.comboCrop.Index, -1) << "left without a pick";
    entry.Arrow("comboCrop").Wheel("comboCrop");
    EXPECT_THAT(Happened(), IsEmpty());
    entry.Press("comboCrop", Event::EnterKey).Arrow("comboCrop").Enter("txtDay");
    EXPECT_THAT(Happened(), ElementsAre("Alfalfa picked"));
    EXPECT_EQ(Entry.comboCrop.Text, "Alfalfa");
    EXPECT_FALSE(PressEnter(Table, *Table.Find("comboCrop"))) << "nothing is left to pick";
    // One that can be typed into takes what it shows when it is left, but not on the way to an exit.
    entry.Arrow("comboStation").Enter("txtDay");
    EXPECT_THAT(Happened(), ElementsAre("Maize typed"));
    entry.Enter("comboStation");
    Entry.comboStation.Type("Bea");
    entry.Enter("txtDay");
    EXPECT_THAT(Happened(), ElementsAre("Bea typed"));
    EXPECT_TRUE(entry.Held() && Table.Focused == &Entry.comboStation);
    Entry.comboStation.Type("Be");
    At(FormName::frmAddWater).Click("cmdCancel");
    EXPECT_THAT(Happened(), ElementsAre("Unload", "Withdraw frmEntry"));
}

TEST_F(FormsTest, EscClosesAnOpenCalendarBeforeItClosesTheForm) {
    At entry = Opened();
    Entry.Cal1.Visible = true;
    entry.Escape();
    EXPECT_TRUE(Table.Shown && !Entry.Cal1.Visible);
    entry.Escape();
    EXPECT_FALSE(Table.Shown);
}

TEST_F(FormsTest, AFormThatFailsAtItsEndIsGoneAllTheSame) {
    Opened();
    Table.Unload = [] { throw RunTimeFailure("The disk is full."); };
    At(FormName::frmAddWater).Click("cmdCancel");
    Table.Unload = nullptr;
    EXPECT_THAT(Happened(), ElementsAre("Withdraw frmEntry"));
    EXPECT_THAT(User.Failures, ElementsAre("The disk is full."));
}

TEST_F(FormsTest, AUserCanOnlyUseWhatIsThereAndOneOptionOfAGroup) {
    At entry = Opened();
    entry.Type("txtDay", "7/3").Click("optIrrigation");
    EXPECT_THAT(Happened(), ElementsAre("txtDay typed", "irrigation"));
    EXPECT_TRUE(Entry.txtDay.Typed && Entry.optIrrigation.Chosen && !Entry.optRain.Chosen);
    Entry.txtNote.Visible = Entry.cmdOK.Enabled = false;
    Entry.txtDay.ReadOnly = true;
    EXPECT_THROW(entry.Type("txtNote", "1"), std::logic_error);
    EXPECT_THROW(entry.Click("cmdOK"), std::logic_error);
    EXPECT_THROW(entry.Type("txtDay", "1"), std::logic_error);
    EXPECT_THROW(entry.Click("cmdPrint"), std::logic_error);
    EXPECT_THROW(At(FormName::frmCuts).Click("cmdYes"), std::logic_error) << "it isn't shown";
    EXPECT_THAT(Happened(), IsEmpty());
}

}  // namespace
}  // namespace veraqua
