#pragma once

#include "screen/form.h"

namespace veraqua {

/// The options of one run: the date that counts as today, the units, and how many fields a display shows at once.
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

    // Always there
    Button Cmd_Exit{"Main Menu"};
    StatusBar StatusBar1;
};

FormTable TableOf(frmConfig& form);

}  // namespace veraqua
