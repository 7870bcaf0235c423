#pragma once

#include "workbench/forms/field_menu.h"

/// The panels of the workbench that correct a running field: its MAD, its irrigation efficiency, its depletion; and the
/// start of the crop over from day 1. Each takes the field's header anew from its file before it changes it.
namespace veraqua {

void mnu_MAD_Click(frmField& form);
void cmdMADOK_Click(frmField& form);

void mnuIEffic_Click(frmField& form);
void cmdIRROK_Click(frmField& form);

void mnuDepletion_Click(frmField& form);
void cmdDeplOK_Click(frmField& form);
void cmd_Reset_Click(frmField& form);

}  // namespace veraqua
