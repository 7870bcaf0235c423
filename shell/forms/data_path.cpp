#include "shell/forms/data_path.h"

#include <initializer_list>
#include <string>

#include <fmt/format.h>

#include "core/files/files.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "shell/data_search.h"
#include "shell/first_start.h"
#include "shell/forms/picker.h"

namespace veraqua {

namespace {

void ShowPicker(frmPath& form, bool visible) {
    for (Control* control : std::initializer_list<Control*>{&form.lblNew, &form.lblPath, &form.lblInstructions,
                                                            &form.Drive1, &form.Dir1, &form.File1, &form.cmd_OK})
        control->Visible = visible;
}

void Dir1_Click(frmPath& form) { ShowPicked(form.Dir1, form.lblPath, form.File1); }

void Drive1_Click(frmPath& form) {
    form.Dir1.Path = form.Drive1.Text;
    Dir1_Click(form);
}

void Load(frmPath& form) {
    form.lblMsg.Caption = fmt::format(
        "The file WEATHDEF.DAT was not found at the \ndefault location {}/\n\nPlease find it below or exit.  Thank You. ",
        fmt::join(DefaultDataDirectories(), "/ or "));
    ListDrives(form.Drive1);
    form.Drive1.Select(0);
    Drive1_Click(form);
    ShowPicker(form, false);
}

void cmd_Find_Click(frmPath& form) { ShowPicker(form, true); }

void cmd_OK_Click(frmPath& form) {
    const std::string path = WithSlash(form.Dir1.Path);
    if (!IsDataDirectory(path)) {
        TheScreen().Tell(fmt::format("The required file <{}> was not found at: {}", DataDirectoryMarker, path),
                         "Still Missing!");
        return;
    }
    files::Open(path, files::Access::Write);
    Unload(FormName::frmPath);
}

void StartNew(bool sample) {
    const InitOutcome outcome = MakeDataDirectoryAt(TheScreen(), DefaultDataDirectories().front(), sample);
    if (!outcome.Refused) Unload(FormName::frmPath);
}

void cmd_Sample_Click(frmPath&) { StartNew(true); }

void cmd_Empty_Click(frmPath&) { StartNew(false); }

void Cmd_Exit_Click(frmPath&) { TheScreen().EndProgram(); }

}  // namespace

FormTable TableOf(frmPath& form) {
    FormFor table(form, FormName::frmPath, "frmPath");
    table.Add("lblMsg", form.lblMsg);
    table.Add("cmd_Sample", form.cmd_Sample).Click(cmd_Sample_Click);
    table.Add("cmd_Empty", form.cmd_Empty).Click(cmd_Empty_Click);
    table.Add("cmd_Find", form.cmd_Find).Click(cmd_Find_Click);
    table.Add("lblInstructions", form.lblInstructions);
    table.Add("Drive1", form.Drive1).Click(Drive1_Click).EnterKey(cmd_OK_Click);
    table.Add("Dir1", form.Dir1).Click(Dir1_Click);
    table.Add("File1", form.File1).EnterKey(cmd_OK_Click);
    table.Add("lblNew", form.lblNew);
    table.Add("lblPath", form.lblPath);
    table.Add("cmd_OK", form.cmd_OK).Click(cmd_OK_Click);
    table.Add("Cmd_Exit", form.Cmd_Exit).Click(Cmd_Exit_Click).Exit();
    table.Load(Load).Close(Cmd_Exit_Click);
    return table.Done();
}

}  // namespace veraqua
