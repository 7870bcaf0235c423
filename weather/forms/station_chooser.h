#pragma once

#include <array>

#include "core/ask.h"
#include "screen/form.h"

namespace veraqua {

/// Lets the user bring in the weather of the station in work for the days `Wanted`: by download, or by default weather.
struct frmKESTA : Form {
    frmKESTA() { Caption = "Feed me weather data!"; }

    Label Label5{"Your weather data is NOT up to date.  Please choose from the options below and then click on OK."};
    std::array<OptionButton, 3> Option;  ///< 0: download, 2: default weather; 1 isn't on the window
    Label Label00{"Download current KESTA data from the InterNet and save it to Weather file."};
    Label Label02{"Calculate default weather data for this weather station and save it to Weather file."};
    Label lbl_coldweather{
        "CAUTION!  No historical defaults exist for Kelmar, Ostrand, or Vennick.  TELMORAN data will be used."};
    Button cmd_return{"OK"};

    DayRange Wanted;                             ///< set before it is shown
    WeatherChoice Choice = WeatherChoice::Left;  ///< how it has ended
};

FormTable TableOf(frmKESTA& form);

/// Shows the window until the user has brought in the days `wanted`, or one of the years has failed, or they leave.
/// After a failure it stays loaded, with what it offers next.
WeatherChoice AskForWeatherSource(const DayRange& wanted);

}  // namespace veraqua
