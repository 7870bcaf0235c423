#pragma once

#include "workbench/forms/field_menu.h"

/// Harvest and restore as the workbench's menu leads to them.
namespace veraqua {

void mnuDelete_Click(frmField& form);
void mnuRestore_Click(frmField& form);

/// The user has picked backup `number`, from 1, of those listed.
void RestorePicked(frmField& form, int number);

}  // namespace veraqua
