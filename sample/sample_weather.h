#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/ask.h"
#include "core/records.h"

/// The weather of the sample season: a measured year of a station stands for every year that the sample needs, day by
/// day of the calendar. So the sample lives at any date. data/README.md has the sources.
namespace veraqua {

/// What is appended to the names of stations whose weather is that of the sample.
constexpr std::string_view SampleMark = " (sample)";

/// weathdef.dat as shipped, with the sample's stations marked by `SampleMark`.
std::string StationsOfSample(std::string_view weathdef);

/// Brings the weather of the station in work from 1 January of `firstYear` through `last` into its files, by the
/// import of the network's text. Days that weren't measured, and 29 February, get default weather. A year that has
/// weather stays as it is. False if weathdef.dat lacks the station's region; the user has been told.
bool ImportSampleWeather(Ask& ask, int firstYear, JulianValue last);

/// Rain of a station from `first` to `last`, as measured, in whole mm; days of less than 1 mm are left out.
std::vector<EventRecord> SampleRain(std::string_view stationCode, JulianValue first, JulianValue last);

}  // namespace veraqua
