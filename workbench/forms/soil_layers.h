#pragma once

#include <array>

#include "core/field_file.h"
#include "screen/form.h"

/// The soil of a new field as up to six layers of free thickness. Thicknesses are entered in inches or mm.
namespace veraqua {

struct frmCapVar : Form {
    frmCapVar() { Caption = "Water Holding Capacity & Content"; }

    Label lblEnter;
    Label lblEnter2;
    Label lblMaximum;
    std::array<Label, 6> lblRootDepth;
    std::array<TextBox, 6> txtRoot;
    std::array<Label, 6> lblCapacity;
    std::array<TextBox, 6> txtcap;
    std::array<Label, 6> lblContent;
    std::array<TextBox, 6> txtcon;
    Drawing sh_soil;
    Label lblCumm;
    Button cmdDepth{"New Soil Layer"};
    Button cmdReset{"Reset Form"};
    Button cmdOK{"OK"};
    Button cmdPrint{"Print Form"};
    Button cmdCancel{"Cancel", "Cancel crop initialization & Return"};
    StatusBar StatusBar1;

    std::int16_t MaxDepth = 0;  ///< deepest root depth: inches, or a tenth of the millimetres
    std::int16_t CumDepth = 0;  ///< sum of the thicknesses, in their unit
    LayerBounds LayerDepth{};   ///< thicknesses as entered; 0: none
};

FormTable TableOf(frmCapVar& form);

}  // namespace veraqua
