#include "shell/forms.h"

#include "screen/forms.h"
#include "shell/configuration.h"
#include "shell/data_path.h"
#include "shell/help.h"
#include "shell/main_menu.h"

namespace veraqua {

void AddShellForms() {
    AddForm<frmVeraqua>();
    AddForm<frmConfig>();
    AddForm<frmPath>();
    AddForm<frmHelp>();
}

}  // namespace veraqua
