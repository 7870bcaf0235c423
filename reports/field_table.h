#pragma once

#include <string>
#include <vector>

#include "core/field_file.h"

namespace veraqua {

/// The table of the field report: two heading lines, a rule, and a line for each day since planting. RunTimeFailure
/// where the numbers of the file can't be computed with.
std::vector<std::string> FieldTable(const FieldFile& file, bool english);

}  // namespace veraqua
