#pragma once

#include "screen/form.h"

namespace veraqua {

/// Another farm in the place of the one that is open: one that there is, or a new one. When the window is gone after a
/// success, that farm is open.
struct frmFarm : Form {
    frmFarm() { Caption = "Another Farm"; }

    Label lblOpen{"Open now:"};
    Label lblOpenPath;
    Label lblFrom{"Begin at:"};
    ComboBox Drive1;  ///< where the picker can begin: the farms used before, too
    DirectoryBox Dir1;
    ListBox File1;  ///< what the directory picked holds
    Label lblNew{"Directory:"};
    Label lblPath;
    Button cmd_OK{"Open this farm"};
    Label lblName{"Or make a new one in it, named:"};
    TextBox txtName;  ///< empty: in the directory itself
    Button cmd_Empty{"Make an empty farm"};
    Button cmd_Sample{"Make sample fields"};
    Button Cmd_Exit{"Cancel"};
};

FormTable TableOf(frmFarm& form);

/// Opens the farm in the directory `path`, leaves nothing of the old one on the screen, and remembers both.
/// RunTimeFailure as of `OpenFarm`.
void GoToFarm(const std::string& path);

}  // namespace veraqua
