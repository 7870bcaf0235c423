#pragma once

#include <map>
#include <string>
#include <string_view>

#include "screen/form.h"

/// The dialog that asks where a report is to go.
namespace veraqua {

/// The reports that can be saved.
enum class SavedReport { Schedule, Field, HarvestedField, TodayList };

enum class ReportDestination { None, Disk, Printer };

struct frmReportOptions : Form {
    Label lbl_filename{"Enter Path and File Name"};
    TextBox Txt_filename;
    Button cmd_OK{"OK"};
    Button cmd_print{"PRINT"};  ///< only where the menu doesn't say already that the report is to be saved
    Button cmd_cancel{"CANCEL"};

    // What the dialog keeps when it is opened anew
    SavedReport Report = SavedReport::Schedule;               ///< the one that it is opened for
    std::string ProposedName;                                 ///< of its file in the data directory
    std::map<std::string, std::string> LastNames;             ///< path that the report so proposed was last saved to
    ReportDestination Destination = ReportDestination::None;  ///< how it was last left
};

FormTable TableOf(frmReportOptions& form);

/// Lets the user choose; where the report hasn't been saved yet, `proposedName` in the data directory stands there. The
/// file's path is then in `ReportFileName`. None, with `ReportCancelled` true, if they left the dialog.
ReportDestination ChooseDestination(SavedReport report, std::string_view proposedName);

}  // namespace veraqua
