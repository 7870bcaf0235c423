#include "workbench/forms/forms.h"

#include "screen/forms.h"
#include "workbench/forms/cuttings.h"
#include "workbench/forms/field_menu.h"
#include "workbench/forms/new_field.h"
#include "workbench/forms/soil_copy.h"
#include "workbench/forms/soil_layers.h"
#include "workbench/forms/soil_zones.h"
#include "workbench/forms/water_events.h"

namespace veraqua {

void AddWorkbenchForms() {
    AddForm<frmField>();
    AddForm<frmLoadField>();
    AddForm<frmCopySoilData>();
    AddForm<frmCapVar>();
    AddForm<frmCap>();
    AddForm<frmAddWater>();
    AddForm<frmCuts>();
}

}  // namespace veraqua
