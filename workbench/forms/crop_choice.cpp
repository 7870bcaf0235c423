#include "workbench/forms/crop_choice.h"

#include "core/crop_table.h"
#include "core/state.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "workbench/forms/field_choice.h"
#include "workbench/new_field.h"

namespace veraqua {

namespace {

constexpr std::string_view FixedLayers = "Fixed Soil Layers";
constexpr std::string_view VariableLayers = "Variable Soil Layers";

void ListCrops(ComboBox& crops) {
    LoadCropList(TheScreen());
    crops.Clear();
    int number = 0;
    for (const std::string& name : State.CropNames) crops.Add(name, ++number);
}

void SetEntryVisible(frmField& form, bool visible) {
    for (Control* control : std::initializer_list<Control*>{&form.comboCrops, &form.lblCrops, &form.Combo_Soils,
                                                            &form.Lbl_Soils, &form.cmd_OK, &form.lbl_initialize})
        control->Visible = visible;
}

}  // namespace

void mnuNew_Click(frmField& form) {
    const OrRefused<int> row = RowForNewField();
    if (!row.IsDone()) return Tell(TheScreen(), row.Why());
    SelectNothing(form);
    ListCrops(form.comboCrops);
    State.CurrentField = static_cast<std::int16_t>(*row);
    form.cmd_Cancel.Visible = true;
    SetEntryVisible(form, true);
    form.Combo_Soils.Clear();
    for (const std::string_view format : {FixedLayers, VariableLayers}) form.Combo_Soils.Add(std::string(format));
    Focus(form.comboCrops);
}

void comboCrops_Click(frmField& form) {
    if (const ListItem* picked = form.comboCrops.Selected())
        form.CropPicked = picked->Data;
    else
        TheScreen().Tell("Please select a crop from the drop-down list", "Pick a crop!");
}

void Combo_Soils_Click(frmField& form) {
    State.VariableSoil = form.Combo_Soils.Text != FixedLayers;
    form.SoilPicked = true;
}

void cmd_OK_Click(frmField& form) {
    if (form.CropPicked == 0) {
        TheScreen().Tell("Please select a crop to plant", "Missing Crop");
        Focus(form.comboCrops);
        return;
    }
    if (!form.SoilPicked) {
        TheScreen().Tell("Please select a soils format", "Missing Soil");
        Focus(form.Combo_Soils);
        return;
    }
    SetEntryVisible(form, false);
    ReadCrop(TheScreen(), form.CropPicked);
    ShowInPlaceOf(FormName::frmField, FormName::frmLoadField);
    FieldInfo(form);
}

}  // namespace veraqua
