#pragma once

#include "screen/form.h"

namespace veraqua {

/// Fetches the text of the station in work and of `Year` from the weather network as soon as it is loaded.
struct frmDownload : Form {
    frmDownload() { Caption = "Download KESTA Data"; }

    Label Label1{"Downloading weather data from:"};
    TextBox txtURL;
    Label lblResult;
    Label lblWarning{"Either data is corrupt or Internet is down. Try loading default data!"};
    Button cmd_OK{"OK"};
    Button Cmd_Exit{"Cancel"};

    int Year = 0;            ///< set before it is shown
    bool Succeeded = false;  ///< the text is here
};

FormTable TableOf(frmDownload& form);

/// Shows the window until the text of the station in work and `year` is here, which is true, or the user has seen why
/// it isn't.
bool DownloadText(int year);

}  // namespace veraqua
