#pragma once

#include "core/ask.h"
#include "core/calendar.h"

namespace veraqua {

/// Makes the sample season of `today` in the data directory, which has no fields yet: the fields that are in the
/// ground, with their weather, rain, irrigations and cuttings, brought up to date, and the backup of the one that was
/// harvested last. The same day gives the same bytes. False if the stations or weather that were there before don't
/// serve; the user has been told. RunTimeFailure if crop.dat lacks a crop of the sample. Fields and stations are taken
/// in work on the way: the program starts up anew afterwards.
bool MakeSampleSeason(Ask& ask, JulianValue today);

}  // namespace veraqua
