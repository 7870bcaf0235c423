#pragma once

#include "core/ask.h"

namespace veraqua {

/// How far the stored weather of a station reaches.
enum class Coverage {
    RegionMissing,  ///< weathdef.dat lacks the station's region: nothing has been worked out
    Current,        ///< through yesterday, the last day that can exist
    WeatherNeeded,  ///< `WeatherNeedFrom` to `WeatherNeedTo` are missing
};

/// Loads the default weather of the station in work and looks its files through from `startYear` to this year; files
/// that are missing are made empty. The first year that is not complete decides `WeatherLastJulian`, and with it the
/// range that is needed. Asks nothing.
Coverage FindCoverage(Ask& ask, int startYear);

}  // namespace veraqua
