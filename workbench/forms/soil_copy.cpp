#include "workbench/forms/soil_copy.h"

#include <fmt/format.h>

#include "core/directory.h"
#include "core/state.h"
#include "reports/soil_preview.h"
#include "screen/forms.h"
#include "screen/screen.h"

namespace veraqua {

namespace {

void Offer(frmCopySoilData& form, bool deleted) {
    form.lblField.Caption = deleted ? "Deleted Fields" : "Current Fields";
    form.lblField.Visible = true;
    form.ComboField.Visible = !deleted;
    form.ComboDField.Visible = deleted;
}

void Load(frmCopySoilData& form) { form.lblField.Visible = form.ComboField.Visible = form.ComboDField.Visible = false; }

void cmdPreview_Click(frmCopySoilData& form) {
    Offer(form, false);
    form.ComboField.Clear();
    if (State.FieldCount == 0) TheScreen().Tell("No current fields!", "Warning");
    for (const int row : RowsInUse())
        form.ComboField.Add(fmt::format("{}  -  {}", State.Stat[row].FieldId.Whole(), State.Stat[row].CropName.Text()),
                            row);
}

void cmdDeleted_Click(frmCopySoilData& form) {
    Offer(form, true);
    form.ComboDField.Clear();
    form.DeletedFiles = FindBackups();
    if (form.DeletedFiles.empty()) TheScreen().Tell(NoBackupsText, "Warning");
    int number = 0;
    for (const Backup& backup : form.DeletedFiles) form.ComboDField.Add(ListText(backup), ++number);
}

/// Which day's water contents are copied: those that the file has now. Zones that gained water have changed them.
std::string ContentsAre(const FieldFile& file) {
    const auto& history = file.Lists.History;
    return history.empty() ? " Contents: as of the planting day"
                           : fmt::format(" Contents: as of {}, no longer those of the planting day",
                                         JulianToShortText(history.back().Day));
}

/// The soil format of the new field follows a mere preview.
void Preview(frmCopySoilData& form, FieldFile file) {
    form.txtData.Text = SoilPreview(file, State.EnglishUnits);
    const HeaderCommon& header = file.Header();
    form.StatusBar1.Panels[0] = fmt::format("Field={}  ID={}", header.CropName.Text(), header.FieldId.Text());
    form.StatusBar1.Panels[1] = " Planted: " + JulianToShortText(header.PlantDay);
    form.StatusBar1.Panels[2] = ContentsAre(file);
    State.VariableSoil = file.VariableSoil();
    form.Previewed = std::move(file);
    form.Selected = false;
}

void ComboField_Click(frmCopySoilData& form) {
    if (const ListItem* picked = form.ComboField.Selected()) Preview(form, LoadFieldFile(picked->Data));
}

void ComboDField_Click(frmCopySoilData& form) {
    if (const ListItem* picked = form.ComboDField.Selected())
        Preview(form, LoadBackup(form.DeletedFiles.at(static_cast<std::size_t>(picked->Data - 1)).FileName));
}

void cmdSelect_Click(frmCopySoilData& form) {
    if (!form.Previewed) {
        TheScreen().Tell("Please click on a crop to preview it first!");
        return;
    }
    form.Chosen = CopySoilOf(*form.Previewed);
    form.Selected = true;
}

void cmdOK_Click(frmCopySoilData& form) {
    if (form.Previewed && !form.Selected &&
        TheScreen().YesNo("Do you wish to select the Previewed Soil & Water Data?", "Confirm Data", Icon::Question,
                          false))
        cmdSelect_Click(form);
    Unload(FormName::frmCopySoilData);
}

void cmdPrint_Click(frmCopySoilData&) { PrintForm(FormName::frmCopySoilData, CannotPrintForm); }

void cmdCancel_Click(frmCopySoilData&) { Unload(FormName::frmCopySoilData); }

}  // namespace

FormTable TableOf(frmCopySoilData& form) {
    FormFor table(form, FormName::frmCopySoilData, "frmCopySoilData");
    table.Add("cmdPreview", form.cmdPreview).Click(cmdPreview_Click);
    table.Add("cmdDeleted", form.cmdDeleted).Click(cmdDeleted_Click);
    table.Add("lblField", form.lblField);
    table.Add("ComboField", form.ComboField).Click(ComboField_Click);
    table.Add("ComboDField", form.ComboDField).Click(ComboDField_Click);
    table.Add("Label1", form.Label1);
    table.Add("txtData", form.txtData);
    table.Add("lblSelect", form.lblSelect);
    table.Add("cmdSelect", form.cmdSelect).Click(cmdSelect_Click);
    table.Add("cmdOK", form.cmdOK).Click(cmdOK_Click);
    table.Add("cmdPrint", form.cmdPrint).Click(cmdPrint_Click);
    table.Add("cmdCancel", form.cmdCancel).Click(cmdCancel_Click).Exit();
    table.Add("StatusBar1", form.StatusBar1);
    table.Load(Load).Close(cmdCancel_Click);
    return table.Done();
}

}  // namespace veraqua
