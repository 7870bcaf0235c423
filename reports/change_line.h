#pragma once

#include <string>

#include "core/records.h"
#include "workbench/field_change.h"

namespace veraqua {

/// What a change did to a field's predictions, as a line for the user: "Next irrigation moves from 07-12-26 to
/// 07-14-26." `before` and `after` are its directory row around the run. Where nothing moved, it says so.
std::string ChangeLine(const StatRecord& before, const StatRecord& after, bool english);

/// The same of what a deed has done; where the field could not be run, it says that.
std::string ChangeLine(const FieldChange& change, bool english);

}  // namespace veraqua
