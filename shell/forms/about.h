#pragma once

#include "screen/form.h"

namespace veraqua {

/// What program this is, with which data it works, and where its numbers come from.
struct frmAbout : Form {
    frmAbout();

    Label lblTitle{"Veraqua"};
    Label lblVersion;
    Label lblDirectory{"Data directory:"};
    TextBox txtDirectory;
    Label lblLicence{"Licence:"};
    TextBox txtLicence;
    Label lblSources{"Sources:"};
    TextBox txtSources;
    Button cmdExit{"Main Menu"};
};

FormTable TableOf(frmAbout& form);

}  // namespace veraqua
