#pragma once

#include "workbench/forms/field_menu.h"

namespace veraqua {

/// Shows how the field in work stands: its depletion of the present day against the MAD, its next irrigation, its last
/// rain and irrigation, and its season. Nothing of that is there while no field is in work.
void ShowFieldNow(frmField& form);

}  // namespace veraqua
