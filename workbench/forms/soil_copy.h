#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/backups.h"
#include "core/field_file.h"
#include "screen/form.h"

/// Taking the soil of a new field from another field, in use or harvested.
namespace veraqua {

/// The soil that was chosen for copying. The soil forms start with it, and the user confirms it there.
struct CopiedSoil {
    bool SoilCopied = false;        ///< the rest holds a choice
    LayerBounds CopiedDepths{};     ///< thicknesses of layers, m; all 0 with fixed layers
    Zones CopiedCapacity{};         ///< mm/m
    Zones CopiedContent{};          ///< mm/m, as the source's file has it now
    std::int16_t CopiedCapTop = 0;  ///< index of the last zone
    std::int16_t CopiedConTop = 0;  ///< likewise
    float CopiedInterval1 = 0;      ///< thickness of a capacity zone, m; 0 with variable layers
    float CopiedInterval2 = 0;      ///< of a content zone

    bool IsVariable() const { return CopiedDepths[0] > 0; }
};

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
};

FormTable TableOf(frmCopySoilData& form);

}  // namespace veraqua
