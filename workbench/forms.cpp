#include "workbench/forms.h"

#include "screen/forms.h"
#include "workbench/cuttings.h"
#include "workbench/field_menu.h"
#include "workbench/water_events.h"

namespace veraqua {

void AddWorkbenchForms() { AddForm<frmField>(); }

}  // namespace veraqua
