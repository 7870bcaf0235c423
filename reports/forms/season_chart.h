#pragma once

#include "core/field_file.h"
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

/// The season of a field as of today, in the units of the user. RunTimeFailure as of `SeasonChart`.
ChartContent SeasonChartNow(const FieldFile& file, const StatRecord& row);

}  // namespace veraqua
