#include "workbench/forms/water_events.h"

#include <algorithm>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/base/units.h"
#include "core/directory.h"
#include "core/field_in_work.h"
#include "core/state.h"
#include "reports/change_line.h"
#include "reports/prediction_text.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "workbench/forms/field_menu.h"
#include "workbench/water.h"

namespace veraqua {

namespace {

/// One of the two halves of the form.
struct Side {
    TextBox& Date;
    TextBox& Amount;
    ListBox& List;
    Button& Delete;
    TextBox& Total;
    std::vector<EventRecord>& Events;
    float& TotalMm;
    Water Kind;
};

Side RainOf(frmAddWater& form) {
    return {form.txtRainDate, form.txtRainfall, form.ListRain,   form.cmdDeleteR,
            form.txtRAIN,     form.RainEvents,  State.RainTotal, Water::Rain};
}

Side IrrigationOf(frmAddWater& form) {
    return {form.txtIrrAdd, form.txtIrrigation, form.ListIrr,          form.cmdDeleteI,
            form.txtIRR,    form.IrrEvents,     State.IrrigationTotal, Water::Irrigation};
}

std::string AmountText(double mm) {
    return State.EnglishUnits ? Masked(mm / MillimetresPerInch, "0.0") + " inches" : Masked(mm, "0.0") + " mm";
}

/// What was stored in whole millimetres, to a hundredth of an inch, where the row's tenths don't say it.
std::string StoredText(double mm) {
    if (!State.EnglishUnits) return "";
    const std::string hundredths = Masked(mm / MillimetresPerInch, "0.00");
    return hundredths == Masked(mm / MillimetresPerInch, "0.0") + "0" ? "" : fmt::format("  ({})", hundredths);
}

/// Delete is there where a row is selected or a day is typed.
void OfferDelete(const Side& side) { side.Delete.Enabled = side.List.Selected() != nullptr || !side.Date.Text.empty(); }

void ShowSide(const Side& side) {
    side.List.Clear();
    for (const EventRecord& event : side.Events)
        side.List.Add(JulianToShortText(event.Day) + "   ...   " + AmountText(event.Amount) + StoredText(event.Amount),
                      event.Day);
    side.TotalMm = TotalAmount(side.Events);
    side.Total.Text = AmountText(side.TotalMm);
    OfferDelete(side);
}

void ShowPrediction(frmAddWater& form) {
    const PredictionText prediction = WaterPrediction(State.Stat[State.CurrentField], State.IsHay, State.TodayJulian,
                                                      State.MadExceededDay, State.EnglishUnits);
    form.txtIrrDate.Text = prediction.Date;
    form.txtIrrAmnt.Text = prediction.Amount;
    std::optional<Colour> boxes;
    std::optional<Colour> panel;
    if (prediction.Colour == PredictionColour::Green) boxes = panel = colours::Green;
    if (prediction.Colour == PredictionColour::Red) {
        boxes = colours::Orange;
        panel = colours::Red;
    }
    form.txtIrrDate.Background = form.txtIrrAmnt.Background = boxes;
    form.box_predictions.Background = panel;
}

void TakeLists(frmAddWater& form, const FieldFile& file) {
    form.RainEvents = file.Lists.Rain;
    form.IrrEvents = file.Lists.Irrigation;
}

void ShowAll(frmAddWater& form) {
    ShowSide(RainOf(form));
    ShowSide(IrrigationOf(form));
    ShowPrediction(form);
}

/// Shows what a change has left in the file and done to the prediction.
void ShowChange(frmAddWater& form, const FieldChange& change) {
    form.lblChange.Caption = ChangeLine(change, State.EnglishUnits);
    TakeLists(form, change.File);
    ShowAll(form);
}

/// Shows what was done, if anything was, and puts the focus where the user goes on.
void Follow(frmAddWater& form, const Side& side, const OrRefused<FieldChange>& outcome) {
    if (!outcome.IsDone()) Tell(TheScreen(), outcome.Why());
    if (outcome.IsDone() && outcome->IsRecorded) {
        ShowChange(form, *outcome);
        form.Recorded = true;
    }
    if (outcome.IsDone()) return SelectText(side.Date);  // the next one is typed over it
    Focus(outcome.Why().Where == Given::Amount ? side.Amount : side.Date);
}

void Record(frmAddWater& form, const Side& side) {
    const JulianValue day = TypedDay(side.Date);
    std::optional<double> amount = Numeric(side.Amount.Text);
    if (amount && State.EnglishUnits) *amount *= MillimetresPerInch;
    const OrRefused<FieldChange> outcome = RecordWater(TheScreen(), side.Kind, day, amount);
    if (outcome.IsDone()) {
        side.Amount.Clear();
        side.Date.Typed = false;
    }
    Follow(form, side, outcome);
}

void Delete(frmAddWater& form, const Side& side) {
    const ListItem* selected = side.List.Selected();
    const JulianValue day = selected != nullptr ? selected->Data : TypedDay(side.Date);
    const OrRefused<FieldChange> outcome = RemoveWater(TheScreen(), side.Kind, day);
    const bool wasLookedFor = outcome.IsDone() || outcome.Why().Where == Given::Entry;
    if (outcome.IsDone() && selected == nullptr) side.Date.Typed = false;
    if (wasLookedFor) return Follow(form, side, outcome);
    Tell(TheScreen(), outcome.Why());
}

/// A day typed after a row was selected is the one that is meant.
void TakeDate(const Side& side) {
    side.List.Index = -1;
    OfferDelete(side);
}

void DeleteSelected(frmAddWater& form, const Side& side) {
    if (side.List.Selected() != nullptr) Delete(form, side);
}

/// Whether the user may leave what they have typed and not accepted; if not, the keyboard is on it.
bool MayLeave(frmAddWater& form) {
    return MayLeaveTyped({&form.txtRainDate, &form.txtRainfall, &form.txtIrrAdd, &form.txtIrrigation});
}

void Load(frmAddWater& form) {
    form.Caption = "Irrigation & Rainfall, Veraqua " + State.VersionString;
    const std::optional<FieldFile> file = ReadField(TheScreen());
    if (!file) return Unload(FormName::frmAddWater);
    form.lblRainUnit.Caption = form.lblIrrUnit.Caption = State.EnglishUnits ? "inches" : "mm";
    TakeLists(form, *file);
    form.AtOpening.Rain = form.RainEvents;
    form.AtOpening.Irrigation = form.IrrEvents;
    for (TextBox* shown : {&form.txtRAIN, &form.txtIRR, &form.txtIrrDate, &form.txtIrrAmnt}) shown->ReadOnly = true;
    ShowAll(form);
    ShowFieldIn(form.StatusBar1);
    form.Caption = FieldTitle();
}

void UnloadForm(frmAddWater& form) {
    Show(FormName::frmField);
    if (!form.Cancelled || !form.Recorded) return;
    const auto restored = RestoreWater(TheScreen(), form.AtOpening.Rain, form.AtOpening.Irrigation);
    if (restored.IsDone()) ShowChange(form, *restored);
}

void txtRainDate_Change(frmAddWater& form) { TakeDate(RainOf(form)); }
void txtIrrAdd_Change(frmAddWater& form) { TakeDate(IrrigationOf(form)); }
void ListRain_Move(frmAddWater& form) { OfferDelete(RainOf(form)); }
void ListIrr_Move(frmAddWater& form) { OfferDelete(IrrigationOf(form)); }
void ListRain_Delete(frmAddWater& form) { DeleteSelected(form, RainOf(form)); }
void ListIrr_Delete(frmAddWater& form) { DeleteSelected(form, IrrigationOf(form)); }

void txtRainDate_Enter(frmAddWater& form) { Focus(form.txtRainfall); }
void txtIrrAdd_Enter(frmAddWater& form) { Focus(form.txtIrrigation); }
void cmdOKRain_Click(frmAddWater& form) { Record(form, RainOf(form)); }
void cmdOKIrrigation_Click(frmAddWater& form) { Record(form, IrrigationOf(form)); }
void cmdDeleteR_Click(frmAddWater& form) { Delete(form, RainOf(form)); }
void cmdDeleteI_Click(frmAddWater& form) { Delete(form, IrrigationOf(form)); }

void cmdReturn_Click(frmAddWater& form) {
    if (!MayLeave(form)) return;
    if (!form.Recorded) TheScreen().Tell("No irrigation or rainfall data to update");
    Unload(FormName::frmAddWater);
    ShowFieldData();
}

void cmdCancel_Click(frmAddWater& form) {
    if (!MayLeave(form)) return;
    form.Cancelled = true;
    Unload(FormName::frmAddWater);
}

}  // namespace

FormTable TableOf(frmAddWater& form) {
    FormFor table(form, FormName::frmAddWater, "frmAddWater");
    table.Add("lblRainDate", form.lblRainDate);
    table.Add("txtRainDate", form.txtRainDate).Change(txtRainDate_Change).EnterKey(txtRainDate_Enter);
    table.Add("lblRainfall", form.lblRainfall);
    table.Add("txtRainfall", form.txtRainfall).EnterKey(cmdOKRain_Click);
    table.Add("lblRainUnit", form.lblRainUnit);
    table.Add("cmdOKRain", form.cmdOKRain).Click(cmdOKRain_Click);
    table.Add("lblRainList", form.lblRainList);
    table.Add("ListRain", form.ListRain).Move(ListRain_Move).DeleteKey(ListRain_Delete);
    table.Add("cmdDeleteR", form.cmdDeleteR).Click(cmdDeleteR_Click);
    table.Add("lblRainTotal", form.lblRainTotal);
    table.Add("txtRAIN", form.txtRAIN);
    table.Add("lblIrrDate", form.lblIrrDate);
    table.Add("txtIrrAdd", form.txtIrrAdd).Change(txtIrrAdd_Change).EnterKey(txtIrrAdd_Enter);
    table.Add("lblIrrigation", form.lblIrrigation);
    table.Add("txtIrrigation", form.txtIrrigation).EnterKey(cmdOKIrrigation_Click);
    table.Add("lblIrrUnit", form.lblIrrUnit);
    table.Add("cmdOKIrrigation", form.cmdOKIrrigation).Click(cmdOKIrrigation_Click);
    table.Add("lblIrrList", form.lblIrrList);
    table.Add("ListIrr", form.ListIrr).Move(ListIrr_Move).DeleteKey(ListIrr_Delete);
    table.Add("cmdDeleteI", form.cmdDeleteI).Click(cmdDeleteI_Click);
    table.Add("lblIrrTotal", form.lblIrrTotal);
    table.Add("txtIRR", form.txtIRR);
    table.Add("box_predictions", form.box_predictions);
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
