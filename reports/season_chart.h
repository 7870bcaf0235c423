#pragma once

#include "core/field_file.h"
#include "core/shown/chart.h"

namespace veraqua {

/// The season of one field as a picture: water of the root zone from planting to the season's end, measured and
/// forecast, against what the zone holds when it is full, at the MAD and dry; rain and irrigation as bars; cuttings,
/// today and the next irrigation and cutting as marks. `row` is the field's row of the directory. RunTimeFailure where
/// the numbers of the file can't be computed with.
ChartContent SeasonChart(const FieldFile& file, const StatRecord& row, JulianValue today, bool english);

/// Marks from where on `days` of default weather end on `lastDay`, the last day with weather; none for 0.
void MarkDefaultWeather(ChartContent& chart, JulianValue lastDay, int days);

}  // namespace veraqua
