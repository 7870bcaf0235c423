#pragma once

#include <array>
#include <string>

#include "screen/form.h"

/// The dialog that asks where a report is to go.
namespace veraqua {

/// The reports that can be saved.
enum class SavedReport { Schedule, Field, HarvestedField };

enum class ReportDestination { None, Disk, Printer };

struct frmReportOptions : Form {
    Label lbl_filename{"Enter Path and File Name"};
    TextBox Txt_filename;
    Button cmd_OK{"OK"};
    Button cmd_print{"PRINT"};  ///< only where the menu doesn't say already that the report is to be saved
    Button cmd_cancel{"CANCEL"};

    // What the dialog keeps when it is opened anew
    SavedReport Report = SavedReport::Schedule;               ///< the one that it is opened for
    std::array<std::string, 3> LastNames;                     ///< path that each report was saved to; empty: none yet
    ReportDestination Destination = ReportDestination::None;  ///< how it was last left
};

FormTable TableOf(frmReportOptions& form);

/// Lets the user choose. The file's path is then in `ReportFileName`. None, with `ReportCancelled` true, if they left
/// the dialog.
ReportDestination ChooseDestination(SavedReport report);

}  // namespace veraqua
