#pragma once

#include <array>

#include "core/field_file.h"
#include "screen/form.h"

/// The soil of a new field as zones of one thickness, the depth interval, which is entered in inches or mm.
namespace veraqua {

struct frmCap : Form {
    static constexpr int MostZones = 11;

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

    double IntervalMin = 0;  ///< bounds of the interval, as entered
    double IntervalMax = 0;
    int ZoneTop = -1;  ///< index of the last zone; -1: no interval has been accepted
};

FormTable TableOf(frmCap& form);

}  // namespace veraqua
