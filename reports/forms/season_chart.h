#pragma once

#include "reports/forms/shown_field.h"
#include "screen/chart.h"
#include "screen/form.h"

namespace veraqua {

/// The season of the field in work as a picture.
struct frmSeasonChart : Form {
    Chart Chart1;
    Button cmdPrint{"PRINT"};
    Button cmdExit{"<-GO BACK"};
    StatusBar StatusBar1;

    ShownField Shown;
};

FormTable TableOf(frmSeasonChart& form);

}  // namespace veraqua
