#include "workbench/forms/adjustments.h"

#include <initializer_list>
#include <optional>
#include <string>

#include "core/base/numbers.h"
#include "core/base/units.h"
#include "core/directory.h"
#include "core/field_file.h"
#include "core/files/files.h"
#include "core/state.h"
#include "engine/season_run.h"
#include "engine/soil_water.h"
#include "reports/change_line.h"
#include "reports/field_days.h"
#include "reports/stored_field.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "workbench/event_run.h"
#include "workbench/forms/field_choice.h"

namespace veraqua {

namespace {

/// The file of the field in work as it is now. Nothing if it is missing, after the user has been told.
std::optional<FieldFile> FileInWork() { return ReadField(TheScreen()); }

void ShowPanel(frmField& form, std::initializer_list<Control*> controls, TextBox& box) {
    form_clear(form);
    for (Control* control : controls) control->Visible = true;
    box.Text.clear();
    box.Visible = true;
    Focus(box);
}

/// Ends a change, with what it does to the prediction.
void ShowChange(frmField& form, const std::string& line) {
    form_clear(form);
    form.lblChange.Caption = line;
    form.lblChange.Visible = true;
}

constexpr const char* AtTheNextRun = "Takes effect at the next run of the field.";

/// The percentage typed. Nothing, after the user has been told and is back in the box, if it is none.
std::optional<double> Percentage(const TextBox& box, std::string_view refusal) {
    const std::optional<double> value = Numeric(box.Text);
    if (value && *value >= 0 && *value <= 100) return value;
    TheScreen().Tell(refusal, "Input Error");
    Focus(box);
    return std::nullopt;
}

constexpr std::string_view NoPercentage = "Please enter a value from 0-100.";

/// The root zone on the day that the depletion panel is about.
struct RootZoneNow {
    DayView View;
    float Capacity = 0;  ///< mm
    float Water = 0;     ///< mm
};

RootZoneNow LookAtRootZone(const FieldFile& file) {
    RootZoneNow zone;
    zone.View = AsOf(file, StateDay(State.Stat[State.CurrentField], State.TodayJulian));
    const DayRecord& day = file.Days[zone.View.Row];
    const float roots = file.IsHay ? file.Hay.RootMax : day.RootDepthOrKc;
    zone.Capacity = SoilWaterBetween(0, roots, CapacityGrid(file.Header(), file.Soil.Bounds), file.Soil.Capacity);
    zone.Water = day.Available;
    return zone;
}

std::string WaterText(float water) {
    return State.EnglishUnits ? Masked(water / MillimetresPerInch * MetresPerFoot, "0.0") + " in/ft"
                              : Masked(water, "00.0") + "mm/m";
}

/// The day from which the next run goes on, with the depletion set by hand: today, or where the field stands behind
/// yesterday its last day.
JulianValue ResetDay() {
    const JulianValue lastDay = State.Stat[State.CurrentField].LastDay;
    return lastDay >= State.TodayJulian - 1 ? State.TodayJulian : lastDay;
}

}  // namespace

void mnu_MAD_Click(frmField& form) {
    if (!ExpectField()) return;
    const auto file = FileInWork();
    if (!file) return;
    ShowPanel(form, {&form.ShapeMAD, &form.lblCurrMAD, &form.lblNewMAD, &form.cmdMADOK, &form.cmdMADCanc},
              form.txtNewMAD);
    form.lblCurrMAD.Caption = "Current MAD (%):   " + Plain(file->Header().MAD);
    if (!file->IsHay) return;
    for (Control* control : std::initializer_list<Control*>{&form.lblCurrMADC, &form.lblNewMADC, &form.txtNewMADC})
        control->Visible = true;
    form.txtNewMADC.Text.clear();
    form.lblCurrMADC.Caption = "Current Critical MAD (%):   " + Plain(file->Hay.MADCritical);
}

void cmdMADOK_Click(frmField& form) {
    const auto mad = Percentage(form.txtNewMAD, NoPercentage);
    if (!mad) return;
    auto file = FileInWork();
    if (!file) return;
    if (file->IsHay) {
        const auto critical = Percentage(form.txtNewMADC, "Please enter a value from 0-100 for Critical MAD.");
        if (!critical) return;
        file->Hay.MADCritical = ToInteger16(*critical, "the critical MAD");
    }
    file->Header().MAD = ToInteger16(*mad, "the MAD");
    StoreFieldFile(State.CurrentField, *file);
    TakeInWork(*file);
    State.Stat[State.CurrentField].MadNow = file->Header().MAD;
    TheScreen().Tell("New MAD set to: " + form.txtNewMAD.Text + "%", "");
    ShowChange(form, AtTheNextRun);
}

void mnuIEffic_Click(frmField& form) {
    if (!ExpectField()) return;
    const auto file = FileInWork();
    if (!file) return;
    ShowPanel(form, {&form.ShapeIRR, &form.lblCurrIRR, &form.lblNewIRR, &form.cmdIRROK, &form.cmdIRRCanc},
              form.TxtNewIRR);
    form.lblCurrIRR.Caption = "Current Irr. Efficiency (%):   " +
                              Plain(ToSingle(static_cast<double>(file->Header().IrrEff) * 100, "the efficiency"));
}

void cmdIRROK_Click(frmField& form) {
    const auto efficiency = Percentage(form.TxtNewIRR, NoPercentage);
    if (!efficiency) return;
    auto file = FileInWork();
    if (!file) return;
    file->Header().IrrEff = ToSingle(*efficiency / 100, "the irrigation efficiency");
    StoreFieldFile(State.CurrentField, *file);
    TakeInWork(*file);
    TheScreen().Tell("New Irrigation Efficiency set to: " + form.TxtNewIRR.Text + "%", "");
    ShowChange(form, AtTheNextRun);
}

void mnuDepletion_Click(frmField& form) {
    if (!ExpectField()) return;
    const auto file = FileInWork();
    if (!file) return;
    const RootZoneNow zone = LookAtRootZone(*file);
    StatRecord& row = State.Stat[State.CurrentField];
    row.Depletion = ToInteger16(DepletionPercent(zone.Water, zone.Capacity), "the depletion");
    ShowPanel(form,
              {&form.ShapeDepl, &form.lblDeplVal, &form.lblRootWater, &form.lbl_reset, &form.cmd_Reset,
               &form.lblNewDepl, &form.cmdDeplOK, &form.cmdDeplCanc},
              form.TxtNewDepl);
    form.lblDeplVal.Caption = "Depletion (%) for " + JulianToShortText(zone.View.Day) + ":  " + Plain(row.Depletion);
    // The two captions differ by one blank.
    form.lblRootWater.Caption =
        (State.EnglishUnits ? "Available water in root zone:  " : "Available water in root zone: ") +
        WaterText(zone.Water);
}

void cmdDeplOK_Click(frmField& form) {
    const auto depletion = Percentage(form.TxtNewDepl, NoPercentage);
    if (!depletion) return;
    auto file = FileInWork();
    if (!file) return;
    const RootZoneNow zone = LookAtRootZone(*file);
    const int current = State.CurrentField;
    State.Stat[current].Depletion = ToInteger16(*depletion, "the depletion");
    if (zone.View.Row + 1 >= file->Days.size()) {
        TheScreen().Tell("Can't update Depletion for this field, it's already exceeded the MAD.  Add water instead.",
                         "Veraqua Warning");
        return;
    }
    const float water =
        ToSingle(zone.Capacity - State.Stat[current].Depletion * static_cast<double>(zone.Capacity) / 100, "the water");
    State.Updates[current] = ResetDay();
    file->Days[zone.View.Row].Available = water;
    // A field that stands behind yesterday is run on from its last day, not from the one that the panel shows.
    file->Days[AsOf(*file, ResetDay()).Row].Available = water;

    files::ChangeSet changes;
    SaveFieldRow(TheScreen(), current);
    StoreFieldFile(current, *file);
    const std::string line = RunAfterChange();
    changes.Commit();
    TheScreen().Tell("New depletion set to: " + form.TxtNewDepl.Text +
                         "%\nNew water content in root zone set to: " + WaterText(water),
                     "");
    ShowChange(form, line);
}

void cmd_Reset_Click(frmField& form) {
    if (!TheScreen().YesNo("This will reset depletion and irrigation--it starts your crop over from day 1.  Do you "
                           "wish to continue?",
                           "Crop Reinitialization", Icon::Question, true))
        return;
    const auto file = FileInWork();
    if (!file) return;
    const StatRecord before = State.Stat[State.CurrentField];
    SoilProfile soil = file->Soil;
    soil.Content = AsOf(*file, file->Header().PlantDay).Content;
    State.Hay.NextCutDay = 0;

    files::ChangeSet changes;
    ComputedFrom(FieldFileName(State.CurrentField), [&] { CreateField(TheScreen(), soil); });
    UpdateField(TheScreen());
    changes.Commit();
    TheScreen().Tell("Depletion has been reset");
    ShowChange(form, ChangeLine(before, State.Stat[State.CurrentField], State.EnglishUnits));
}

}  // namespace veraqua
