#pragma once

#include "workbench/forms/field_menu.h"

/// The start of a new field on the workbench: its crop and its soil format.
namespace veraqua {

void mnuNew_Click(frmField& form);
void comboCrops_Click(frmField& form);
void Combo_Soils_Click(frmField& form);
void cmd_OK_Click(frmField& form);

}  // namespace veraqua
