#pragma once

#include "workbench/forms/field_menu.h"

/// Harvest and restore as the workbench's menu leads to them.
namespace veraqua {

void mnuDelete_Click(frmField& form);
/// The same for the field of `row`, which can't be taken in work.
void HarvestDamaged(frmField& form, int row);

void mnuRestore_Click(frmField& form);

/// The user has picked backup `number`, from 1, of those listed.
void RestorePicked(frmField& form, int number);

}  // namespace veraqua
