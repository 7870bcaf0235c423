#include "shell/forms.h"

#include "screen/forms.h"

namespace veraqua {

void AddShellForms() {}

}  // namespace veraqua
