#pragma once

#include <map>
#include <string>

#include "core/directory.h"
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
        State.StationName = "FENWOLD";
        EXPECT_TRUE(LoadWeatherCoefficients(User, RegionOfStation("06")));
    }

    /// Days of the station's file of 2003.
    static int StoredDays() { return WeatherFile("06", 2003).Days(); }

    static std::string SourceOf(int dayOfYear) { return WeatherFile("06", 2003).Day(dayOfYear).Source.Text(); }

    /// Every file with its bytes.
    std::map<std::string, std::string> Everything() const {
        std::map<std::string, std::string> all;
        for (const std::string& name : files::Names()) all[name] = Directory.Raw(name);
        return all;
    }
};

}  // namespace veraqua
