#pragma once

#include "screen/form.h"

namespace veraqua {

/// Fetches the text of the station in work and the year of `WeatherYearSuffix` from the weather network as soon as it
/// is loaded. Afterwards `DownloadFailed` tells whether the text is here.
struct frmDownload : Form {
    frmDownload() { Caption = "Download KESTA Data"; }

    Label Label1{"Downloading weather data from:"};
    TextBox txtURL;
    Label lblResult;
    Label lblWarning{"Either data is corrupt or Internet is down. Try loading default data!"};
    Button cmd_OK{"OK"};
    Button Cmd_Exit{"Cancel"};
};

FormTable TableOf(frmDownload& form);

}  // namespace veraqua
