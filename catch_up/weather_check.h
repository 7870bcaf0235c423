#pragma once

#include "core/ask.h"

namespace veraqua {

/// Works out the coverage of the station in work from `startYear` on and, where weather is missing, tells the user and
/// lets him bring it in until he has done so or leaves without a choice. Afterwards `DownloadFailed` tells callers to
/// abandon what they were doing.
void CheckWeather(Ask& ask, int startYear);

}  // namespace veraqua
