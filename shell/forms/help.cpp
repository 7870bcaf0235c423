#include "shell/forms/help.h"

#include <optional>
#include <string>
#include <string_view>

#include "core/state.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "shell/data_search.h"

namespace veraqua {

namespace {

constexpr std::string_view Instructions =
    "- CLICK on [Field Options] for all actions & reports relating to your crop fields.\n\n"
    "- CLICK on [Weather Data] if you need to download or edit weather data.\n\n"
    "  You will be automatically taken to this screen if your weather data is not current.\n\n"
    "- CLICK on [Configuration] if you need to verify or change the location of weather data.\n\n"
    "- CLICK on EXIT if you are done using the program.\n\n"
    "- CLICK on [User's Manual] at the bottom of this screen for detailed instructions!\n\n"
    "  The list [Today] shows what each field needs, the most urgent first.\n\n"
    "  [Configuration] sets the date, the units, and how many fields the bars show at once.\n\n"
    "  The menu [Farm] opens or makes another farm, each in a directory of its own.\n\n"
    "  F1 opens the manual at the place of the window that you are in.";

void Load(frmHelp& form) { form.rtbVersion1.Text = State.VersionString; }

void cmd_manual_Click(frmHelp&) {
    const std::optional<std::string> manual = ManualPath();
    if (!manual || !TheScreen().OpenDocument(*manual))
        TheScreen().Tell("Can't find VERAQUA USER'S MANUAL", "VERAQUA ERROR");
}

void cmdPrint_Click(frmHelp&) { PrintForm(FormName::frmHelp); }

void Leave(frmHelp&) {
    Show(FormName::frmVeraqua);
    Unload(FormName::frmHelp);
}

}  // namespace

frmHelp::frmHelp() {
    Caption = "Instructions";
    rtbHelp1.Text = Instructions;
    rtbHelp1.ReadOnly = true;
    rtbVersion1.ReadOnly = true;
    OLE1.Visible = false;
}

FormTable TableOf(frmHelp& form) {
    FormFor table(form, FormName::frmHelp, "frmHelp");
    table.Add("rtbVersion1", form.rtbVersion1);
    table.Add("rtbHelp1", form.rtbHelp1);
    table.Add("OLE1", form.OLE1);
    table.Add("cmd_manual", form.cmd_manual).Click(cmd_manual_Click);
    table.Add("cmdPrint", form.cmdPrint).Click(cmdPrint_Click);
    table.Add("Cmd_Exit", form.Cmd_Exit).Click(Leave).Exit();
    table.Load(Load).Close(Leave);
    return table.Done();
}

}  // namespace veraqua
