#pragma once

#include "core/field_file.h"
#include "screen/chart.h"
#include "screen/form.h"

/// The season of one field as a picture: the water of its root zone from planting to the season's end.
namespace veraqua {

/// Water of the root zone, measured and forecast, against what the zone holds when it is full, at the MAD and dry; rain
/// and irrigation as bars; cuttings, today and the next irrigation and cutting as marks. `row` is the field's row of
/// the directory. RunTimeFailure where the numbers of the file can't be computed with.
Chart SeasonChart(const FieldFile& file, const StatRecord& row, JulianValue today, bool english);

struct frmSeasonChart : Form {
    Chart Chart1;
    Button cmdPrint{"PRINT"};
    Button cmdExit{"<-GO BACK"};
    StatusBar StatusBar1;
};

FormTable TableOf(frmSeasonChart& form);

}  // namespace veraqua
