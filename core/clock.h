#pragma once

#include "core/calendar.h"

namespace veraqua {

/// The local date of the computer's clock, whatever date the user has put in its place.
JulianValue ClockDate();

}  // namespace veraqua
