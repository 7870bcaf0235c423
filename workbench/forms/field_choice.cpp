#include "workbench/forms/field_choice.h"

#include <optional>
#include <utility>

#include "catch_up/weather_check.h"
#include "catch_up/weather_commands.h"
#include "core/directory.h"
#include "core/field_in_work.h"
#include "core/state.h"
#include "engine/season_run.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "workbench/forms/field_now.h"
#include "workbench/forms/harvest.h"
#include "workbench/harvest.h"

namespace veraqua {

namespace {

/// No field is in work, and none is shown. A list that the user picks from stays.
void GiveUpField(frmField& form) {
    State.CurrentField = 0;
    if (!form.ComboField.Visible) SelectNothing(form);
}

/// Makes `row` the field in work and checks the weather of its station. Nothing, with none in work, if its file is
/// missing, after the user has been told.
std::optional<WeatherCheck> TakeUp(frmField& form, int row) {
    try {
        if (SelectField(TheScreen(), row)) {
            State.CallerForm = "frmField";
            return CheckWeather(TheScreen(), YearOf(State.Stat[row].LastDay));
        }
    } catch (const RunTimeFailure&) {
        GiveUpField(form);  // its header may be that of another field
        throw;
    }
    GiveUpField(form);
    return std::nullopt;
}

void RunIfBehind() {
    if (State.Stat[State.CurrentField].LastDay < State.TodayJulian - 1) UpdateField(TheScreen());
}

/// The weather that the field picked needs has not been obtained.
void AbandonSelection(frmField& form) {
    State.DownloadFailed = false;
    State.ReportCancelled = false;
    SelectNothing(form);
    State.StationCode = NoStation;
    Show(FormName::frmField);
}

}  // namespace

bool FieldIsChosen() {
    return State.FieldCount > 0 && State.CurrentField > 0 && State.Stat[State.CurrentField].LastDay > 0;
}

bool ExpectField(std::string_view text, std::string_view title) {
    if (FieldIsChosen()) return true;
    TheScreen().Tell(text, title);
    return false;
}

void ForgetPick(frmField& form) {
    form.DeletePending = false;
    form.RestorePending = false;
}

void OfferList(frmField& form) {
    form.ComboField.Visible = true;
    form.lblField.Visible = true;
    form.ComboField.Clear();
}

void ListFields(frmField& form) {
    if (State.FieldCount == 0) {
        TheScreen().Tell("Click [Add New Field] to initialize a new field.", "No fields found!");
        return;
    }
    OfferList(form);
    form.FieldIds.clear();
    for (const int row : RowsInUse()) {
        StatRecord& record = State.Stat[row];
        record.FieldId = record.FieldId.UpperCase();
        form.FieldIds.push_back(record.FieldId.Whole());
        form.ComboField.Add(form.FieldIds.back(), row);
    }
}

void ComboField_Click(frmField& form) {
    const ListItem* picked = form.ComboField.Selected();
    if (picked == nullptr) return;
    if (form.RestorePending) {
        RestorePicked(form, picked->Data);
        return;
    }
    if (form.DeletePending && IsDamaged(picked->Data)) {
        HarvestDamaged(form, picked->Data);
        return;
    }
    const std::optional<WeatherCheck> weather = TakeUp(form, picked->Data);
    if (!weather) return;
    if (*weather == WeatherCheck::Abandoned) {
        AbandonSelection(form);
        return;
    }
    // Shown before the run, so that one that fails leaves in sight which field is to be repaired.
    form_clear(form);
    FieldInfo(form);
    if (form.DeletePending) return mnuDelete_Click(form);
    RunIfBehind();
}

void SelectField(frmField& form) {
    // A row of the main menu's list is a pick. The way back from the graphs goes on without the weather.
    const bool isPick = std::exchange(State.CallerForm, "") == "frmVeraqua";
    if (!FieldIsChosen()) return;
    const std::optional<WeatherCheck> weather = TakeUp(form, State.CurrentField);
    if (!weather) return;
    if (isPick && *weather == WeatherCheck::Abandoned) {
        AbandonSelection(form);
        return;
    }
    if (!form.DeletePending) RunIfBehind();
    FieldInfo(form);
}

void mnuSelect_Click(frmField& form) {
    if (State.FieldCount == 0) {
        ListFields(form);  // which tells so
        return;
    }
    SelectNothing(form);
    form.cmd_Cancel.Visible = true;
    ListFields(form);
    Focus(form.ComboField);
}

void SelectNothing(frmField& form) {
    ShowNoField(form);
    ForgetPick(form);
    State.CurrentField = 0;
}

void FieldInfo(frmField& form) {
    const auto show = [](Label& label, const std::string& text) {
        label.Caption = text;
        label.Visible = true;
    };
    show(form.lbl_ID, "Field ID is:  " + IdInWork());
    show(form.lbl_crop, "Crop is:  " + CropInWork());
    show(form.lbl_plantdate, "Planted on:  " + PlantingDateInWork());
    show(form.lbl_weather, "Weather data from:  " + State.StationName);
    for (Label* label : {&form.lbl_selected, &form.lbl_more1, &form.lbl_more2}) label->Visible = true;
    ShowFieldIn(form.StatusBar1);
    form.Caption = FieldTitle();
    form.PictureChosen = false;
    ShowFieldNow(form);
}

void ShowFieldData() { ShowFilled(FormName::frmFieldData); }

}  // namespace veraqua
