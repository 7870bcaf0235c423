#include "workbench/forms/field_menu.h"

#include <initializer_list>
#include <variant>

#include "core/state.h"
#include "engine/season_run.h"
#include "reports/forms/graphs.h"
#include "reports/forms/report_roads.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "workbench/cutting.h"
#include "workbench/forms/adjustments.h"
#include "workbench/forms/crop_choice.h"
#include "workbench/forms/field_choice.h"
#include "workbench/forms/field_now.h"
#include "workbench/forms/harvest.h"

namespace veraqua {

namespace {

void ShowBackground(frmField& form, const Image* picture) {
    for (Image* image : {&form.Image1, &form.Image2, &form.Image3}) image->Visible = image == picture;
}

void Load(frmField& form) {
    State.CurrentField = 0;
    ShowNoField(form);
    ShowBackground(form, &form.Image3);
}

void Unload(frmField&) {
    State.CurrentField = 0;
    if (IsLoaded(FormName::frmVeraqua)) Show(FormName::frmVeraqua);
}

void Leave(frmField&) { Unload(FormName::frmField); }

/// Opens a window of the field in work in the place of the workbench.
void ChangeTo(FormName form) { ShowInPlaceOf(FormName::frmField, form); }

void cmd_Cancel_Click(frmField& form) { SelectNothing(form); }

/// Esc gives up what the user has begun on the workbench; where that is nothing, it leaves it.
void Escape(frmField& form) {
    if (form.cmd_Cancel.Visible || form.ComboField.Visible) return cmd_Cancel_Click(form);
    if (form.ShapeDepl.Visible || form.ShapeMAD.Visible || form.ShapeIRR.Visible) return form_clear(form);
    Leave(form);
}

void MnuPred_Click(frmField&) {
    if (!ExpectField()) return;
    UpdateField(TheScreen());
    ShowFieldData();
}

void mnuAdd_Click(frmField&) {
    if (ExpectField()) ChangeTo(FormName::frmAddWater);
}

void mnuCuts_Click(frmField&) {
    if (!ExpectField("Please select a field before choosing this option")) return;
    if (State.IsHay)
        ChangeTo(FormName::frmCuts);
    else
        Tell(TheScreen(), OnlyHayIsCut());
}

void mnuFieldSummary_Click(frmField&) {
    if (ExpectField("Please add or select a field first...", "No field data to display")) ShowFieldData();
}

void mnuFieldDetails_Click(frmField&) {
    if (ExpectField("Please select a field first...", "No field data to display"))
        ShowFilled(FormName::frmFieldDetails);
}

void mnuSeasonChart_Click(frmField&) {
    if (ExpectField()) ShowFilled(FormName::frmSeasonChart);
}

void m_displays_Click(frmField&) { ShowFieldDisplays(); }

/// `lbl_wait` for as long as a report takes, however it ends.
class WaitSign {
  public:
    explicit WaitSign(frmField& form) : label_(form.lbl_wait) { label_.Visible = true; }
    ~WaitSign() { label_.Visible = false; }
    WaitSign(const WaitSign&) = delete;
    WaitSign& operator=(const WaitSign&) = delete;

  private:
    Label& label_;
};

void m_iprint_Click(frmField& form) {
    const WaitSign wait(form);
    PrintSchedule();
}

void m_isave_Click(frmField&) { SaveScheduleByDialog(); }

void m_prt_print_Click(frmField&) {
    if (ExpectField()) RunFieldReport(ReportDestination::Printer);
}

void m_rpt_disk_Click(frmField&) {
    if (ExpectField()) RunFieldReport(ReportDestination::Disk);
}

void m_rpt_display_Click(frmField&) {
    if (ExpectField()) ShowFilled(State.IsHay ? FormName::frmHayFieldHistory : FormName::frmFieldHistory);
}

void mnuHarvested_Click(frmField&) {
    const bool isHay = State.IsHay;
    ShowModal(FormName::frmSelectHarvested);
    State.IsHay = isHay;
}

void ChooseBackground(frmField& form, const Image* picture) {
    ShowBackground(form, picture);
    form.PictureChosen = true;
}

void mgeese1_Click(frmField& form) { ChooseBackground(form, &form.Image1); }
void mgeese2_Click(frmField& form) { ChooseBackground(form, &form.Image2); }
void mfield_Click(frmField& form) { ChooseBackground(form, &form.Image3); }
void mblank_Click(frmField& form) { ChooseBackground(form, nullptr); }

// The table, group by group.

using MenuTable = FormFor<frmField>;

void AddChoice(MenuTable& table, frmField& form) {
    table.Add("lblField", form.lblField);
    table.Add("ComboField", form.ComboField).Click(ComboField_Click);
    table.Add("lblCrops", form.lblCrops);
    table.Add("comboCrops", form.comboCrops).Click(comboCrops_Click);
    table.Add("Lbl_Soils", form.Lbl_Soils);
    table.Add("Combo_Soils", form.Combo_Soils).Click(Combo_Soils_Click);
    table.Add("lbl_initialize", form.lbl_initialize);
    table.Add("cmd_OK", form.cmd_OK).Click(cmd_OK_Click);
    table.Add("cmd_Cancel", form.cmd_Cancel).Click(cmd_Cancel_Click).Exit();
}

void AddFieldShown(MenuTable& table, frmField& form) {
    table.Add("lbl_selected", form.lbl_selected);
    table.Add("lbl_ID", form.lbl_ID);
    table.Add("lbl_crop", form.lbl_crop);
    table.Add("lbl_plantdate", form.lbl_plantdate);
    table.Add("lbl_weather", form.lbl_weather);
    table.Add("lbl_more1", form.lbl_more1);
    table.Add("lbl_more2", form.lbl_more2);
    table.Add("cmd_Summary", form.cmd_Summary);
    table.Add("cmdDetails", form.cmdDetails);
    table.Add("lblChange", form.lblChange);
    table.Add("lbl_wait", form.lbl_wait);
}

void AddFieldNow(MenuTable& table, frmField& form) {
    table.Add("lblDepletion", form.lblDepletion);
    table.Add("lblNext", form.lblNext);
    table.Add("lblLastRain", form.lblLastRain);
    table.Add("lblLastIrrigation", form.lblLastIrrigation);
    table.Add("Chart1", form.Chart1);
}

void AddDepletionPanel(MenuTable& table, frmField& form) {
    table.Add("ShapeDepl", form.ShapeDepl);
    table.Add("lblDeplVal", form.lblDeplVal);
    table.Add("lblRootWater", form.lblRootWater);
    table.Add("lblNewDepl", form.lblNewDepl);
    table.Add("TxtNewDepl", form.TxtNewDepl);
    table.Add("cmdDeplOK", form.cmdDeplOK).Click(cmdDeplOK_Click);
    table.Add("cmdDeplCanc", form.cmdDeplCanc).Click(form_clear).Exit();
    table.Add("lbl_reset", form.lbl_reset);
    table.Add("cmd_Reset", form.cmd_Reset).Click(cmd_Reset_Click);
}

void AddMadPanel(MenuTable& table, frmField& form) {
    table.Add("ShapeMAD", form.ShapeMAD);
    table.Add("lblCurrMAD", form.lblCurrMAD);
    table.Add("lblNewMAD", form.lblNewMAD);
    table.Add("txtNewMAD", form.txtNewMAD);
    table.Add("lblCurrMADC", form.lblCurrMADC);
    table.Add("lblNewMADC", form.lblNewMADC);
    table.Add("txtNewMADC", form.txtNewMADC);
    table.Add("cmdMADOK", form.cmdMADOK).Click(cmdMADOK_Click);
    table.Add("cmdMADCanc", form.cmdMADCanc).Click(form_clear).Exit();
}

void AddEfficiencyPanel(MenuTable& table, frmField& form) {
    table.Add("ShapeIRR", form.ShapeIRR);
    table.Add("lblCurrIRR", form.lblCurrIRR);
    table.Add("lblNewIRR", form.lblNewIRR);
    table.Add("TxtNewIRR", form.TxtNewIRR);
    table.Add("cmdIRROK", form.cmdIRROK).Click(cmdIRROK_Click);
    table.Add("cmdIRRCanc", form.cmdIRRCanc).Click(form_clear).Exit();
}

void AddFieldMenus(MenuTable& table, frmField& form) {
    table.Add("m_displays", form.m_displays).Click(m_displays_Click);
    table.Add("mnuInit", form.mnuInit);
    table.Add("mnuSelect", form.mnuSelect).Click(mnuSelect_Click);
    table.Add("mnuNew", form.mnuNew).Click(mnuNew_Click);
    table.Add("mnuDelete", form.mnuDelete).Click(mnuDelete_Click);
    table.Add("mnuRestore", form.mnuRestore).Click(mnuRestore_Click);
    table.Add("mnuEdit", form.mnuEdit);
    table.Add("MnuPred", form.MnuPred).Click(MnuPred_Click);
    table.Add("mnuAdd", form.mnuAdd).Click(mnuAdd_Click);
    table.Add("mnuCuts", form.mnuCuts).Click(mnuCuts_Click);
    table.Add("mnu_MAD", form.mnu_MAD).Click(mnu_MAD_Click);
    table.Add("mnuIEffic", form.mnuIEffic).Click(mnuIEffic_Click);
    table.Add("mnuDepletion", form.mnuDepletion).Click(mnuDepletion_Click);
    table.Add("mnuFieldSummary", form.mnuFieldSummary).Click(mnuFieldSummary_Click);
    table.Add("mnuFieldDetails", form.mnuFieldDetails).Click(mnuFieldDetails_Click);
    table.Add("mnuSeasonChart", form.mnuSeasonChart).Click(mnuSeasonChart_Click);
}

void AddReportMenus(MenuTable& table, frmField& form) {
    table.Add("mnuRep", form.mnuRep);
    table.Add("mnuIrrSchedule", form.mnuIrrSchedule);
    table.Add("m_iprint", form.m_iprint).Click(m_iprint_Click);
    table.Add("m_isave", form.m_isave).Click(m_isave_Click);
    table.Add("mnuFieldReport", form.mnuFieldReport);
    table.Add("m_prt_print", form.m_prt_print).Click(m_prt_print_Click);
    table.Add("m_rpt_disk", form.m_rpt_disk).Click(m_rpt_disk_Click);
    table.Add("m_rpt_display", form.m_rpt_display).Click(m_rpt_display_Click);
    table.Add("mnuHarvested", form.mnuHarvested).Click(mnuHarvested_Click);
}

void AddOtherMenus(MenuTable& table, frmField& form) {
    table.Add("mconfig", form.mconfig);
    table.Add("mbackground", form.mbackground);
    table.Add("mgeese1", form.mgeese1).Click(mgeese1_Click);
    table.Add("mgeese2", form.mgeese2).Click(mgeese2_Click);
    table.Add("mfield", form.mfield).Click(mfield_Click);
    table.Add("mblank", form.mblank).Click(mblank_Click);
    table.Add("mnuReturn", form.mnuReturn).Click(Leave).Exit();
}

/// Whether `form_clear` leaves a control alone.
bool IsAlwaysThere(const frmField& form, const ControlEntry& entry) {
    for (const Control* control : std::initializer_list<const Control*>{
             &form.lblDepletion, &form.lblNext, &form.lblLastRain, &form.lblLastIrrigation, &form.Chart1})
        if (&entry.Shared() == control) return true;  // as long as a field is in work
    return std::holds_alternative<MenuItem*>(entry.Where) || std::holds_alternative<Image*>(entry.Where) ||
           std::holds_alternative<StatusBar*>(entry.Where) || &entry.Shared() == &form.cmd_return;
}

}  // namespace

FormTable TableOf(frmField& form) {
    MenuTable table(form, FormName::frmField, "frmField");
    AddChoice(table, form);
    AddFieldShown(table, form);
    AddFieldNow(table, form);
    AddDepletionPanel(table, form);
    AddMadPanel(table, form);
    AddEfficiencyPanel(table, form);
    table.Add("cmd_return", form.cmd_return).Click(Leave).Exit();
    table.Add("StatusBar1", form.StatusBar1);
    table.Add("Image1", form.Image1);
    table.Add("Image2", form.Image2);
    table.Add("Image3", form.Image3);
    AddFieldMenus(table, form);
    AddReportMenus(table, form);
    AddOtherMenus(table, form);
    table.Load(Load)
        .Appear(ShowFieldNow)
        .Fill(SelectField)
        .Follow(ShowFieldNow)
        .Close(Leave)
        .Escape(Escape)
        .Unload(Unload);
    return table.Done();
}

void form_clear(frmField& form) {
    for (ControlEntry& entry : FormOf(FormName::frmField).Controls)
        if (!IsAlwaysThere(form, entry)) std::visit([](auto* control) { control->Visible = false; }, entry.Where);
    form.CropPicked = 0;
    form.SoilPicked = false;
}

void ShowNoField(frmField& form) {
    form_clear(form);
    form.StatusBar1.Panels = {};
    form.Caption = "Field Options, Veraqua " + State.VersionString;
}

}  // namespace veraqua
