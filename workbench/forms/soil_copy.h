#pragma once

#include <optional>
#include <vector>

#include "core/backups.h"
#include "core/field_file.h"
#include "screen/form.h"
#include "workbench/soil_copy.h"

/// Taking the soil of a new field from another field, in use or harvested.
namespace veraqua {

struct frmCopySoilData : Form {
    frmCopySoilData() {
        Caption = "Copy Soil & Water Data";
        txtData.ReadOnly = true;
    }

    Button cmdPreview{"Preview Current Fields"};
    Button cmdDeleted{"Preview Harvested/ Deleted Fields"};
    Label lblField;
    ComboBox ComboField;
    ComboBox ComboDField;
    Label Label1{"PREVIEW SCREEN"};
    TextBox txtData{"Click on one of the Preview buttons and pick a field from the list."};
    Label lblSelect{"Click on 'Select' to copy previewed data to your new field."};
    Button cmdSelect{"Select"};
    Button cmdOK{"OK"};
    Button cmdPrint{"Print"};
    Button cmdCancel{"CANCEL", "Cancel crop initialization & Return"};
    StatusBar StatusBar1;

    std::vector<Backup> DeletedFiles;    ///< as listed in `ComboDField`
    std::optional<FieldFile> Previewed;  ///< whose soil is on the screen
    bool Selected = false;               ///< it has been chosen
    CopiedSoil Chosen;                   ///< what the form comes to
};

FormTable TableOf(frmCopySoilData& form);

}  // namespace veraqua
