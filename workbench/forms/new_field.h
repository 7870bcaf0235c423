#pragma once

#include "screen/form.h"
#include "workbench/soil_copy.h"
#include "workbench/soil_entry.h"

/// The entry of a new field: everything but its soil. Until the soil form is confirmed the field stands in no file,
/// only in the header in memory and in an unused row of the directory.
namespace veraqua {

struct frmLoadField : Form {
    frmLoadField() {
        Caption = "Enter Field Info";
        txt_def_root.ReadOnly = true;
    }

    Label lblCropName;
    Label lbl_ID{"Field ID Code:"};
    TextBox txtFieldID{{}, 10};
    Label lbl_plantdate{"Planting Date:"};
    TextBox TxtPlantDate;
    Label lbl_KESTA{"KESTA Weather Station:"};
    ComboBox ComboKESTA{true};
    Label lbl_MAD{"Management Allowed Deficiency (MAD) %:"};
    TextBox txtMAD;
    Label lbl_IrrEff{"Irrigation Efficiency %:"};
    TextBox txtIrrEff;

    // An ordinary crop
    Label lbl_default{"Default Max Rooting Depth:"};
    TextBox txt_def_root;
    Label lbl_new_root{"New Max Rooting Depth:"};
    TextBox txt_new_root;
    Label lbl_ft;
    Frame shp_rootdepth;
    Label lbl_root{
        "Only reset the maximum rooting depth if you know your soil layers won't support the default value!"};

    // Hay
    Frame frm_hay{"Hay Only"};
    Label tlbl_MAD{"Critical MAD (%):"};
    TextBox txtMADcritical;
    Label tlbl_maxroot{"Max Rooting Depth:"};
    TextBox txtRootD;
    Label tlbl_ft{"(in inches/mm)"};
    Label tlbl_Dry1{"Field Drying Time:"};
    TextBox txtDry;
    Label tlbl_Dry2{"(days after an irrigation that you can cut)"};

    Frame Soils{"Soil Layers && Water Content"};
    OptionButton Opt_new{"Enter new data", true};
    OptionButton Opt_current{"Copy from existing field"};
    OptionButton Opt_deleted{"Copy from deleted field"};

    StatusBar StatusBar1;
    Button cmd_OK{"OK"};
    Button cmd_Cancel{"Cancel"};

    bool VariablePicked = false;  ///< soil format that was picked on the workbench
    float CropRootMax = 0;        ///< deepest root depth of the crop, m
    CopiedSoil Copied;            ///< with which the soil form starts
};

FormTable TableOf(frmLoadField& form);

/// Makes the new field with its soil, ends the entry, `soilForm` too, and shows the field on the workbench.
/// RunTimeFailure, with the entry still open and nothing written, where its first run fails.
void FinishEntry(const EnteredSoil& soil, FormName soilForm);

}  // namespace veraqua
