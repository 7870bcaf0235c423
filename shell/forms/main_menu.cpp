#include "shell/forms/main_menu.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "core/directory.h"
#include "core/files/files.h"
#include "core/state.h"
#include "reports/forms/report_options.h"
#include "reports/report_file.h"
#include "reports/today_list.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "shell/data_search.h"
#include "shell/forms/configuration.h"
#include "shell/forms/farm.h"
#include "shell/forms/kept.h"
#include "weather/network_address.h"

namespace veraqua {

namespace {

/// The data directory that the program was told to begin in.
std::optional<std::string>& DirectoryAtStart() {
    static std::optional<std::string> directory;
    return directory;
}

/// Opens the farm of last time, where it was opened from the menu and is still there.
bool OpenFarmOfLastTime() {
    const std::vector<std::string> farms = KeptFarms();
    if (farms.empty()) return false;
    if (OpenDataDirectory({farms.front()}, files::Access::Write)) return true;
    TheScreen().Tell(fmt::format("The farm of last time isn't there now: {}", farms.front()));
    return false;
}

/// Opens the data directory and reads its field directory. Where the user has to point to it, this goes on after that.
void StartInDataDirectory() {
    const std::vector<std::string> usual = DefaultDataDirectories();
    const bool isOpen = DirectoryAtStart() ? OpenDataDirectory({*DirectoryAtStart()}, files::Access::Write)
                                           : OpenFarmOfLastTime() || OpenDataDirectory(usual, files::Access::Write);
    if (!isOpen) ShowModal(FormName::frmPath);
    StartUp(TheScreen());
    TakeNetworkOfUser();
    TakeKeptOptions();
}

void Load(frmVeraqua& form) {
    State.StartDate = TheScreen().Now();
    try {
        StartInDataDirectory();
    } catch (const Refusal& refusal) {  // another program holds the directory
        TheScreen().Tell(refusal.what(), ProgramTitle, Icon::Stop);
        TheScreen().EndProgram();
    } catch (const RunTimeFailure& failure) {  // a file that nothing can do without is damaged
        TheScreen().Tell(failure.what(), ProgramTitle, Icon::Stop);
        ForgetFarm(files::DirectoryPath());
        TheScreen().EndProgram();
    }
    ShowProgramIn(form.StatusBar1);
}

/// Brings another window up in the place of this one.
void GoTo(FormName form) { ShowInPlaceOf(FormName::frmVeraqua, form); }

void cmdfields_Click(frmVeraqua&) {
    GoTo(FormName::frmField);
    Fill(FormName::frmField);
}

void ShowRecent(frmVeraqua& form) {
    form.Recent = KeptFarms();
    std::erase(form.Recent, files::DirectoryPath());
    form.Recent.resize(std::min(form.Recent.size(), form.mnuRecent.size()));
    for (std::size_t i = 0; i < form.mnuRecent.size(); ++i) {
        form.mnuRecent[i].Visible = form.mnuRecent[i].Enabled = i < form.Recent.size();
        if (form.mnuRecent[i].Visible) form.mnuRecent[i].Caption = form.Recent[i];
    }
}

void ShowToday(frmVeraqua& form) {
    FillTodayList(form.Today, form.txtFilter.Text);
    const bool hasFields = State.FieldCount > 0;
    form.lblTodayNote.Caption = hasFields ? TodaySummary() + " Open a field with a double click or Enter."
                                          : "No fields yet. Click on Field Options to add one.";
    for (Button* button : {&form.cmdOpenToday, &form.cmdPrintToday, &form.cmdSaveToday})
        button->Enabled = !form.Today.Rows.empty();
}

void Appear(frmVeraqua& form) {
    form.StatusBar1.Panels[2] = files::DirectoryPath();
    ShowRecent(form);
    ShowToday(form);
}

void Today_Click(frmVeraqua& form) {
    const Table::Row* row = form.Today.Selected();
    if (row == nullptr) return;
    GoTo(FormName::frmField);  // which forgets, where it is loaded anew, the field in work
    State.CurrentField = static_cast<std::int16_t>(row->Data);
    State.CallerForm = "frmVeraqua";
    Fill(FormName::frmField);
}

void cmdOpenToday_Click(frmVeraqua& form) {
    if (form.Today.Selected() == nullptr) form.Today.Index = 0;
    Today_Click(form);
}

void cmdPrintToday_Click(frmVeraqua& form) {
    PrintDocument(PrintedTodayList(form.Today), "The list of fields was sent to your default printer");
}

void cmdSaveToday_Click(frmVeraqua& form) {
    if (ChooseDestination(SavedReport::TodayList, SavedTodayList.DefaultName) == ReportDestination::Disk)
        SaveReport(TheScreen(), SavedTodayList, TodayListCsv(form.Today));
}

void cmdWeather_Click(frmVeraqua&) {
    State.CallerForm = "frmVeraqua";
    GoTo(FormName::frmWeather);
}

void cmdConfig_Click(frmVeraqua&) { GoTo(FormName::frmConfig); }

void cmdHelp_Click(frmVeraqua&) { ShowModal(FormName::frmHelp); }

void mnuOther_Click(frmVeraqua&) { ShowModal(FormName::frmFarm); }

void mnuRecent_Click(frmVeraqua& form, int index) { GoToFarm(form.Recent.at(static_cast<std::size_t>(index))); }

void mnuAbout_Click(frmVeraqua&) { ShowModal(FormName::frmAbout); }

void cmdExit_Click(frmVeraqua&) {
    Unload(FormName::frmVeraqua);
    TheScreen().EndProgram();
}

/// Offers the new day when midnight has passed. A date that the user has set stays until the program ends.
void Minute(frmVeraqua& form) {
    const JulianValue day = TheScreen().Now();
    if (day == State.TodayJulian || day == form.DayOffered) return;
    form.DayOffered = day;
    const std::string text =
        fmt::format("A new day has begun: {}. Veraqua still works with {}.\nDo you want to go on with the new day?",
                    JulianToLongText(day), JulianToLongText(State.TodayJulian));
    if (!TheScreen().YesNo(text, "New Day", Icon::Question, false)) return;
    State.TodayJulian = day;
    ShowProgramIn(form.StatusBar1);
    if (IsLoaded(FormName::frmConfig)) ShowProgramIn(The<frmConfig>().StatusBar1);
    ShowToday(form);
}

/// Esc is pressed by mistake more easily than the button.
void Escape(frmVeraqua& form) {
    if (TheScreen().YesNo("Do you want to leave Veraqua?", ProgramTitle, Icon::Question, true)) cmdExit_Click(form);
}

void Unloaded(frmVeraqua&) {
    State.CallerForm.clear();  // no window goes back to this one
    for (const FormName form : {FormName::frmWeather, FormName::frmKESTA, FormName::frmField, FormName::frmFieldData,
                                FormName::frmFieldDetails})
        Unload(form);
    files::Close();
}

}  // namespace

void StartIn(std::optional<std::string> directory) { DirectoryAtStart() = std::move(directory); }

void ShowProgramIn(StatusBar& bar) {
    bar.Panels[0] = " Veraqua " + State.VersionString + " ";
    bar.Panels[1] = "  Today is " + JulianToLongText(TheScreen().Now());
}

FormTable TableOf(frmVeraqua& form) {
    FormFor table(form, FormName::frmVeraqua, "frmVeraqua");
    table.Add("Label1", form.Label1);
    table.Add("Label2", form.Label2);
    table.Add("Image2", form.Image2);
    table.Add("Label4", form.Label4);
    table.Add("cmdfields", form.cmdfields).Click(cmdfields_Click);
    table.Add("Label5", form.Label5);
    table.Add("cmdWeather", form.cmdWeather).Click(cmdWeather_Click);
    table.Add("Label6", form.Label6);
    table.Add("cmdConfig", form.cmdConfig).Click(cmdConfig_Click);
    table.Add("cmdHelp", form.cmdHelp).Click(cmdHelp_Click);
    table.Add("Label8", form.Label8);
    table.Add("cmdExit", form.cmdExit).Click(cmdExit_Click).Exit();
    table.Add("lblToday", form.lblToday);
    table.Add("lblFilter", form.lblFilter);
    table.Add("txtFilter", form.txtFilter).Change(ShowToday);
    table.Add("Today", form.Today).Click(Today_Click);
    table.Add("lblTodayNote", form.lblTodayNote);
    table.Add("cmdOpenToday", form.cmdOpenToday).Click(cmdOpenToday_Click);
    table.Add("cmdPrintToday", form.cmdPrintToday).Click(cmdPrintToday_Click);
    table.Add("cmdSaveToday", form.cmdSaveToday).Click(cmdSaveToday_Click);
    table.Add("mnuFarm", form.mnuFarm);
    table.Add("mnuOther", form.mnuOther).Click(mnuOther_Click);
    table.Add("mnuRecent", form.mnuRecent).Click(mnuRecent_Click);
    table.Add("mnuHelp", form.mnuHelp);
    table.Add("mnuAbout", form.mnuAbout).Click(mnuAbout_Click);
    table.Add("StatusBar1", form.StatusBar1);
    table.Load(Load).Appear(Appear).Fill(ShowToday).Minute(Minute).Close(cmdExit_Click).Escape(Escape).Unload(Unloaded);
    return table.Done();
}

}  // namespace veraqua
