#pragma once

#include "reports/forms/shown_field.h"
#include "reports/forms/shown_text.h"
#include "screen/form.h"

/// The field summary: a field's present state and when to irrigate it, as the user sees it after a run.
namespace veraqua {

struct frmFieldData : Form {
    frmFieldData() { Caption = "FIELD IRRIGATION INFORMATION"; }

    Label lblPrinted;  ///< names the field on the printed image
    Label Label3{"Last Weather Data:"};
    ShownText txtWeather;
    Label lblDefault;  ///< how much of that weather wasn't measured
    Label Label4{"Water Depletion as of mm-dd-yy:"};
    ShownText txtDeplete;
    Label Label5{"Mng. Allowed Deficiency (MAD):"};
    ShownText txtMAD;
    Label lblEffic{"Irrigation Efficiency:"};
    ShownText txtEffic;
    Label lbl_next{"Next Predicted Irrigation:"};
    ShownText txtIrrDate;
    Label lbl_amount{"Suggested Irrigation Amount:"};
    ShownText txtIrrAmnt;
    Button cmdPrint{"PRINT"};
    Button cmdExit{"<-GO BACK"};
    StatusBar StatusBar1;

    ShownField Shown;
    std::string Title;  ///< of that field
};

FormTable TableOf(frmFieldData& form);

}  // namespace veraqua
