#pragma once

#include "core/ask.h"

namespace veraqua {

enum class WeatherCheck {
    Ready,      ///< the work that asked for the weather may go on
    Abandoned,  ///< it is given up: the default weather is missing, or the user left without a choice
};

/// Works out the coverage of the station in work from `startYear` on and, where weather is missing, tells the user and
/// lets them bring it in until they have done so or leave without a choice. The state has the outcome as well:
/// `DownloadFailed` is true where the work is given up, `ReportCancelled` where the user left.
WeatherCheck CheckWeather(Ask& ask, int startYear);

}  // namespace veraqua
