#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/field_file.h"
#include "screen/form.h"

/// The entry of rain and irrigation. Each accepted change reaches the field file at once and runs the season, so that
/// the prediction on the same screen follows it.
namespace veraqua {

struct frmAddWater : Form {
    Label lblRainDate{"Enter Date of Rainfall (MM-DD-YYYY):"};
    TextBox txtRainDate;
    Label lblRainfall{"Rainfall Amount:"};
    TextBox txtRainfall;
    Label lblRainUnit;
    Button cmdOKRain{"OK"};
    Label lblRainList{"RAINFALL"};
    ListBox ListRain;
    Button cmdDeleteR{"Delete"};
    Label lblRainTotal{"Total Rainfall:"};
    TextBox txtRAIN;

    Label lblIrrDate{"Enter Date of Irrigation (MM-DD-YYYY):"};
    TextBox txtIrrAdd;
    Label lblIrrigation{"Irrigation Amount:"};
    TextBox txtIrrigation;
    Label lblIrrUnit;
    Button cmdOKIrrigation{"OK"};
    Label lblIrrList{"IRRIGATION"};
    ListBox ListIrr;
    Button cmdDeleteI{"Delete"};
    Label lblIrrTotal{"Total Irrigation:"};
    TextBox txtIRR;

    Frame box_predictions{"Predictions"};
    Label lblNextDate{"Next Predicted Irrigation Date:"};
    TextBox txtIrrDate;
    Label lblNextAmount{"Predicted Irrigation Amount:"};
    TextBox txtIrrAmnt;
    Label lblChange;  ///< what the last change did to the prediction

    Button cmdReturn{"<-GO BACK", "Save updates & return"};
    Button cmdCancel{"CANCEL", "Cancels updates!"};
    StatusBar StatusBar1;

    std::vector<EventRecord> RainEvents;  ///< mm
    std::vector<EventRecord> IrrEvents;   ///< mm, gross
    FieldLists AtOpening;                 ///< the two lists as they stood when the form opened
    bool Recorded = false;                ///< something has changed since then
    bool Cancelled = false;               ///< all of it is to be undone
};

FormTable TableOf(frmAddWater& form);

/// What is told to the user who is refused.
struct RefusedDay {
    std::string Text;
    std::string Title;
};

/// Whether the field in work may get water on `day`, 0 if no date was read. Nothing if it may.
std::optional<RefusedDay> WaterRefusedOn(JulianValue day);

}  // namespace veraqua
