#include "workbench/forms/cuttings.h"

#include <cmath>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/directory.h"
#include "core/state.h"
#include "reports/prediction_text.h"
#include "reports/stored_field.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "workbench/event_list.h"
#include "workbench/event_run.h"
#include "workbench/forms/field_menu.h"

namespace veraqua {

namespace {

void ShowAll(frmCuts& form) {
    form.ListCuts.Clear();
    for (const EventRecord& cut : form.CutEvents)
        form.ListCuts.Add(fmt::format("{}   ..........   #{}", JulianToShortText(cut.Day), cut.Amount), cut.Day);
    const StatRecord& row = State.Stat[State.CurrentField];
    const PredictionText irrigation = CutPrediction(row, State.EnglishUnits);
    form.txtCutDate.Text = NextCutting(row);
    form.txtIrrDate.Text = irrigation.Date;
    form.txtIrrAmnt.Text = irrigation.Amount;
}

/// Saves the list with the run that follows, and shows what stands in the file then.
void Save(frmCuts& form, const std::vector<EventRecord>& cuts) {
    State.CutsChanged = State.CutsChanged || cuts.empty();
    FieldLists lists;
    lists.Cuttings = cuts;
    form.lblChange.Caption = RecordAndRun(std::move(lists));
    form.CutEvents = LoadFieldFile(State.CurrentField).Lists.Cuttings;
    ShowAll(form);
}

/// Applies a cutting, nothing to remove it, and saves what has changed.
void Apply(frmCuts& form, JulianValue day, std::optional<double> number) {
    std::vector<EventRecord> cuts = form.CutEvents;
    switch (ComputedFrom(FieldFileName(State.CurrentField), [&] { return ManageEvents(cuts, day, number); })) {
        case ListChange::Changed:
            Save(form, cuts);
            form.Recorded = true;
            break;
        case ListChange::NoMatch: TheScreen().Tell("No matching date found", "Try again..."); break;
        case ListChange::Unchanged: break;
    }
}

/// Whether the hay in work can have been cut on `day`, 0 if no date was read; if not, the user is told.
bool DateStands(JulianValue day) {
    if (day < State.Hay.PlantDay) {
        TheScreen().Tell(fmt::format("Use a Date after {}.  Only data after growth onset can be used.",
                                     JulianToShortText(State.Hay.PlantDay)));
        return false;
    }
    if (day > State.TodayJulian) {
        TheScreen().Tell(fmt::format("Use a Date before {}.  Can't count on future weather or work...",
                                     JulianToShortText(State.TodayJulian + 1)));
        return false;
    }
    return true;
}

/// What is wrong with a cut number; empty if nothing is.
std::string_view FaultOf(std::optional<double> number) {
    if (!number) return "Please enter a number value for your cut number";
    if (std::floor(*number) != *number) return "Please enter a whole number for your cut number";
    if (*number < 0) return "Please enter a positive whole number for your cut number";
    return {};
}

void cmdOKCut_Click(frmCuts& form) {
    const JulianValue day = TypedDay(form.txtCutAdd);
    if (!DateStands(day)) return Focus(form.txtCutAdd);
    const std::optional<double> number = Numeric(form.txtCutNumber.Text);
    const std::string_view fault = FaultOf(number);
    if (!fault.empty()) {
        TheScreen().Tell(fault, "Input Error");
        return Focus(form.txtCutNumber);
    }
    Apply(form, day, *number == 0 ? std::nullopt : number);
    Focus(form.txtCutAdd);
}

void cmdDelete_Click(frmCuts& form) {
    const ListItem* selected = form.ListCuts.Selected();
    const JulianValue day = selected != nullptr ? selected->Data : TypedDay(form.txtCutAdd);
    if (!DateStands(day)) return;
    if (!TheScreen().YesNo(fmt::format("Are you sure you wish to delete the CUTTING on: {}?", JulianToShortText(day)),
                           "DELETE Confirmation", Icon::Question, false))
        return;
    State.CutsChanged = true;
    Apply(form, day, std::nullopt);
    State.CutsChanged = false;
    Focus(form.txtCutAdd);
}

void txtCutAdd_Enter(frmCuts& form) { Focus(form.txtCutNumber); }

void cmdReturn_Click(frmCuts& form) {
    if (!form.Recorded) TheScreen().Tell("No cuttings to update");
    Unload(FormName::frmCuts);
    ShowFieldData();
}

void cmdCancel_Click(frmCuts& form) {
    form.Cancelled = true;
    Unload(FormName::frmCuts);
}

void Load(frmCuts& form) {
    form.Caption = "Hay Cutting Dates, Veraqua " + State.VersionString;
    const std::optional<FieldFile> file = ReadField(TheScreen());
    if (!file) return Unload(FormName::frmCuts);
    form.CutEvents = form.CutCopy = file->Lists.Cuttings;
    for (TextBox* shown : {&form.txtCutDate, &form.txtIrrDate, &form.txtIrrAmnt}) shown->ReadOnly = true;
    ShowAll(form);
    ShowFieldIn(form.StatusBar1);
    form.Caption = FieldTitle();
}

void UnloadForm(frmCuts& form) {
    Show(FormName::frmField);
    if (!form.Cancelled || !form.Recorded) return;
    Save(form, form.CutCopy);
    ShowNext(The<frmField>());
}

}  // namespace

FormTable TableOf(frmCuts& form) {
    FormFor table(form, FormName::frmCuts, "frmCuts");
    table.Add("lblCutAdd", form.lblCutAdd);
    table.Add("lblFormat", form.lblFormat);
    table.Add("txtCutAdd", form.txtCutAdd).EnterKey(txtCutAdd_Enter);
    table.Add("lblCutNumber", form.lblCutNumber);
    table.Add("txtCutNumber", form.txtCutNumber).EnterKey(cmdOKCut_Click);
    table.Add("cmdOKCut", form.cmdOKCut).Click(cmdOKCut_Click);
    table.Add("lblCuts", form.lblCuts);
    table.Add("ListCuts", form.ListCuts);
    table.Add("cmdDelete", form.cmdDelete).Click(cmdDelete_Click);
    table.Add("box_predictions", form.box_predictions);
    table.Add("lblNextCut", form.lblNextCut);
    table.Add("txtCutDate", form.txtCutDate);
    table.Add("lblNextDate", form.lblNextDate);
    table.Add("txtIrrDate", form.txtIrrDate);
    table.Add("lblNextAmount", form.lblNextAmount);
    table.Add("txtIrrAmnt", form.txtIrrAmnt);
    table.Add("lblChange", form.lblChange);
    table.Add("cmdReturn", form.cmdReturn).Click(cmdReturn_Click).Exit();
    table.Add("cmdCancel", form.cmdCancel).Click(cmdCancel_Click).Exit();
    table.Add("StatusBar1", form.StatusBar1);
    table.Load(Load).Close(cmdReturn_Click).Unload(UnloadForm);
    return table.Done();
}

}  // namespace veraqua
