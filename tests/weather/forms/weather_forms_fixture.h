#pragma once

#include <string>

#include "core/directory.h"
#include "data/embedded.h"
#include "shell/forms/forms.h"
#include "tests/support/builders.h"
#include "tests/support/network_line.h"
#include "tests/support/script_screen.h"
#include "weather/default_weather.h"
#include "weather/forms/forms.h"
#include "weather/forms/station_chooser.h"
#include "weather/weather_file.h"

namespace veraqua {

/// The weather windows on 15 July 2003, the 196th day, with the shipped default weather. Station 06 is in work.
struct WeatherFormsTest : FormTest {
    static constexpr JulianValue Yesterday = JulianFromDate(7, 14, 2003);

    WeatherFormsTest() {
        User.WeatherSource = AskForWeatherSource;
        AddWeatherForms();
        AddShellForms();
        Directory.Put("weathdef.dat", EmbeddedFile("weathdef.dat"));
        StartUp(User);
        State.StationCode = "06";
        State.StationName = "FENWOLD";
        EXPECT_TRUE(LoadWeatherCoefficients(User, RegionOfStation("06")));
    }

    /// What the network answers for the text of station 06 in the year `suffix`.
    void Serve(const std::string& suffix, const std::string& text) {
        User.Pages[State.BaseUrl + "06" + suffix + "rd.txt"] = {true, 200, "", text};
    }

    static std::string SourceOf(int dayOfYear, int year = 2003) {
        return WeatherFile("06", year).Day(dayOfYear).Source.Text();
    }
};

}  // namespace veraqua
