#pragma once

#include <array>

#include "screen/form.h"
#include "workbench/soil_layers.h"

/// The window in which the soil of a new field is entered as layers.
namespace veraqua {

struct frmCapVar : Form {
    frmCapVar() { Caption = "Water Holding Capacity & Content"; }

    Label lblEnter;
    Label lblEnter2;
    Label lblMaximum;
    std::array<Label, MostLayers> lblRootDepth;
    std::array<TextBox, MostLayers> txtRoot;
    std::array<Label, MostLayers> lblCapacity;
    std::array<TextBox, MostLayers> txtcap;
    std::array<Label, MostLayers> lblContent;
    std::array<TextBox, MostLayers> txtcon;
    Drawing sh_soil;
    Label lblCumm;
    Button cmdDepth{"New Soil Layer"};
    Button cmdReset{"Reset Form"};
    Button cmdOK{"OK"};
    Button cmdPrint{"Print Form"};
    Button cmdCancel{"Cancel", "Cancel crop initialization & Return"};
    StatusBar StatusBar1;

    LayerEntry Entry;
};

FormTable TableOf(frmCapVar& form);

}  // namespace veraqua
