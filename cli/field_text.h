#pragma once

#include <string>
#include <vector>

#include "core/field_file.h"

/// Fields as plain text for a terminal, in the user's units.
namespace veraqua {

std::string TextOfRows(const std::vector<int>& rows);
std::string TextOfField(int row, const FieldFile& file);
std::string TextOfDays(const FieldFile& file);

}  // namespace veraqua
