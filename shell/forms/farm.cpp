#include "shell/forms/farm.h"

#include <string>

#include <fmt/format.h>

#include "core/base/text.h"
#include "core/files/files.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "shell/data_search.h"
#include "shell/farm.h"
#include "shell/forms/kept.h"
#include "shell/forms/picker.h"

namespace veraqua {

namespace {

void Dir1_Click(frmFarm& form) { ShowPicked(form.Dir1, form.lblPath, form.File1); }

void Drive1_Click(frmFarm& form) {
    form.Dir1.Path = form.Drive1.Text;
    Dir1_Click(form);
}

void Load(frmFarm& form) {
    form.lblOpenPath.Caption = files::DirectoryPath();
    ListDrives(form.Drive1);
    form.Drive1.Select(0);
    Drive1_Click(form);
}

/// Another farm is open: only the main menu stays, which shows that.
void ShowFarm(const std::string& left) {
    KeepFarm(left, files::DirectoryPath());
    for (const FormTable* form : AllForms())
        if (form->Name != FormName::frmVeraqua) Unload(form->Name);
    Show(FormName::frmVeraqua);
}

void cmd_OK_Click(frmFarm& form) { GoToFarm(WithSlash(form.Dir1.Path)); }

void Make(frmFarm& form, bool sample) {
    const std::string name(Trimmed(form.txtName.Text));
    if (name.find('/') != std::string::npos || name == "." || name == "..") {
        TheScreen().Tell("Please type one name, without \"/\", or none.");
        Focus(form.txtName);
        return;
    }
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): what it refers to becomes the other directory
    const std::string left = files::DirectoryPath();
    if (MakeFarm(TheScreen(), WithSlash(WithSlash(form.Dir1.Path) + name), sample)) ShowFarm(left);
}

void cmd_Empty_Click(frmFarm& form) { Make(form, false); }

void cmd_Sample_Click(frmFarm& form) { Make(form, true); }

void Cmd_Exit_Click(frmFarm&) { Unload(FormName::frmFarm); }

}  // namespace

void GoToFarm(const std::string& path) {
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): what it refers to becomes the other directory
    const std::string left = files::DirectoryPath();
    OpenFarm(TheScreen(), path);
    ShowFarm(left);
}

FormTable TableOf(frmFarm& form) {
    FormFor table(form, FormName::frmFarm, "frmFarm");
    table.Add("lblOpen", form.lblOpen);
    table.Add("lblOpenPath", form.lblOpenPath);
    table.Add("lblFrom", form.lblFrom);
    table.Add("Drive1", form.Drive1).Click(Drive1_Click);
    table.Add("Dir1", form.Dir1).Click(Dir1_Click);
    table.Add("File1", form.File1);
    table.Add("lblNew", form.lblNew);
    table.Add("lblPath", form.lblPath);
    table.Add("cmd_OK", form.cmd_OK).Click(cmd_OK_Click);
    table.Add("lblName", form.lblName);
    table.Add("txtName", form.txtName).EnterKey(cmd_Empty_Click);
    table.Add("cmd_Empty", form.cmd_Empty).Click(cmd_Empty_Click);
    table.Add("cmd_Sample", form.cmd_Sample).Click(cmd_Sample_Click);
    table.Add("Cmd_Exit", form.Cmd_Exit).Click(Cmd_Exit_Click).Exit();
    table.Load(Load).Close(Cmd_Exit_Click);
    return table.Done();
}

}  // namespace veraqua
