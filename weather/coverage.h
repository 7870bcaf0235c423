#pragma once

#include "core/ask.h"
#include "core/calendar.h"

namespace veraqua {

/// How far the stored weather of a station reaches.
struct Coverage {
    enum class Kind {
        RegionMissing,  ///< weathdef.dat lacks the station's region: nothing has been worked out
        Current,        ///< through yesterday, the last day that can exist
        WeatherNeeded,  ///< the days `Needed` are missing
    };

    Kind Reach = Kind::RegionMissing;
    JulianValue LastDay = 0;  ///< last stored day before the first that is missing; 0: unknown
    DayRange Needed;          ///< none where the weather is current

    bool IsKnown() const { return Reach != Kind::RegionMissing; }
};

/// Loads the default weather of the station in work and looks its files through from `startYear` to this year; files
/// that are missing are made empty. The first year that is not complete decides. Asks nothing; the user is told where
/// the region is missing. The state has it as well: `WeatherLastJulian` is the last day, `WeatherNeedFrom` and
/// `WeatherNeedTo` what is needed, and `DownloadFailed` is true where the region is missing.
Coverage FindCoverage(Ask& ask, int startYear);

/// Last day of `range` before the first one that the files of the station in work lack; the day before the range if
/// they lack its first.
JulianValue WeatherReaches(const DayRange& range);

/// Puts the days for which weather is wanted into the state, as `WeatherNeedFrom` and `WeatherNeedTo`.
void WantWeather(const DayRange& range);

}  // namespace veraqua
