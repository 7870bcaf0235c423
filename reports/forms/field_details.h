#pragma once

#include <array>

#include "reports/field_details.h"
#include "reports/forms/shown_field.h"
#include "reports/forms/shown_text.h"
#include "screen/form.h"

/// The field details: the summary at length, with the crop's and the soil's state, the latest water, and the soil.
namespace veraqua {

struct frmFieldDetails : Form {
    frmFieldDetails() { Caption = "FIELD DETAILS"; }

    Label Label27{"FIELD DATA AS OF:"};
    ShownText txtHistDate;
    Label lblWeather{"Last Weather Data:"};
    ShownText txtWeather;
    Label lblDeplete{"Water Depletion:"};
    ShownText txtDeplete;
    Label lblMAD{"Mng. Allowed Deficiency (MAD):"};
    ShownText txtMAD;
    Label lblEffic{"Irrigation Efficiency:"};
    ShownText txtIrrEffic;
    Label lbl_next{"Next Predicted Irrigation:"};
    ShownText txtIrrDate;
    Label lbl_amount{"Suggested Irrigation Amount:"};
    ShownText txtIrrAmnt;
    Label Label1{"Next Cutting Date (hay):"};
    ShownText txtHayCut;
    Label lblKc{"Crop Coefficient (Kc):"};
    ShownText txtKc;
    Label lblKd{"Dryness Coefficient (Kd):"};
    ShownText txtKd;
    Label lblGDD{"Growing Degree Days:"};
    ShownText txtGDD;
    Label lblRootDepth{"Root Depth:"};
    ShownText txtRootDepth;
    Label lblDeficit{"Water Deficit:"};
    ShownText txtDeficit;
    Label lblIRR{"Total Irrigation:"};
    ShownText txtIRR;
    Label lblRAIN{"Total Rainfall:"};
    ShownText txtRAIN;
    Label lblLEACH{"Total Leaching:"};
    ShownText txtLEACH;
    Label lblSoil{"Initial Soil Water Content:"};
    std::array<Label, 11> lblCont;
    Label lblRain{"Recent Rainfall:"};
    std::array<Label, LatestWaterShown> lblRDate;
    Label lblIrrigation{"Recent Irrigation:"};
    std::array<Label, LatestWaterShown> lblIDate;
    Button cmdPrint{"PRINT"};
    Button cmdExit{"<-GO BACK"};
    StatusBar StatusBar1;

    ShownField Shown;
};

FormTable TableOf(frmFieldDetails& form);

}  // namespace veraqua
