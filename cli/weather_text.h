#pragma once

#include <string>
#include <vector>

#include "core/records.h"

namespace veraqua {

/// Days of weather as plain text for a terminal, in the user's units.
std::string TextOfWeather(const std::vector<WeatherDay>& days);

}  // namespace veraqua
