#include "workbench/forms.h"

#include "screen/forms.h"
#include "workbench/cuttings.h"
#include "workbench/field_menu.h"
#include "workbench/new_field.h"
#include "workbench/soil_copy.h"
#include "workbench/soil_layers.h"
#include "workbench/soil_zones.h"
#include "workbench/water_events.h"

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
