#pragma once

#include "screen/form.h"

namespace veraqua {

/// Where the data directory isn't at its default place: the user points to it, has one made, or ends the program. When
/// the window is gone, a data directory is open. The choice holds for this run.
struct frmPath : Form {
    frmPath() { Caption = "Form1"; }

    Label lblMsg;
    Button cmd_Sample{"Start with sample fields"};
    Button cmd_Empty{"Start empty"};
    Button cmd_Find{"Find Weathdef.Dat"};
    Label lblInstructions{"Double Click to make selections"};
    ComboBox Drive1;  ///< where the picker can begin
    DirectoryBox Dir1;
    ListBox File1;  ///< what the directory picked holds
    Label lblNew{"New Path:"};
    Label lblPath;
    Button cmd_OK{"OK"};
    Button Cmd_Exit{"Exit Program"};
};

FormTable TableOf(frmPath& form);

}  // namespace veraqua
