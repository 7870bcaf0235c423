#include "weather/forms/weather_menu.h"

#include <initializer_list>
#include <vector>

#include <fmt/format.h>

#include "catch_up/weather_commands.h"
#include "core/field_in_work.h"
#include "core/state.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "weather/coverage.h"
#include "weather/day_rows.h"
#include "weather/default_days.h"
#include "weather/default_weather.h"
#include "weather/forms/changed_weather.h"
#include "weather/forms/day_entry.h"
#include "weather/forms/download.h"
#include "weather/forms/station_list.h"
#include "weather/import.h"

namespace veraqua {

namespace {

constexpr std::string_view MainMenu = "frmVeraqua";

/// Shows `day`, the last one written, and above it `last`, the last of the range.
void ShowDay(frmWeather& form, const WeatherDay& day, JulianValue last) {
    for (const DayRow row : AllDayRows) {
        form.lbl_d[IndexOf(row)].Caption = LabelOf(row, State.EnglishUnits);
        form.lbl_az[IndexOf(row)].Caption = TextOrMissing(day, row, State.EnglishUnits, "0.0", "missing");
    }
    form.lbl_info[0].Caption = "Weather data for Station #" + State.StationCode + " on " + JulianToShortText(last);
    ShowPanels(form);
}

/// After a download or import that came to nothing.
void LeaveFailed(frmWeather& form) {
    if (ChooserHasCalled())
        Unload(FormName::frmWeather);
    else
        ClearPanels(form);
}

void ShowReport(frmWeather& form, const CommandReport& report) {
    if (report.Ending == CommandEnding::StationMissing) mnu_KESTAloc_Click(form);
    if (report.Ending == CommandEnding::Failed) LeaveFailed(form);
    if (report.Ending != CommandEnding::Done) return;
    ShowDay(form, report.LastLine, report.Range.To);
    form.StatusBar1.Panels[0] = report.Status;
    form.lblUpdate.Caption = report.FieldsUpdated;
    form.lblUpdate.Visible = report.CatchUp.has_value();
    if (report.CatchUp) OfferRuns(form, report.Range, report.CatchUp->Run);
}

/// Where the chooser has called, no field catches up. Appending takes the text that the chooser has downloaded, or that
/// is here otherwise, for the chooser's range and without a question about it; overwriting is what it always is.
CommandReport BringForChooser(WeatherCommand command, const DayRange& wanted) {
    if (WeatherCoefficientsOf(RegionOfChosenStation(State.StationCode)))
        return command == WeatherCommand::Append ? ImportRange(TheScreen(), command, wanted, OpenDays::Offer)
                                                 : FetchWeather(TheScreen(), command, DownloadText, OpenDays::Offer);
    // The user has picked a station without default weather: its gaps must not be filled with a foreign one's.
    TellDownloadFailed(TheScreen());
    CommandReport report;
    report.Ending = CommandEnding::Failed;
    return report;
}

void BringFromNetwork(frmWeather& form, WeatherCommand command) {
    form.lblUpdate.Visible = false;
    ShowReport(form, ChooserHasCalled() ? BringForChooser(command, form.Wanted)
                                        : BringWeather(TheScreen(), command, DownloadText, OpenDays::Offer));
}

/// False if the user wants to keep the measured days that default weather of `range` would replace.
bool MayReplaceMeasuredDays(const DayRange& range) {
    const int days = MeasuredDays(State.StationCode, range);
    if (days == 0) return true;
    return TheScreen().YesNo(fmt::format("Default weather would replace {} measured day{} between {} and {}.\n"
                                         "Do you want to replace {}?",
                                         days, days == 1 ? "" : "s", JulianToShortText(range.From),
                                         JulianToShortText(range.To), days == 1 ? "it" : "them"),
                             "Weather Info", Icon::Question, true);
}

/// The days of the station chooser if it has called, else this year through yesterday.
DayRange RangeOfDefaultWeather(const frmWeather& form) {
    if (ChooserHasCalled()) return form.Wanted;
    return {JulianFromDate(1, 1, YearOf(TheScreen().Now())), State.TodayJulian - 1};
}

/// Writes default weather and shows its last day.
void LoadDefaultWeather(frmWeather& form) {
    ClearPanels(form);
    const DayRange range = RangeOfDefaultWeather(form);
    WantWeather(range);
    BringDefaultWeather(range);
    if (ChooserHasCalled()) form.Cmd_Exit.Caption = "OK";
    form.StatusBar1.Panels[0] = "Weather files updated with DEFAULT Data between " + JulianToShortText(range.From) +
                                " and " + JulianToShortText(range.To);
    ShowDay(form, DefaultDay(State.WeatherCoeff, DayOfYearFromJulian(range.To).DayOfYear), range.To);
}

void Load(frmWeather& form) {
    ClearPanels(form);
    if (State.StationCode == NoStation) mnu_KESTAloc_Click(form);
    State.WeatherYearSuffix = YearSuffix(YearOf(TheScreen().Now()));
    ShowStationOn(form, form.StatusBar1);
    // The chooser shows this window so that the user sees the default weather that they take.
    if (ChooserHasCalled()) LoadDefaultWeather(form);
}

void Unloaded(frmWeather& form) {
    EnableMenus(form);
    ClearPanels(form);
    if (State.CallerForm == MainMenu) Show(FormName::frmVeraqua);
}

void Leave(frmWeather& form) {
    std::vector<TextBox*> boxes{&form.txtDate};
    for (TextBox& box : form.txt_w) boxes.push_back(&box);
    if (MayLeaveTyped(boxes)) Unload(FormName::frmWeather);
}

/// Another station is in work: nothing of the one before stays on the screen, nor the list that it was picked from.
void ShowStationPicked(frmWeather& form) {
    ClearPanels(form);
    form.ComboKESTA.Select(-1);
    ShowStationOn(form, form.StatusBar1);
}

bool ComboKESTA_Click(frmWeather& form) {
    if (!ChooseStation(form.ComboKESTA)) return false;
    ShowStationPicked(form);
    return true;
}

/// A row that was only touched counts as picked when the user goes on.
bool ComboKESTA_Leave(frmWeather& form) {
    const bool isTouched = form.ComboKESTA.Selected() != nullptr && form.ComboKESTA.Index != form.OpenedAt;
    return !isTouched || ComboKESTA_Click(form);
}

void mnu_view_Click(frmWeather& form) {
    const InWork before;
    ShowModal(FormName::frmViewWeather);
    if (!before.HasStation()) ShowStationPicked(form);
}

template <class Controls>
void SetVisible(Controls& controls, bool visible) {
    for (Control& control : controls) control.Visible = visible;
}

}  // namespace

FormTable TableOf(frmWeather& form) {
    FormFor table(form, FormName::frmWeather, "frmWeather");
    table.Add("mnu_weather", form.mnu_weather);
    table.Add("mnu_kesta", form.mnu_kesta);
    table.Add("mnu_AppendWeather", form.mnu_AppendWeather).Click(mnu_AppendWeather_Click);
    table.Add("mnu_OverwriteWeather", form.mnu_OverwriteWeather).Click(mnu_OverwriteWeather_Click);
    table.Add("mnu_enter", form.mnu_enter).Click(mnu_enter_Click);
    table.Add("mnu_default", form.mnu_default).Click(mnu_default_Click);
    table.Add("mnu_KESTAloc", form.mnu_KESTAloc).Click(mnu_KESTAloc_Click);
    table.Add("mnu_view", form.mnu_view).Click(mnu_view_Click);
    table.Add("mnu_return", form.mnu_return).Click(Leave).Exit();
    table.Add("lblKESTA", form.lblKESTA);
    table.Add("ComboKESTA", form.ComboKESTA).Click(ComboKESTA_Click).Leave(ComboKESTA_Leave);
    table.Add("lbl_SelectDate", form.lbl_SelectDate);
    table.Add("txtDate", form.txtDate).EnterKey(cmd_DateOK_Click);
    table.Add("cmd_Calendar", form.cmd_Calendar).Click(cmd_Calendar_Click);
    table.Add("Cal1", form.Cal1).Click(Cal1_Click);
    table.Add("cmd_DateOK", form.cmd_DateOK).Click(cmd_DateOK_Click);
    table.Add("lbl_kesta", form.lbl_kesta);
    table.Add("lbl_EditWeather", form.lbl_EditWeather);
    table.Add("lbl_info", form.lbl_info);
    table.Add("lbl_d", form.lbl_d);
    table.Add("lbl_az", form.lbl_az);
    table.Add("txt_w", form.txt_w).Leave(txt_w_Leave);
    table.Add("cmd_OK", form.cmd_OK).Click(cmd_OK_Click);
    table.Add("lblUpdate", form.lblUpdate);
    table.Add("Cmd_Exit", form.Cmd_Exit).Click(Leave).Exit();
    table.Add("StatusBar1", form.StatusBar1);
    table.Load(Load).Close(Leave).Unload(Unloaded);
    FormTable done = table.Done();
    done.Reset = [&form] {
        frmWeather fresh;
        fresh.Wanted = form.Wanted;
        form = fresh;
    };
    return done;
}

void ClearPanels(frmWeather& form) {
    for (Control* control : std::initializer_list<Control*>{
             &form.lbl_kesta, &form.lbl_SelectDate, &form.lblUpdate, &form.Cal1, &form.cmd_Calendar, &form.txtDate,
             &form.cmd_DateOK, &form.lbl_EditWeather, &form.cmd_OK, &form.lblKESTA, &form.ComboKESTA})
        control->Visible = false;
    SetVisible(form.lbl_info, false);
    SetVisible(form.lbl_az, false);
    SetVisible(form.lbl_d, false);
    SetVisible(form.txt_w, false);
}

void ShowPanels(frmWeather& form) {
    form.lbl_kesta.Visible = true;
    form.Cmd_Exit.Visible = true;
    SetVisible(form.lbl_info, true);
    SetVisible(form.lbl_az, true);
    SetVisible(form.lbl_d, true);
}

void EnableMenus(frmWeather& form, bool enabled) {
    for (MenuItem* menu : {&form.mnu_weather, &form.mnu_kesta, &form.mnu_enter, &form.mnu_default, &form.mnu_view})
        menu->Enabled = enabled;
}

bool ChooserHasCalled() { return State.CallerForm == "frmKESTA"; }

bool HasStation(frmWeather& form) {
    if (LocationIsChosen(TheScreen())) return true;
    mnu_KESTAloc_Click(form);
    return false;
}

void mnu_KESTAloc_Click(frmWeather& form) {
    EnableMenus(form);
    ClearPanels(form);
    form.Cmd_Exit.Visible = true;
    form.OpenedAt = FillStations(form.ComboKESTA);
    form.lblKESTA.Visible = true;
    form.ComboKESTA.Visible = true;
}

void mnu_AppendWeather_Click(frmWeather& form) { BringFromNetwork(form, WeatherCommand::Append); }

void mnu_OverwriteWeather_Click(frmWeather& form) { BringFromNetwork(form, WeatherCommand::Overwrite); }

void mnu_default_Click(frmWeather& form) {
    if (!HasStation(form)) return;
    const DayRange range = RangeOfDefaultWeather(form);
    if (!MayReplaceMeasuredDays(range)) return;
    LoadDefaultWeather(form);
    OfferRuns(form, range);
}

void ShowDefaultWeather(const DayRange& wanted) {
    The<frmWeather>().Wanted = wanted;
    ShowModal(FormName::frmWeather);
}

}  // namespace veraqua
