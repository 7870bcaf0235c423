#include "workbench/forms/cuttings.h"

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/directory.h"
#include "core/field_in_work.h"
#include "core/state.h"
#include "reports/change_line.h"
#include "reports/prediction_text.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "workbench/cutting.h"
#include "workbench/forms/field_menu.h"

namespace veraqua {

namespace {

/// Delete is there where a row is selected or a day is typed.
void OfferDelete(frmCuts& form) {
    form.cmdDelete.Enabled = form.ListCuts.Selected() != nullptr || !form.txtCutAdd.Text.empty();
}

void ShowAll(frmCuts& form) {
    form.ListCuts.Clear();
    for (const EventRecord& cut : form.CutEvents)
        form.ListCuts.Add(fmt::format("{}   ..........   #{}", JulianToShortText(cut.Day), cut.Amount), cut.Day);
    OfferDelete(form);
    const StatRecord& row = State.Stat[State.CurrentField];
    const PredictionText irrigation = CutPrediction(row, State.EnglishUnits);
    form.txtCutDate.Text = NextCutting(row);
    form.txtIrrDate.Text = irrigation.Date;
    form.txtIrrAmnt.Text = irrigation.Amount;
}

/// Shows what a change has left in the file and done to the prediction.
void ShowChange(frmCuts& form, const FieldChange& change) {
    form.lblChange.Caption = ChangeLine(change, State.EnglishUnits);
    form.CutEvents = change.File.Lists.Cuttings;
    ShowAll(form);
}

/// Shows what was done, if anything was, and puts the focus where the user goes on.
void Follow(frmCuts& form, const OrRefused<FieldChange>& outcome) {
    if (!outcome.IsDone()) Tell(TheScreen(), outcome.Why());
    if (outcome.IsDone() && outcome->IsRecorded) {
        ShowChange(form, *outcome);
        form.Recorded = true;
    }
    if (outcome.IsDone()) return SelectText(form.txtCutAdd);  // the next one is typed over it
    Focus(outcome.Why().Where == Given::CutNumber ? form.txtCutNumber : form.txtCutAdd);
}

void cmdOKCut_Click(frmCuts& form) {
    const JulianValue day = TypedDay(form.txtCutAdd);
    const OrRefused<FieldChange> outcome = RecordCutting(TheScreen(), day, Numeric(form.txtCutNumber.Text));
    if (outcome.IsDone()) {
        form.txtCutNumber.Clear();
        form.txtCutAdd.Typed = false;
    }
    Follow(form, outcome);
}

void cmdDelete_Click(frmCuts& form) {
    const ListItem* selected = form.ListCuts.Selected();
    const JulianValue day = selected != nullptr ? selected->Data : TypedDay(form.txtCutAdd);
    const OrRefused<FieldChange> outcome = RemoveCutting(TheScreen(), day);
    const bool wasLookedFor = outcome.IsDone() || outcome.Why().Where == Given::Entry;
    if (outcome.IsDone() && selected == nullptr) form.txtCutAdd.Typed = false;
    if (wasLookedFor) return Follow(form, outcome);
    Tell(TheScreen(), outcome.Why());
}

/// A day typed after a row was selected is the one that is meant.
void txtCutAdd_Change(frmCuts& form) {
    form.ListCuts.Index = -1;
    OfferDelete(form);
}

void ListCuts_Move(frmCuts& form) { OfferDelete(form); }

void ListCuts_Delete(frmCuts& form) {
    if (form.ListCuts.Selected() != nullptr) cmdDelete_Click(form);
}

void txtCutAdd_Enter(frmCuts& form) { Focus(form.txtCutNumber); }

void cmdReturn_Click(frmCuts& form) {
    if (!MayLeaveTyped({&form.txtCutAdd, &form.txtCutNumber})) return;
    if (!form.Recorded) TheScreen().Tell("No cuttings to update");
    Unload(FormName::frmCuts);
    ShowFieldData();
}

void cmdCancel_Click(frmCuts& form) {
    if (!MayLeaveTyped({&form.txtCutAdd, &form.txtCutNumber})) return;
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
    const auto restored = RestoreCuttings(TheScreen(), form.CutCopy);
    if (restored.IsDone()) ShowChange(form, *restored);
}

}  // namespace

FormTable TableOf(frmCuts& form) {
    FormFor table(form, FormName::frmCuts, "frmCuts");
    table.Add("lblCutAdd", form.lblCutAdd);
    table.Add("lblFormat", form.lblFormat);
    table.Add("txtCutAdd", form.txtCutAdd).Change(txtCutAdd_Change).EnterKey(txtCutAdd_Enter);
    table.Add("lblCutNumber", form.lblCutNumber);
    table.Add("txtCutNumber", form.txtCutNumber).EnterKey(cmdOKCut_Click);
    table.Add("cmdOKCut", form.cmdOKCut).Click(cmdOKCut_Click);
    table.Add("lblCuts", form.lblCuts);
    table.Add("ListCuts", form.ListCuts).Move(ListCuts_Move).DeleteKey(ListCuts_Delete);
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
