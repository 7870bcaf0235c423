#pragma once

#include <vector>

#include "core/calendar.h"
#include "weather/forms/weather_menu.h"

namespace veraqua {

/// Tells the user which fields were worked out with the weather of the days `changed`, and runs them if they want that.
/// Those in `rows`, rising, have been run since. Nothing is asked for the station chooser: the field that has called it
/// isn't run yet.
void OfferRuns(frmWeather& form, const DayRange& changed, const std::vector<int>& rows = {});

}  // namespace veraqua
