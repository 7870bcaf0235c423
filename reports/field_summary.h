#pragma once

#include <string>

#include "core/records.h"

/// What the field summary says of a field's present state, some of which the details say too.
namespace veraqua {

struct FieldSummary {
    std::string Weather;      ///< last day with weather; empty where it isn't known
    std::string DepletionOf;  ///< the label that says as of which day the depletion is
    std::string Depletion;
    std::string Mad;
    std::string Efficiency;
};

/// That the latest `days` of a field stand on default weather; empty where none does.
std::string DefaultWeatherNote(int days);

///   row          the field's row of the directory
///   lastWeather  last day with weather of its station, 0 if it isn't known
FieldSummary SummaryOf(const StatRecord& row, const HeaderCommon& header, JulianValue lastWeather, JulianValue today);

}  // namespace veraqua
