#pragma once

#include <string>
#include <vector>

#include "core/field_file.h"
#include "core/shown/chart.h"

/// Fields as plain text for a terminal, in the user's units.
namespace veraqua {

std::string TextOfRows(const std::vector<int>& rows);
std::string TextOfField(int row, const FieldFile& file);
std::string TextOfDays(const FieldFile& file);

/// A line per day with the values of all series, and the marks below.
std::string TextOf(const ChartContent& chart);

}  // namespace veraqua
