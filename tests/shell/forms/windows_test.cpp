#include <cstdlib>
#include <filesystem>

#include <gmock/gmock.h>

#include "core/clock.h"
#include "core/directory.h"
#include "data/embedded.h"
#include "reports/forms/forms.h"
#include "shell/forms/about.h"
#include "shell/forms/configuration.h"
#include "shell/forms/data_path.h"
#include "shell/forms/farm.h"
#include "shell/forms/forms.h"
#include "shell/forms/main_menu.h"
#include "tests/support/builders.h"
#include "tests/support/script_screen.h"
#include "weather/forms/forms.h"
#include "workbench/forms/field_menu.h"
#include "workbench/forms/forms.h"

namespace veraqua {
namespace {

using testing::HasSubstr;

/// The program on a computer whose user has the data home of the test's directory; no data directory is open yet.
struct ShellTest : FormTest {
    ShellTest() {
        AddShellForms();
        AddWeatherForms();
        AddReportForms();
        AddWorkbenchForms();
        setenv("XDG_DATA_HOME", (Directory.Path() + "home").c_str(), 1);
        files::Close();
    }
    ~ShellTest() override { unsetenv("XDG_DATA_HOME"); }

    /// A data directory of that name, with nothing in it but the stations.
    std::string Make(const std::string& name) const {
        std::filesystem::create_directories(Directory.Path() + name);
        Directory.Put(name + "/weathdef.dat", EmbeddedFile("weathdef.dat"));
        return Directory.Path() + name + "/";
    }
};

TEST_F(ShellTest, StartsInTheFirstDirectoryThatServesAndEndsInOrder) {
    const std::string capital = Make("home/Veraqua");
    Directory.Put("home/Veraqua/network.txt", " http://other.example/data \r\nmore");
    Show(FormName::frmVeraqua);
    EXPECT_EQ(files::DirectoryPath(), capital);
    EXPECT_EQ(std::filesystem::file_size(capital + "stat.dat"), 4100U);
    EXPECT_EQ(State.BaseUrl, "http://other.example/data/");
    const auto& panels = The<frmVeraqua>().StatusBar1.Panels;
    EXPECT_EQ(panels[0] + panels[1], " Veraqua Ver 1.17   Today is 07-15-2003");

    const JulianValue today = State.TodayJulian;
    ++User.Today;
    MinutePassed();
    MinutePassed();
    EXPECT_EQ(User.Asked.size(), 1U) << "the new day is offered once";
    EXPECT_EQ(State.TodayJulian, today) << "and taken when the user says so";
    ++User.Today;
    User.Answers = {true};
    MinutePassed();
    EXPECT_EQ(State.TodayJulian, today + 2);
    EXPECT_EQ(panels[1], "  Today is 07-17-2003");

    User.WhenShown(FormName::frmAbout, [&] {
        EXPECT_EQ(The<frmAbout>().lblVersion.Caption + The<frmAbout>().txtDirectory.Text, "Ver 1.17" + capital);
    });
    At(FormName::frmVeraqua).Click("mnuAbout");
    Show(FormName::frmWeather);
    At(FormName::frmVeraqua).Escape();
    EXPECT_EQ(User.LastAsked(), "Veraqua: Do you want to leave Veraqua?");
    EXPECT_THROW(At(FormName::frmVeraqua).Close(), ProgramEnded);
    EXPECT_FALSE(IsLoaded(FormName::frmWeather) || IsLoaded(FormName::frmVeraqua));
    EXPECT_EQ(files::DirectoryPath(), "");
}

TEST_F(ShellTest, AsksForADirectoryThatItDoesNotFind) {
    const std::string other = Make("other");
    StartIn(other);  // as the command says
    Show(FormName::frmVeraqua);
    EXPECT_EQ(files::DirectoryPath(), other);
    Unload(FormName::frmVeraqua);
    StartIn({});
    User.WhenShown(FormName::frmPath, [&] {
        frmPath& form = The<frmPath>();
        EXPECT_EQ(form.lblMsg.Caption, "The file WEATHDEF.DAT was not found at the \ndefault location " +
                                           Directory.Path() + "home/veraqua/ or " + Directory.Path() +
                                           "home/Veraqua/\n\nPlease find it below or exit.  Thank You. ");
        At(FormName::frmPath).Click("cmd_Find");
        form.Dir1.Path = Directory.Path() + "gone/";
        At(FormName::frmPath).Click("Dir1");
        EXPECT_EQ(User.LastSaid(), "Veraqua: " + Directory.Path() + "gone/ can't be read: No such file or directory.");
        EXPECT_EQ(form.Dir1.Path, form.lblPath.Caption) << "the choice before";
        form.Dir1.Path = Directory.Path();
        At(FormName::frmPath).Click("Dir1").Click("cmd_OK");
        EXPECT_EQ(User.LastSaid(),
                  "Still Missing!: The required file <weathdef.dat> was not found at: " + Directory.Path());
        form.Dir1.Path = other;
        At(FormName::frmPath).Click("Dir1").Click("cmd_OK");
    });
    Show(FormName::frmVeraqua);
    EXPECT_EQ(files::DirectoryPath(), other);
}

TEST_F(ShellTest, MakesADirectoryForANewUserOrEnds) {
    for (const auto& [button, fields] : {std::pair{"cmd_Empty", false}, {"cmd_Sample", true}}) {
        User.WhenShown(FormName::frmPath, [button = button] { At(FormName::frmPath).Click(button); });
        Show(FormName::frmVeraqua);
        EXPECT_EQ(files::DirectoryPath(), Directory.Path() + "home/veraqua/");
        EXPECT_EQ(State.FieldCount > 0, fields);
        Unload(FormName::frmVeraqua);
        std::filesystem::remove_all(Directory.Path() + "home");
    }
    User.WhenShown(FormName::frmPath, [] {});
    EXPECT_THROW(Show(FormName::frmVeraqua), ProgramEnded);
    EXPECT_FALSE(Directory.Has("home"));
    Make("home/veraqua");  // the capital one isn't looked at
    Directory.Put("home/veraqua/weathdef.dat", "33, 6\nFENWOLD\n");
    FormOf(FormName::frmVeraqua).Loaded = false;
    EXPECT_THROW(Show(FormName::frmVeraqua), ProgramEnded);
    EXPECT_THAT(User.LastSaid(), HasSubstr("weathdef.dat"));
}

TEST_F(ShellTest, LeadsFromTheListOfTodayToTheField) {
    const std::string path = Make("home/veraqua");
    Show(FormName::frmVeraqua);
    frmVeraqua& form = The<frmVeraqua>();
    EXPECT_EQ(form.lblTodayNote.Caption, "No fields yet. Click on Field Options to add one.");
    EXPECT_THROW(At(FormName::frmVeraqua).Click("cmdOpenToday"), std::logic_error);
    AField().Id("FULL").StoreAt(1);
    AField().Id("DRY").StoreAt(2);
    State.Stat[2].NextIrrDay = User.Today;
    State.Stat[2].NextIrrAmount = 40;
    User.WeatherSource = [](const DayRange&) { return WeatherChoice::Taken; };
    State.TodayJulian = State.Stat[1].LastDay = State.Stat[2].LastDay = State.WeatherLastJulian = User.Today;
    Show(FormName::frmVeraqua);
    EXPECT_EQ(form.lblTodayNote.Caption, "2 fields, 1 needs water. Open a field with a double click or Enter.");
    User.WhenShown(FormName::frmReportOptions, [] { At(FormName::frmReportOptions).Click("cmd_OK"); });
    At(FormName::frmVeraqua).Type("txtFilter", "full").Click("cmdSaveToday").Type("txtFilter", "");
    EXPECT_THAT(*files::Read("Today.csv"), testing::EndsWith("\nFULL,MAIZE GRAIN,No data yet,0,2003-05-01,50,,,,,\n"));
    At(FormName::frmVeraqua).Pick("Today", 1);
    EXPECT_EQ(State.CurrentField, 1);
    EXPECT_FALSE(FormOf(FormName::frmVeraqua).Shown);
    EXPECT_EQ(The<frmField>().lbl_ID.Caption, "Field ID is:  FULL");
    At(FormName::frmField).Click("cmd_return");
    form.Today.Index = -1;
    At(FormName::frmVeraqua).Click("cmdOpenToday");  // the worst
    EXPECT_EQ(State.CurrentField, 2);
    At(FormName::frmField).Close();
    User.WeatherSource = nullptr;  // and the user brings none
    At(FormName::frmVeraqua).Click("cmdOpenToday");
    EXPECT_TRUE(State.CurrentField == 0 && !The<frmField>().lbl_ID.Visible);
    At(FormName::frmField).Close();
    At(FormName::frmVeraqua).Click("cmdPrintToday");
    EXPECT_EQ(User.Printed.back().Title, "Veraqua fields today 07-15-2003");
    EXPECT_EQ(User.Told.back().Text, "The list of fields was sent to your default printer");
}

TEST_F(ShellTest, GoesFromOneFarmToAnotherAndBack) {
    const std::string home = Make("home/veraqua");
    const std::string damaged = Make("damaged");
    Directory.Put("damaged/weathdef.dat", "33, 6\nFENWOLD\n");
    Show(FormName::frmVeraqua);
    frmVeraqua& form = The<frmVeraqua>();
    AField().StoreAt(1);
    State.Stat[1].LastDay = User.Today;
    SaveFieldRow(User, 1);
    StartUp(User);
    State.EnglishUnits = false;
    State.StationName = "HILL";
    const auto open = [&](const std::string& path, const char* name, const char* button) {
        User.WhenShown(FormName::frmFarm, [=] {
            The<frmFarm>().Dir1.Path = path;
            At(FormName::frmFarm).Click("Dir1").Type("txtName", name).Click(button);
        });
        At(FormName::frmVeraqua).Click("mnuOther");
    };
    for (const std::string& refused : {damaged, home, Directory.Path() + "nowhere/"}) {
        User.Failures.clear();
        open(refused, "", "cmd_OK");
        EXPECT_EQ(User.Failures.size(), 1U) << refused;
        EXPECT_EQ(files::DirectoryPath(), home);
        EXPECT_EQ(State.FieldCount, 1);
        EXPECT_EQ(State.StationName, "HILL");
    }
    files::Write("still.txt", "the lock is held");
    open(Directory.Path(), "other", "cmd_Empty");
    const std::string other = Directory.Path() + "other/";
    EXPECT_EQ(files::DirectoryPath(), other);
    EXPECT_EQ(form.StatusBar1.Panels[2], other);
    EXPECT_EQ(State.FieldCount, 0);
    EXPECT_EQ(State.StationName, "UNKNOWN");
    EXPECT_FALSE(State.EnglishUnits);
    EXPECT_EQ(form.mnuRecent[0].Caption, home);
    EXPECT_FALSE(form.mnuRecent[1].Visible);
    open(other, "", "cmd_Sample");  // there is one already
    EXPECT_THAT(User.Failures.back(), HasSubstr("is open already"));

    Unload(FormName::frmVeraqua);
    Show(FormName::frmVeraqua);
    EXPECT_EQ(files::DirectoryPath(), other);
    At(FormName::frmVeraqua).Click("mnuRecent(0)");
    EXPECT_EQ(files::DirectoryPath(), home);
    EXPECT_EQ(form.Today.Rows.size(), 1U);
    At(FormName::frmVeraqua).Click("mnuRecent(0)");
    Unload(FormName::frmVeraqua);
    std::filesystem::remove_all(other);
    Show(FormName::frmVeraqua);
    EXPECT_EQ(User.LastSaid(), "Veraqua: The farm of last time isn't there now: " + other);
    EXPECT_EQ(files::DirectoryPath(), home);
}

struct Options : ShellTest {
    frmConfig& Form = The<frmConfig>();

    Options() {
        Make("home/veraqua");
        Show(FormName::frmVeraqua);
        At(FormName::frmVeraqua).Click("cmdConfig");
    }
};

TEST_F(Options, PutADateInThePlaceOfTheComputers) {
    At(FormName::frmConfig).Click("mnuDate");
    for (const char* text : {"2/30/2005", "2/29/2003", "13/1/2003", "5/5", "5/5/2005/", "", "02/28/05"}) {
        At(FormName::frmConfig).Type("txtDate", text).Click("cmdOK");
        EXPECT_EQ(User.LastSaid(),
                  std::string_view(text).ends_with("/05")  // a day, but not of this calendar
                      ? "Date input error: Please enter a date (greater than 1900) formated like: MM/DD/YYYY"
                      : "Date not accepted!: Please enter date like: dd/mm/yyyy")
            << text;
        EXPECT_TRUE(State.TodayJulian == JulianFromDate(7, 15, 2003) && User.Now() == State.TodayJulian) << text;
    }
    const int century = YearOf(ClockDate()) + 100;
    At(FormName::frmConfig).Type("txtDate", fmt::format("1/1/{}", century)).Click("cmdOK");
    EXPECT_THAT(User.LastSaid(),
                testing::StartsWith(fmt::format("Date not accepted!: 01-01-{} is a century or more from", century)));
    At(FormName::frmConfig).Type("txtDate", "7/16/2004").Click("cmdOK");
    EXPECT_EQ(User.Asked.size(), 1U);
    EXPECT_EQ(User.Asked.back().Text, "07-16-2004 is more than a year from 07-15-2003.\nDo you want it to be today?");
    EXPECT_EQ(State.TodayJulian, JulianFromDate(7, 15, 2003));
    At(FormName::frmConfig).Type("txtDate", "7/15/2004").Click("cmdOK");  // a year to the day
    User.OtherAnswer = true;
    At(FormName::frmConfig).Type("txtDate", " 2/28/2005 ").Click("cmdOK");
    EXPECT_EQ(User.Asked.size(), 1U);
    EXPECT_EQ(User.LastSaid(), "Date Set: New Date set to 02-28-2005.  (Julian Value = 732311).");
    EXPECT_EQ(State.TodayJulian, 732311);
    EXPECT_EQ(Form.StatusBar1.Panels[1], "  Today is 02-28-2005");
    EXPECT_EQ(The<frmVeraqua>().StatusBar1.Panels[1], Form.StatusBar1.Panels[1]);
}

TEST_F(Options, SetTheUnitsAndTheDisplay) {
    At(FormName::frmConfig).Click("mnuUnits").Click("optMetric").Click("mnuDisplay").Pick("lstDisplay", 7).Close();
    EXPECT_FALSE(State.EnglishUnits);
    EXPECT_EQ(State.DisplayDays, 16);
}

TEST_F(Options, AreKeptForTheNextStartWhereTheUserWantsIt) {
    const auto restart = [] {
        Unload(FormName::frmVeraqua);
        Show(FormName::frmVeraqua);
        At(FormName::frmVeraqua).Click("cmdConfig");
        At(FormName::frmConfig).Click("mnuUnits");
    };
    At(FormName::frmConfig).Click("mnuUnits").Click("chkKeep").Click("optMetric").Click("mnuDisplay");
    At(FormName::frmConfig).Pick("lstDisplay", 7).Close();
    restart();
    EXPECT_TRUE(!State.EnglishUnits && State.DisplayDays == 16 && Form.chkKeep.Checked);
    At(FormName::frmConfig).Click("chkKeep").Close();
    restart();
    EXPECT_TRUE(State.EnglishUnits && State.DisplayDays == 12 && !Form.chkKeep.Checked);
}

}  // namespace
}  // namespace veraqua
