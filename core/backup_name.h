#pragma once

#include <string>
#include <string_view>

#include "core/base/text.h"
#include "core/calendar.h"

namespace veraqua {

/// The name under which a harvested field's file is kept: the whole field ID with its trailing blanks, "_", the date of
/// the harvest as DDMMYY, "_", a blank and a counter, ".dat": "NORTH 30  _300626_ 1.dat". With a counter of one digit
/// it has 24 characters, by which backups are told from other files. The counter is the first from 1 whose name is free
/// in the data directory. What no file name can hold ("/" and the NUL byte) becomes "-".
std::string FreeBackupName(const FixedText<10>& fieldId, JulianValue harvestDay);

/// What such a name tells of the harvest: its day, "06-30-26", and of a second one of the day its counter as well,
/// "06-30-26 (2)". Empty for any other name.
std::string HarvestInName(std::string_view name);

}  // namespace veraqua
