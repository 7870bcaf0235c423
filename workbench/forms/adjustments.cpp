#include "workbench/forms/adjustments.h"

#include <initializer_list>
#include <optional>
#include <string>

#include "core/base/numbers.h"
#include "core/field_in_work.h"
#include "core/state.h"
#include "reports/change_line.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "workbench/adjustments.h"
#include "workbench/forms/field_choice.h"

namespace veraqua {

namespace {

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

/// Shows why a panel was not accepted, with the focus in the box at fault.
void ShowRefusal(const Refused& refused, TextBox& box) {
    Tell(TheScreen(), refused);
    if (refused.Where != Given::Nothing) Focus(box);
}

}  // namespace

void mnu_MAD_Click(frmField& form) {
    if (!ExpectField()) return;
    const auto file = ReadField(TheScreen());
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
    const auto outcome = SetMad(TheScreen(), form.txtNewMAD.Text, form.txtNewMADC.Text);
    if (outcome.IsDone()) return ShowChange(form, AtTheNextRun);
    ShowRefusal(outcome.Why(), outcome.Why().Where == Given::CriticalMad ? form.txtNewMADC : form.txtNewMAD);
}

void mnuIEffic_Click(frmField& form) {
    if (!ExpectField()) return;
    const auto file = ReadField(TheScreen());
    if (!file) return;
    ShowPanel(form, {&form.ShapeIRR, &form.lblCurrIRR, &form.lblNewIRR, &form.cmdIRROK, &form.cmdIRRCanc},
              form.TxtNewIRR);
    form.lblCurrIRR.Caption = "Current Irr. Efficiency (%):   " +
                              Plain(ToSingle(static_cast<double>(file->Header().IrrEff) * 100, "the efficiency"));
}

void cmdIRROK_Click(frmField& form) {
    const auto outcome = SetEfficiency(TheScreen(), form.TxtNewIRR.Text);
    if (outcome.IsDone()) return ShowChange(form, AtTheNextRun);
    ShowRefusal(outcome.Why(), form.TxtNewIRR);
}

void mnuDepletion_Click(frmField& form) {
    if (!ExpectField()) return;
    const auto file = ReadField(TheScreen());
    if (!file) return;
    const RootZoneNow zone = LookAtRootZone(*file);
    State.Stat[State.CurrentField].Depletion = zone.Depletion;
    ShowPanel(form,
              {&form.ShapeDepl, &form.lblDeplVal, &form.lblRootWater, &form.lbl_reset, &form.cmd_Reset,
               &form.lblNewDepl, &form.cmdDeplOK, &form.cmdDeplCanc},
              form.TxtNewDepl);
    form.lblDeplVal.Caption = "Depletion (%) for " + JulianToShortText(zone.View.Day) + ":  " + Plain(zone.Depletion);
    // The two captions differ by one blank.
    form.lblRootWater.Caption =
        (State.EnglishUnits ? "Available water in root zone:  " : "Available water in root zone: ") +
        RootZoneWaterText(zone.Water);
}

void cmdDeplOK_Click(frmField& form) {
    const auto outcome = SetDepletion(TheScreen(), form.TxtNewDepl.Text);
    if (outcome.IsDone()) return ShowChange(form, ChangeLine(*outcome, State.EnglishUnits));
    ShowRefusal(outcome.Why(), form.TxtNewDepl);
    const bool isOver = State.Stat[State.CurrentField].NextIrrAmount == AmountHarvest;
    if (isOver && outcome.Why().Where == Given::Nothing && !outcome.Why().Text.empty())
        TheScreen().Tell("The season of this crop is over: no day is left to go on from. Harvest the field.");
}

void cmd_Reset_Click(frmField& form) {
    const auto file = ReadField(TheScreen());
    if (!file) return;
    const auto outcome = ResetField(TheScreen(), LossesOfReset(*file));
    if (outcome.IsDone()) return ShowChange(form, ChangeLine(*outcome, State.EnglishUnits));
    ShowRefusal(outcome.Why(), form.TxtNewDepl);
}

}  // namespace veraqua
