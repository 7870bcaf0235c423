#include "shell/forms/forms.h"

#include "screen/forms.h"
#include "shell/forms/about.h"
#include "shell/forms/configuration.h"
#include "shell/forms/data_path.h"
#include "shell/forms/farm.h"
#include "shell/forms/help.h"
#include "shell/forms/main_menu.h"

namespace veraqua {

void AddShellForms() {
    AddForm<frmVeraqua>();
    AddForm<frmConfig>();
    AddForm<frmPath>();
    AddForm<frmHelp>();
    AddForm<frmAbout>();
    AddForm<frmFarm>();
}

}  // namespace veraqua
