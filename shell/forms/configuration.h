#pragma once

#include "screen/form.h"

namespace veraqua {

/// How many fields a display can be set to show at once.
constexpr int FewestDisplays = 9;
constexpr int MostDisplays = 16;

/// The options of one run: the date that counts as today, the units, and how many fields a display shows at once.
/// The last two can be kept for the next.
struct frmConfig : Form {
    frmConfig();

    // The menu
    MenuItem mnuDate{"Change Date "};
    MenuItem mnuUnits{"Change Units "};
    MenuItem mnuDisplay{"Set Field Display"};
    MenuItem mnuReturn{"Main Menu"};

    // Date
    Label lblNewDate{"Enter the new date:"};
    TextBox txtDate;
    Button cmd_Calendar{"Calendar"};
    Calendar Cal1;
    Button cmdOK{"OK"};

    // Units
    Frame frmUnits{"Units of Measurement"};
    Label lblUnits{"Select unit of measurement:"};
    OptionButton optEnglish;
    Label lblEnglish{"English Units"};
    OptionButton optMetric;
    Label lblmetric{"Metric Units"};

    // Display
    Label lblSetDisplay{"Select number of fields to display at once:"};
    ListBox lstDisplay;
    Label lblDisplay{"Displays set to:"};
    TextBox txtDisplays;

    // With units and display
    CheckBox chkKeep{"Keep for the next start"};

    // Always there
    Button Cmd_Exit{"Main Menu"};
    StatusBar StatusBar1;
};

FormTable TableOf(frmConfig& form);

}  // namespace veraqua
