#pragma once

#include "core/ask.h"
#include "core/shown/printed.h"

/// The irrigation schedule as it is printed: for every field when it last had water, how depleted it is, and when and
/// how much to irrigate next; what is to be done first stands first.
namespace veraqua {

/// The schedule of all fields, from their files, whose depletion is that of the present day and not that of the row. A
/// field whose file is missing or damaged is left out, after the user has been told.
PrintedDocument PrintedSchedule(Ask& ask);

}  // namespace veraqua
