#pragma once

#include <array>

#include "screen/form.h"

namespace veraqua {

/// Lets the user bring the weather of the station in work up to date, from `WeatherNeedFrom` to `WeatherNeedTo`: by
/// download, or by default weather. Left without a choice, `ReportCancelled` and `DownloadFailed` are true.
struct frmKESTA : Form {
    frmKESTA() { Caption = "Feed me weather data!"; }

    Label Label5{"Your weather data is NOT up to date.  Please choose from the options below and then click on OK."};
    std::array<OptionButton, 3> Option;  ///< 0: download, 2: default weather; 1 isn't on the window
    Label Label00{"Download current KESTA data from the InterNet and save it to Weather file."};
    Label Label02{"Calculate default weather data for this weather station and save it to Weather file."};
    Label lbl_coldweather{
        "CAUTION!  No historical defaults exist for Kelmar, Ostrand, or Vennick.  TELMORAN data will be used."};
    Button cmd_return{"OK"};
};

FormTable TableOf(frmKESTA& form);

}  // namespace veraqua
