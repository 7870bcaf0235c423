#pragma once

#include <functional>

#include "core/ask.h"
#include "core/field_file.h"

/// The field files as reports about many fields read them, whatever field is in work.
namespace veraqua {

/// Visits the fields of the directory in its order. One whose file is missing, damaged or can't be computed with is
/// left out, after the user has been told.
void ForEachStoredField(Ask& ask, const std::function<void(int row, const FieldFile& file)>& visit);

}  // namespace veraqua
