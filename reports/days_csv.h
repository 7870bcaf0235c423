#pragma once

#include <string>

#include "core/field_file.h"

namespace veraqua {

/// The days of a field since planting as comma-separated values for a spreadsheet: a heading line that names each
/// column with its unit, then a line per day, forecast days too. Dates as yyyy-mm-dd; a day without water, or without a
/// cutting, has 0 there. RunTimeFailure where the numbers of the file can't be computed with.
std::string DaysCsv(const FieldFile& file, bool english);

}  // namespace veraqua
