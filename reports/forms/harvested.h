#pragma once

#include <optional>
#include <vector>

#include "core/backups.h"
#include "reports/forms/shown_text.h"
#include "screen/form.h"

/// The field report of a harvested field, from the backup of its file.
namespace veraqua {

struct frmSelectHarvested : Form {
    frmSelectHarvested() { Caption = "Select Harvested Field"; }

    Label lblField{"Harvested/Deleted Fields"};
    ComboBox ComboDField;
    Label Label1{"PREVIEW SCREEN"};
    ShownText txtData{"Select a field from the drop-down list to your right."};
    Label lblSelect{"- Use this screen to select your deleted field.  Then Click on OK to print it out."};
    Button cmdOK{"OK"};
    Button cmdCancel{"CANCEL"};
    StatusBar StatusBar1;

    std::vector<Backup> Backups;     ///< as listed
    std::optional<FieldFile> Field;  ///< the one that is previewed
};

FormTable TableOf(frmSelectHarvested& form);

}  // namespace veraqua
