#include "shell/forms/configuration.h"

#include <algorithm>
#include <cstdlib>
#include <initializer_list>
#include <string>

#include <fmt/format.h>

#include "core/base/text.h"
#include "core/clock.h"
#include "core/state.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "shell/forms/kept.h"
#include "shell/forms/main_menu.h"

namespace veraqua {

namespace {

using Group = std::initializer_list<Control*>;

void SetVisible(Group controls, bool visible) {
    for (Control* control : controls) control->Visible = visible;
}

void HideGroups(frmConfig& form) {
    SetVisible({&form.lblNewDate, &form.txtDate, &form.cmd_Calendar, &form.Cal1, &form.cmdOK, &form.frmUnits,
                &form.lblUnits, &form.optEnglish, &form.lblEnglish, &form.optMetric, &form.lblmetric,
                &form.lblSetDisplay, &form.lstDisplay, &form.lblDisplay, &form.txtDisplays, &form.chkKeep},
               false);
}

void Load(frmConfig& form) {
    form.Caption = "Configuration Options, Veraqua " + State.VersionString;
    HideGroups(form);
    form.chkKeep.Checked = OptionsAreKept();
    ShowProgramIn(form.StatusBar1);
}

void mnuDate_Click(frmConfig& form) {
    HideGroups(form);
    SetVisible({&form.lblNewDate, &form.txtDate, &form.cmd_Calendar, &form.cmdOK}, true);
    Focus(form.txtDate);
}

void cmd_Calendar_Click(frmConfig& form) {
    form.Cal1.Day = TheScreen().Now();
    form.Cal1.Visible = true;
}

void Cal1_Click(frmConfig& form) { form.txtDate.Text = JulianToLongText(form.Cal1.Day); }

/// A year is that from a day of a month to the same day of the next year.
bool IsMoreThanAYearFrom(JulianValue day, JulianValue other) {
    const Date earlier = DateFromJulian(std::min(day, other));
    return std::max(day, other) > JulianFromDate(earlier.Month, earlier.Day, earlier.Year + 1);
}

/// Whether the user means `day` to be today. Weather of each year up to it would be wanted, and a year's files have but
/// two digits: a century away they are those of another year.
bool IsMeant(JulianValue day) {
    const JulianValue clock = ClockDate();
    const std::string text = JulianToLongText(day);
    if (std::abs(YearOf(day) - YearOf(clock)) >= 100) {
        TheScreen().Tell(fmt::format("{} is a century or more from the date of your computer, {}. Look at the year.",
                                     text, JulianToLongText(clock)),
                         "Date not accepted!", Icon::Warning);
        return false;
    }
    const JulianValue now = TheScreen().Now();
    if (!IsMoreThanAYearFrom(day, clock) || !IsMoreThanAYearFrom(day, now)) return true;
    return TheScreen().YesNo(
        fmt::format("{} is more than a year from {}.\nDo you want it to be today?", text, JulianToLongText(now)),
        "Date Set", Icon::Question, true);
}

void cmdOK_Click(frmConfig& form) {
    if (!IsCalendarDay(Trimmed(form.txtDate.Text))) {
        // The day stands first in these words, but the month is read first.
        TheScreen().Tell("Please enter date like: dd/mm/yyyy", "Date not accepted!", Icon::Warning);
        return;
    }
    const JulianValue day = TypedDay(form.txtDate);
    if (day == 0) return;
    if (!IsMeant(day)) return Focus(form.txtDate);
    State.TodayJulian = day;
    TheScreen().SetNow(day);
    ShowProgramIn(form.StatusBar1);
    ShowProgramIn(The<frmVeraqua>().StatusBar1);
    TheScreen().Tell(fmt::format("New Date set to {}.  (Julian Value = {}).", form.txtDate.Text, day), "Date Set");
}

void mnuUnits_Click(frmConfig& form) {
    HideGroups(form);
    form.optEnglish.Chosen = State.EnglishUnits;
    form.optMetric.Chosen = !State.EnglishUnits;
    SetVisible({&form.frmUnits, &form.lblUnits, &form.optEnglish, &form.lblEnglish, &form.optMetric, &form.lblmetric,
                &form.chkKeep},
               true);
}

/// What is chosen while the box is checked is kept as well.
void chkKeep_Click(frmConfig& form) {
    if (form.chkKeep.Checked)
        KeepOptions();
    else
        ForgetOptions();
}

void Choose(frmConfig& form, bool english) {
    State.EnglishUnits = english;
    chkKeep_Click(form);
}

void optEnglish_Click(frmConfig& form) { Choose(form, true); }

void optMetric_Click(frmConfig& form) { Choose(form, false); }

void mnuDisplay_Click(frmConfig& form) {
    HideGroups(form);
    form.lstDisplay.Index = State.DisplayDays - FewestDisplays;
    form.txtDisplays.Text = fmt::format("{}", State.DisplayDays);
    SetVisible({&form.lblSetDisplay, &form.lstDisplay, &form.lblDisplay, &form.txtDisplays, &form.chkKeep}, true);
}

void lstDisplay_Click(frmConfig& form) {
    const ListItem* row = form.lstDisplay.Selected();
    if (row == nullptr) return;
    State.DisplayDays = static_cast<std::int16_t>(row->Data);
    form.txtDisplays.Text = row->Text;
    chkKeep_Click(form);
}

void Leave(frmConfig&) {
    Show(FormName::frmVeraqua);
    Unload(FormName::frmConfig);
}

}  // namespace

frmConfig::frmConfig() {
    Caption = "Veraqua Options";
    for (int displays = FewestDisplays; displays <= MostDisplays; ++displays)
        lstDisplay.Add(fmt::format("{}", displays), displays);
    txtDisplays.ReadOnly = true;
}

FormTable TableOf(frmConfig& form) {
    FormFor table(form, FormName::frmConfig, "frmConfig");
    table.Add("mnuDate", form.mnuDate).Click(mnuDate_Click);
    table.Add("mnuUnits", form.mnuUnits).Click(mnuUnits_Click);
    table.Add("mnuDisplay", form.mnuDisplay).Click(mnuDisplay_Click);
    table.Add("mnuReturn", form.mnuReturn).Click(Leave).Exit();
    table.Add("lblNewDate", form.lblNewDate);
    table.Add("txtDate", form.txtDate).EnterKey(cmdOK_Click);
    table.Add("cmd_Calendar", form.cmd_Calendar).Click(cmd_Calendar_Click);
    table.Add("Cal1", form.Cal1).Click(Cal1_Click);
    table.Add("cmdOK", form.cmdOK).Click(cmdOK_Click);
    table.Add("frmUnits", form.frmUnits);
    table.Add("lblUnits", form.lblUnits);
    table.Add("optEnglish", form.optEnglish).Click(optEnglish_Click);
    table.Add("lblEnglish", form.lblEnglish);
    table.Add("optMetric", form.optMetric).Click(optMetric_Click);
    table.Add("lblmetric", form.lblmetric);
    table.Add("lblSetDisplay", form.lblSetDisplay);
    table.Add("lstDisplay", form.lstDisplay).Click(lstDisplay_Click);
    table.Add("lblDisplay", form.lblDisplay);
    table.Add("txtDisplays", form.txtDisplays);
    table.Add("chkKeep", form.chkKeep).Click(chkKeep_Click);
    table.Add("Cmd_Exit", form.Cmd_Exit).Click(Leave).Exit();
    table.Add("StatusBar1", form.StatusBar1);
    table.Load(Load).Close(Leave);
    return table.Done();
}

}  // namespace veraqua
