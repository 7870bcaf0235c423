#include "workbench/forms/harvest.h"

#include "core/backups.h"
#include "core/state.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "workbench/forms/field_choice.h"
#include "workbench/harvest.h"

namespace veraqua {

void mnuDelete_Click(frmField& form) {
    ForgetPick(form);
    if (!ExpectField("Please select a field to delete.")) {
        SelectNothing(form);
        form.cmd_Cancel.Visible = true;
        form.DeletePending = true;
        ListFields(form);
        return;
    }
    const OrRefused<Harvested> outcome = HarvestField(TheScreen(), State.CurrentField, DamagedField::IsHarvested);
    if (!outcome.IsDone()) return Tell(TheScreen(), outcome.Why());
    ShowNoField(form);
    if (State.FieldCount > 0) ListFields(form);
}

void HarvestDamaged(frmField& form, int row) {
    State.CurrentField = static_cast<std::int16_t>(row);
    mnuDelete_Click(form);
    if (State.CurrentField == row) SelectNothing(form);  // not harvested; its header is that of another field
}

void mnuRestore_Click(frmField& form) {
    const std::vector<Backup> backups = FindBackups();
    if (backups.empty()) {
        TheScreen().Tell(NoBackupsText, "Warning");
        return;
    }
    SelectNothing(form);
    form.cmd_Cancel.Visible = true;
    form.RestorePending = true;
    OfferList(form);
    form.Backups.clear();
    for (const Backup& backup : backups) {
        form.Backups.push_back(backup.FileName);
        form.ComboField.Add(ListText(backup), static_cast<int>(form.Backups.size()));
    }
    Focus(form.ComboField);
}

void RestorePicked(frmField& form, int number) {
    const std::string& backup = form.Backups[static_cast<std::size_t>(number - 1)];
    const OrRefused<int> outcome = RestoreField(TheScreen(), backup);
    if (!outcome.IsDone()) return Tell(TheScreen(), outcome.Why());
    SelectNothing(form);
    ListFields(form);
}

}  // namespace veraqua
