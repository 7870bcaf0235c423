#include "workbench/forms/water_events.h"

#include <algorithm>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/base/units.h"
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

/// One of the two halves of the form.
struct Side {
    TextBox& Date;
    TextBox& Amount;
    ListBox& List;
    TextBox& Total;
    std::vector<EventRecord>& Events;
    bool& Removed;  ///< in the state: entries have gone
    float& TotalMm;
    std::string_view NoAmount;
    std::string_view ConfirmDelete;
};

Side RainOf(frmAddWater& form) {
    return {form.txtRainDate,
            form.txtRainfall,
            form.ListRain,
            form.txtRAIN,
            form.RainEvents,
            State.RainChanged,
            State.RainTotal,
            "Please enter a value for your rainfall amount",
            "Are you sure you wish to delete rainfall data on: "};
}

Side IrrigationOf(frmAddWater& form) {
    return {form.txtIrrAdd,
            form.txtIrrigation,
            form.ListIrr,
            form.txtIRR,
            form.IrrEvents,
            State.IrrigationChanged,
            State.IrrigationTotal,
            "Please enter a value for your irrigation amount",
            "Are you sure you wish to delete irrigation on: "};
}

std::string AmountText(double mm) {
    return State.EnglishUnits ? Masked(mm / MillimetresPerInch, "0.0") + " inches" : Masked(mm, "0.0") + " mm";
}

void ShowSide(const Side& side) {
    side.List.Clear();
    for (const EventRecord& event : side.Events)
        side.List.Add(JulianToShortText(event.Day) + "   ...   " + AmountText(event.Amount), event.Day);
    side.TotalMm = TotalAmount(side.Events);
    side.Total.Text = AmountText(side.TotalMm);
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

/// Saves the lists with the run that follows, and shows what stands in the file then.
void Save(frmAddWater& form, FieldLists lists) {
    State.RainChanged = State.RainChanged || lists.Rain.empty();
    State.IrrigationChanged = State.IrrigationChanged || lists.Irrigation.empty();
    form.lblChange.Caption = RecordAndRun(std::move(lists));
    TakeLists(form, LoadFieldFile(State.CurrentField));
    ShowAll(form);
}

bool DateStands(JulianValue day) {
    const std::optional<RefusedDay> refused = WaterRefusedOn(day);
    if (refused) TheScreen().Tell(refused->Text, refused->Title);
    return !refused;
}

/// Applies an amount, nothing to remove it, to the list of one side, and saves what has changed.
void Apply(frmAddWater& form, const Side& side, JulianValue day, std::optional<double> mm) {
    FieldLists lists;
    lists.Rain = form.RainEvents;
    lists.Irrigation = form.IrrEvents;
    switch (ComputedFrom(FieldFileName(State.CurrentField), [&] {
        return ManageEvents(&side.Events == &form.RainEvents ? lists.Rain : lists.Irrigation, day, mm);
    })) {
        case ListChange::Changed:
            Save(form, std::move(lists));
            form.Recorded = true;
            break;
        case ListChange::NoMatch: TheScreen().Tell("No matching date found", "Try again..."); break;
        case ListChange::Unchanged: break;
    }
}

void Record(frmAddWater& form, const Side& side) {
    const JulianValue day = TypedDay(side.Date);
    if (!DateStands(day)) return Focus(side.Date);
    const std::optional<double> amount = Numeric(side.Amount.Text);
    if (!amount || *amount <= 0) {
        amount ? TheScreen().Tell("Please enter a value greater than 0.  Use Delete button if deleting values",
                                  "Bad Data!")
               : TheScreen().Tell(side.NoAmount, "Missing Data!");
        return Focus(side.Amount);
    }
    Apply(form, side, day, ToSingle(State.EnglishUnits ? *amount * MillimetresPerInch : *amount, "Amount of water"));
    Focus(side.Date);
}

void Delete(frmAddWater& form, const Side& side) {
    const ListItem* selected = side.List.Selected();
    const JulianValue day = selected != nullptr ? selected->Data : TypedDay(side.Date);
    if (!DateStands(day)) return;
    if (!TheScreen().YesNo(fmt::format("{}{}?", side.ConfirmDelete, JulianToShortText(day)), "DELETE Confirmation",
                           Icon::Question, false))
        return;
    side.Removed = true;
    Apply(form, side, day, std::nullopt);
    side.Removed = false;
    Focus(side.Date);
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
    Save(form, form.AtOpening);
    ShowNext(The<frmField>());
}

void txtRainDate_Enter(frmAddWater& form) { Focus(form.txtRainfall); }
void txtIrrAdd_Enter(frmAddWater& form) { Focus(form.txtIrrigation); }
void cmdOKRain_Click(frmAddWater& form) { Record(form, RainOf(form)); }
void cmdOKIrrigation_Click(frmAddWater& form) { Record(form, IrrigationOf(form)); }
void cmdDeleteR_Click(frmAddWater& form) { Delete(form, RainOf(form)); }
void cmdDeleteI_Click(frmAddWater& form) { Delete(form, IrrigationOf(form)); }

void cmdReturn_Click(frmAddWater& form) {
    if (!form.Recorded) TheScreen().Tell("No irrigation or rainfall data to update");
    Unload(FormName::frmAddWater);
    ShowFieldData();
}

void cmdCancel_Click(frmAddWater& form) {
    form.Cancelled = true;
    Unload(FormName::frmAddWater);
}

}  // namespace

std::optional<RefusedDay> WaterRefusedOn(JulianValue day) {
    const JulianValue depletionSet = State.Updates[State.CurrentField];
    const JulianValue planted = State.Header().PlantDay;
    if (depletionSet > 0 && day <= depletionSet)
        return RefusedDay{
            "Irrigation dates prior to updated 'Depletion Date' are not allowed.  Reset 'Depletion' if you "
            "want to add water.",
            "Veraqua Warning"};
    if (State.DriedOutDay >= 1 && day >= State.DriedOutDay)
        return RefusedDay{
            fmt::format("Your field dried out (99% water depletion) on {}.  Irrigation must be prior to that "
                        "date.",
                        JulianToShortText(State.DriedOutDay)),
            "Depletion Warning"};
    if (day < planted + 1)
        return RefusedDay{fmt::format("Use a Date after {}.  Dates on or prior to planting date are not permitted.",
                                      JulianToShortText(State.IsHay ? planted + 1 : planted)),
                          "Invalid Water Date"};
    if (day > State.TodayJulian)
        return RefusedDay{fmt::format("Use a Date before {}.  Dates into the future are not permitted.",
                                      JulianToShortText(State.TodayJulian + 1)),
                          std::string(ProgramTitle)};
    return std::nullopt;
}

FormTable TableOf(frmAddWater& form) {
    FormFor table(form, FormName::frmAddWater, "frmAddWater");
    table.Add("lblRainDate", form.lblRainDate);
    table.Add("txtRainDate", form.txtRainDate).EnterKey(txtRainDate_Enter);
    table.Add("lblRainfall", form.lblRainfall);
    table.Add("txtRainfall", form.txtRainfall).EnterKey(cmdOKRain_Click);
    table.Add("lblRainUnit", form.lblRainUnit);
    table.Add("cmdOKRain", form.cmdOKRain).Click(cmdOKRain_Click);
    table.Add("lblRainList", form.lblRainList);
    table.Add("ListRain", form.ListRain);
    table.Add("cmdDeleteR", form.cmdDeleteR).Click(cmdDeleteR_Click);
    table.Add("lblRainTotal", form.lblRainTotal);
    table.Add("txtRAIN", form.txtRAIN);
    table.Add("lblIrrDate", form.lblIrrDate);
    table.Add("txtIrrAdd", form.txtIrrAdd).EnterKey(txtIrrAdd_Enter);
    table.Add("lblIrrigation", form.lblIrrigation);
    table.Add("txtIrrigation", form.txtIrrigation).EnterKey(cmdOKIrrigation_Click);
    table.Add("lblIrrUnit", form.lblIrrUnit);
    table.Add("cmdOKIrrigation", form.cmdOKIrrigation).Click(cmdOKIrrigation_Click);
    table.Add("lblIrrList", form.lblIrrList);
    table.Add("ListIrr", form.ListIrr);
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
