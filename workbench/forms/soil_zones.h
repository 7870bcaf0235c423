#pragma once

#include <array>

#include "screen/form.h"
#include "workbench/soil_zones.h"

/// The window in which the soil of a new field is entered as zones of one thickness.
namespace veraqua {

struct frmCap : Form {
    Label lblDate;
    Label lblMaximum;
    Label lblEnter;
    TextBox txtDepth;
    Button cmdDepth{"Accept Interval"};
    Label lblEnter2;
    std::array<Label, MostZones> lblCapacity;
    std::array<TextBox, MostZones> txtcap;
    std::array<Label, MostZones> lblContent;
    std::array<TextBox, MostZones> txtcon;
    Button cmdReset{"Reset Form"};
    Button cmdOK{"OK"};
    Button cmdPrint{"Print Form"};
    Button cmdCancel{"Cancel"};
    StatusBar StatusBar1;

    ZoneEntry Entry;
    std::string AcceptedDepth;  ///< the text of the interval that the zones have
};

FormTable TableOf(frmCap& form);

}  // namespace veraqua
