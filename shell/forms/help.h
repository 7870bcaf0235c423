#pragma once

#include "screen/form.h"

namespace veraqua {

/// One screen of instructions, and the way to the user's manual.
struct frmHelp : Form {
    frmHelp();

    TextBox rtbVersion1;
    TextBox rtbHelp1;
    Frame OLE1;  ///< where the manual would be embedded; it opens in a window of its own instead
    Button cmd_manual{"User's Manual"};
    Button cmdPrint{"Print Screen"};
    Button Cmd_Exit{"Main Menu"};
};

FormTable TableOf(frmHelp& form);

}  // namespace veraqua
