#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/field_file.h"
#include "screen/form.h"

/// The entry of the days on which a hay field was cut. Each accepted change reaches the field file at once and runs the
/// season.
namespace veraqua {

struct frmCuts : Form {
    Label lblCutAdd{"Enter Date of Cut:"};
    Label lblFormat{"MM-DD-YYYY"};
    TextBox txtCutAdd;
    Label lblCutNumber{"Cut Number:"};
    TextBox txtCutNumber;
    Button cmdOKCut{"OK"};
    Label lblCuts{"CUTTING DATES"};
    ListBox ListCuts;
    Button cmdDelete{"Delete"};

    Frame box_predictions{"Predictions"};
    Label lblNextCut{"Next Predicted Cutting Date:"};
    TextBox txtCutDate;
    Label lblNextDate{"Next Predicted Irrigation Date:"};
    TextBox txtIrrDate;
    Label lblNextAmount{"Predicted Irrigation Amount:"};
    TextBox txtIrrAmnt;
    Label lblChange;  ///< what the last change did to the prediction

    Button cmdReturn{"RETURN", "Save updates & return"};
    Button cmdCancel{"CANCEL", "Cancels updates!"};
    StatusBar StatusBar1;

    std::vector<EventRecord> CutEvents;  ///< numbers of the cuttings
    std::vector<EventRecord> CutCopy;    ///< as they stood when the form opened
    bool Recorded = false;               ///< something has changed since then
    bool Cancelled = false;              ///< all of it is to be undone
};

FormTable TableOf(frmCuts& form);

}  // namespace veraqua
