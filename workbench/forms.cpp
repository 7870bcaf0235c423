#include "workbench/forms.h"

#include "screen/forms.h"
#include "workbench/field_menu.h"

namespace veraqua {

void AddWorkbenchForms() {}

}  // namespace veraqua
