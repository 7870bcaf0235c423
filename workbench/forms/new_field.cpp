#include "workbench/forms/new_field.h"

#include <initializer_list>

#include <fmt/format.h>

#include "catch_up/weather_commands.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/state.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "workbench/forms/field_choice.h"
#include "workbench/forms/field_menu.h"
#include "workbench/forms/soil_copy.h"
#include "workbench/new_field.h"

namespace veraqua {

namespace {

// ---------------------------------------------------------------------------------------------------- the form's start

void SetVisible(bool visible, std::initializer_list<Control*> controls) {
    for (Control* control : controls) control->Visible = visible;
}

void ShowGroups(frmLoadField& form) {
    SetVisible(!State.IsHay, {&form.lbl_default, &form.txt_def_root, &form.lbl_new_root, &form.txt_new_root,
                              &form.lbl_ft, &form.shp_rootdepth, &form.lbl_root});
    SetVisible(State.IsHay, {&form.frm_hay, &form.tlbl_MAD, &form.txtMADcritical, &form.tlbl_maxroot, &form.txtRootD,
                             &form.tlbl_ft, &form.tlbl_Dry1, &form.txtDry, &form.tlbl_Dry2});
}

void Load(frmLoadField& form) {
    form.Caption = "Field Info, Veraqua " + State.VersionString;
    form.lblCropName.Caption = "Field Crop: " + CropInWork();
    form.VariablePicked = State.VariableSoil;
    ShowGroups(form);
    form.lbl_ft.Caption = State.EnglishUnits ? "(in inches)" : "(in millimeters)";
    const FieldEntry start = StartingEntry();
    form.CropRootMax = start.CropRootMax;
    if (State.IsHay)
        form.lbl_plantdate.Caption = "Onset of Growth Date:";
    else
        form.txt_def_root.Text = DepthText(start.CropRootMax) + (State.EnglishUnits ? " in." : " mm.");
    form.txtDry.Text = start.DryDays;
    form.txtRootD.Text = start.RootDepth;
    form.txtMAD.Text = start.Mad;
    form.txtIrrEff.Text = start.Efficiency;
    form.TxtPlantDate.Text = start.PlantDate;
    State.StationCode = NoStation;  // that of the field before
    State.StationName.clear();
    int number = 0;
    for (const std::string& station : State.DefaultStations) form.ComboKESTA.Add(station, ++number);
    Focus(form.txtFieldID);
}

/// A field that was not created is in work no longer.
void UnloadForm(frmLoadField&) {
    Show(FormName::frmField);
    if (FieldIsChosen()) {
        form_clear(The<frmField>());
    } else {
        State.CurrentField = 0;
        ShowNoField(The<frmField>());
    }
}

void cmd_Cancel_Click(frmLoadField&) { Unload(FormName::frmLoadField); }

// ------------------------------------------------------------------------------------------------ checks while typing

void ShowStatus(frmLoadField& form) {
    form.StatusBar1.Panels = {fmt::format("Field ID={}", Trimmed(form.txtFieldID.Text)),
                              "Planted:" + form.TxtPlantDate.Text, State.StationName};
}

bool MayLeave(TextBox& box, std::optional<Refused> check(std::string_view typed)) {
    const std::optional<Refused> refused = check(box.Text);
    if (!refused) return true;
    Tell(TheScreen(), *refused);
    SelectText(box);
    return false;
}

bool txtMAD_Leave(frmLoadField& form) { return MayLeave(form.txtMAD, CheckMad); }
bool txtIrrEff_Leave(frmLoadField& form) { return MayLeave(form.txtIrrEff, CheckEfficiency); }
bool txtMADcritical_Leave(frmLoadField& form) { return MayLeave(form.txtMADcritical, CheckMadCritical); }
bool txtRootD_Leave(frmLoadField& form) { return MayLeave(form.txtRootD, CheckHayRootDepth); }
bool txtDry_Leave(frmLoadField& form) { return MayLeave(form.txtDry, CheckDryDays); }

bool TxtPlantDate_Leave(frmLoadField& form) {
    if (const std::optional<Refused> refused = CheckPlantDate(form.TxtPlantDate.Text)) {
        Tell(TheScreen(), *refused);
        Focus(form.TxtPlantDate);
        return false;
    }
    ShowStatus(form);
    return true;
}

// ------------------------------------------------------------------------------------------------- the weather station

int StationPicked(const frmLoadField& form) {
    const ListItem* row = form.ComboKESTA.Selected();
    return row == nullptr ? 0 : row->Data;
}

void Pick(frmLoadField& form, StationPick how) {
    ComboBox& list = form.ComboKESTA;
    if (const std::optional<Refused> refused = PickStation(StationPicked(form), how)) {
        Tell(TheScreen(), *refused);
        // What was typed without naming a station stands.
        if (list.Selected() != nullptr) list.Select(-1);
        return Focus(list);
    }
    ShowStatus(form);
}

void ComboKESTA_Click(frmLoadField& form) { Pick(form, StationPick::Clicked); }
void ComboKESTA_Change(frmLoadField& form) { Pick(form, StationPick::Typed); }

// ---------------------------------------------------------------------------------------------------------- the field

/// The default as it is shown, rounded, stands for the default itself.
std::string NewRootDepth(const frmLoadField& form) {
    const std::string& typed = form.txt_new_root.Text;
    return Numeric(typed) == Numeric(DepthText(form.CropRootMax)) ? "" : typed;
}

FieldEntry Entered(const frmLoadField& form) {
    return {.FieldId = form.txtFieldID.Text,
            .PlantDate = form.TxtPlantDate.Text,
            .Station = StationPicked(form),
            .Efficiency = form.txtIrrEff.Text,
            .Mad = form.txtMAD.Text,
            .MadCritical = form.txtMADcritical.Text,
            .RootDepth = State.IsHay ? form.txtRootD.Text : NewRootDepth(form),
            .DryDays = form.txtDry.Text,
            .CropRootMax = form.CropRootMax};
}

/// Where the user has to set right what was refused. What the boxes' own checks refuse never comes this far.
Control& Place(frmLoadField& form, Given where) {
    switch (where) {
        case Given::Station: return form.ComboKESTA;
        case Given::Date: return form.TxtPlantDate;
        case Given::RootDepth: return form.txt_new_root;
        default: return form.txtFieldID;
    }
}

/// False after the user has been told why the entry can't be taken.
bool Describe(frmLoadField& form) {
    FieldEntry entry = Entered(form);
    const std::optional<Refused> refused = DescribeField(TheScreen(), entry);
    form.TxtPlantDate.Text = entry.PlantDate;
    if (!refused) return true;
    Tell(TheScreen(), *refused);
    Focus(Place(form, refused->Where));
    return false;
}

void ShowOnWorkbench() {
    The<frmField>().StatusBar1.Panels = {fmt::format("Field: {} ", CropInWork()), fmt::format("ID: {} ", IdInWork()),
                                         fmt::format("Kesta: {}, {}  ", State.StationName, State.StationCode)};
}

/// Leads through the choice of a soil to copy, where one was asked for, to the form of the soil's format.
void EnterSoil(frmLoadField& form) {
    if (form.Opt_new.Chosen) {
        form.Copied = {};
        State.VariableSoil = form.VariablePicked;
    } else {
        ShowModal(FormName::frmCopySoilData);
        const CopiedSoil& chosen = The<frmCopySoilData>().Chosen;
        if (chosen.SoilCopied) form.Copied = chosen;
    }
    if (form.Copied.SoilCopied) State.VariableSoil = form.Copied.IsVariable();
    ShowModal(State.VariableSoil ? FormName::frmCapVar : FormName::frmCap);
}

void cmd_OK_Click(frmLoadField& form) {
    if (!LeaveChecksPass(FormName::frmLoadField) || !Describe(form)) return;
    ShowOnWorkbench();
    if (FindWeather(TheScreen())) EnterSoil(form);
}

}  // namespace

void FinishEntry(const EnteredSoil& soil, FormName soilForm) {
    StartField(TheScreen(), soil);
    Unload(FormName::frmLoadField);
    Unload(soilForm);
    FieldInfo(The<frmField>());
    ShowFieldData();
}

FormTable TableOf(frmLoadField& form) {
    FormFor table(form, FormName::frmLoadField, "frmLoadField");
    table.Add("lblCropName", form.lblCropName);
    table.Add("lbl_ID", form.lbl_ID);
    table.Add("txtFieldID", form.txtFieldID).Change(ShowStatus);
    table.Add("lbl_plantdate", form.lbl_plantdate);
    table.Add("TxtPlantDate", form.TxtPlantDate).Leave(TxtPlantDate_Leave);
    table.Add("lbl_KESTA", form.lbl_KESTA);
    table.Add("ComboKESTA", form.ComboKESTA).Click(ComboKESTA_Click).Change(ComboKESTA_Change);
    table.Add("lbl_MAD", form.lbl_MAD);
    table.Add("txtMAD", form.txtMAD).Leave(txtMAD_Leave);
    table.Add("lbl_IrrEff", form.lbl_IrrEff);
    table.Add("txtIrrEff", form.txtIrrEff).Leave(txtIrrEff_Leave);
    table.Add("shp_rootdepth", form.shp_rootdepth);
    table.Add("lbl_default", form.lbl_default);
    table.Add("txt_def_root", form.txt_def_root);
    table.Add("lbl_new_root", form.lbl_new_root);
    table.Add("txt_new_root", form.txt_new_root);
    table.Add("lbl_ft", form.lbl_ft);
    table.Add("lbl_root", form.lbl_root);
    table.Add("frm_hay", form.frm_hay);
    table.Add("tlbl_MAD", form.tlbl_MAD);
    table.Add("txtMADcritical", form.txtMADcritical).Leave(txtMADcritical_Leave);
    table.Add("tlbl_maxroot", form.tlbl_maxroot);
    table.Add("txtRootD", form.txtRootD).Leave(txtRootD_Leave);
    table.Add("tlbl_ft", form.tlbl_ft);
    table.Add("tlbl_Dry1", form.tlbl_Dry1);
    table.Add("txtDry", form.txtDry).Leave(txtDry_Leave);
    table.Add("tlbl_Dry2", form.tlbl_Dry2);
    table.Add("Soils", form.Soils);
    table.Add("Opt_new", form.Opt_new);
    table.Add("Opt_current", form.Opt_current);
    table.Add("Opt_deleted", form.Opt_deleted);
    table.Add("cmd_OK", form.cmd_OK).Click(cmd_OK_Click);
    table.Add("cmd_Cancel", form.cmd_Cancel).Click(cmd_Cancel_Click).Exit();
    table.Add("StatusBar1", form.StatusBar1);
    table.Load(Load).Close(cmd_Cancel_Click).Unload(UnloadForm);
    return table.Done();
}

}  // namespace veraqua
