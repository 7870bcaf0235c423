#include "reports/forms/harvested.h"

#include <fmt/format.h>

#include "core/field_file.h"
#include "core/state.h"
#include "reports/forms/report_options.h"
#include "reports/forms/report_roads.h"
#include "reports/report_file.h"
#include "reports/soil_preview.h"
#include "screen/forms.h"
#include "screen/screen.h"

namespace veraqua {

namespace {

void Load(frmSelectHarvested& form) {
    form.Backups = FindBackups();
    if (form.Backups.empty()) {
        TheScreen().Tell(NoBackupsText);
        Unload(FormName::frmSelectHarvested);
        return;
    }
    for (const Backup& backup : form.Backups) form.ComboDField.Add(ListText(backup));
}

void ComboDField_Click(frmSelectHarvested& form) {
    const int position = form.ComboDField.Index;
    if (position < 0) return;
    const Backup& backup = form.Backups[static_cast<std::size_t>(position)];
    form.Field.reset();
    form.txtData.Text.clear();
    form.StatusBar1.Panels[0] = fmt::format("Field={}  ID={}", position + 1, backup.FieldId);
    FieldFile field = LoadBackup(backup.FileName);
    form.txtData.Text = InFile(backup.FileName, [&] { return SoilPreview(field, State.EnglishUnits); });
    form.Field = std::move(field);
}

void cmdOK_Click(frmSelectHarvested& form) {
    if (!form.Field) {
        TheScreen().Tell("Select a field from the drop-down list to your right.");
        return;
    }
    const Backup& backup = form.Backups[static_cast<std::size_t>(form.ComboDField.Index)];
    const ReportDestination destination = ChooseDestination(SavedReport::HarvestedField, HarvestedReportName(backup));
    if (destination == ReportDestination::None) return;
    const FieldReport report =
        InFile(backup.FileName, [&] { return GatherHarvestedReport(*form.Field, State.EnglishUnits); });
    if (destination == ReportDestination::Printer)
        PrintFieldReport(report);
    else
        SaveFieldReport(TheScreen(), report);
}

void cmdCancel_Click(frmSelectHarvested&) { Unload(FormName::frmSelectHarvested); }

}  // namespace

FormTable TableOf(frmSelectHarvested& form) {
    FormFor table(form, FormName::frmSelectHarvested, "frmSelectHarvested");
    table.Add("lblField", form.lblField);
    table.Add("ComboDField", form.ComboDField).Click(ComboDField_Click);
    table.Add("Label1", form.Label1);
    table.Add("txtData", form.txtData);
    table.Add("lblSelect", form.lblSelect);
    table.Add("cmdOK", form.cmdOK).Click(cmdOK_Click);
    table.Add("cmdCancel", form.cmdCancel).Click(cmdCancel_Click).Exit();
    table.Add("StatusBar1", form.StatusBar1);
    table.Load(Load).Close(cmdCancel_Click);
    return table.Done();
}

}  // namespace veraqua
