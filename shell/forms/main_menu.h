#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "screen/form.h"

namespace veraqua {

/// The main menu, first window of the program. Loading it finds and opens the data directory and starts the system up;
/// closing it is the orderly way out.
struct frmVeraqua : Form {
    frmVeraqua() { Caption = "VERAQUA"; }

    Label Label1{"Irrigation Scheduling System"};
    Label Label2{"Irrigation Scheduling System"};  ///< behind the first, as its shadow
    Image Image2;
    Label Label4{"Field Options"};
    Button cmdfields;
    Label Label5{"Weather Data"};
    Button cmdWeather;
    Label Label6{"Configuration"};
    Button cmdConfig;
    Button cmdHelp{"HELP"};
    Label Label8{"Exit"};
    Button cmdExit;

    // What is to be done today, as of each time that this window comes up
    Label lblToday{"Today"};
    Table Today;  ///< a field in each row; opening it goes to the field
    Label lblFilter{"Find:"};
    TextBox txtFilter;  ///< words that the rows shown must have
    Label lblTodayNote;
    Button cmdOpenToday{"Open field"};
    Button cmdPrintToday{"Print list"};
    Button cmdSaveToday{"Save list", "As CSV, for a spreadsheet"};

    // The menu
    MenuItem mnuFarm{"Farm"};
    MenuItem mnuOther{"Another Farm...", 2};
    std::array<MenuItem, 5> mnuRecent{};  ///< those used before
    MenuItem mnuHelp{"Help"};
    MenuItem mnuAbout{"About Veraqua", 2};

    StatusBar StatusBar1;

    JulianValue DayOffered = 0;       ///< the new day that the user was last told of
    std::vector<std::string> Recent;  ///< directories behind `mnuRecent`
};

FormTable TableOf(frmVeraqua& form);

/// The data directory in which the main menu begins, in the place of that of last time and the usual ones; nothing:
/// these.
void StartIn(std::optional<std::string> directory);

/// Shows the version and the computer's date in the first two panels.
void ShowProgramIn(StatusBar& bar);

}  // namespace veraqua
