#pragma once

#include <string>

#include "data/embedded.h"
#include "tests/support/builders.h"
#include "tests/support/data_directory.h"
#include "tests/support/network_line.h"
#include "weather/default_weather.h"
#include "weather/weather_file.h"

namespace veraqua {

/// A data directory with the shipped default weather on 15 July 2003, the 196th day. Station 06 is in work.
struct CatchUpTest : DirectoryTest {
    static constexpr JulianValue Yesterday = JulianFromDate(7, 14, 2003);

    CatchUpTest() {
        Directory.Put("weathdef.dat", EmbeddedFile("weathdef.dat"));
        StartUp(User);
        State.StationCode = "06";
        EXPECT_TRUE(LoadWeatherCoefficients(User, RegionOfStation("06")));
    }

    static std::string SourceOf(int dayOfYear) { return WeatherFile("06", 2003).Day(dayOfYear).Source.Text(); }
};

}  // namespace veraqua
