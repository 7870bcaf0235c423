#include "weather/forms/download.h"

#include "catch_up/weather_commands.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "weather/network_address.h"

namespace veraqua {

namespace {

/// The request is over, well or not: only OK is left to press.
void Finish(frmDownload& form, bool succeeded) {
    form.Succeeded = succeeded;
    form.lblResult.Visible = succeeded;
    form.lblWarning.Visible = !succeeded;
    form.Label1.Visible = false;
    form.txtURL.Enabled = false;
    form.cmd_OK.Enabled = true;
    form.Cmd_Exit.Enabled = false;
}

void TakeText(frmDownload& form, std::string_view body) {
    form.lblResult.Caption = "Copying data to weather file";
    try {
        StoreNetworkText(form.Year, body);
    } catch (const RunTimeFailure& failure) {
        // The network's answer is no event of the form: nobody else would tell.
        Finish(form, false);
        TheScreen().Failed(failure);
        return;
    }
    form.lblResult.Caption = "Download Succeeded";
    Finish(form, true);
}

void Follow(frmDownload& form, const HttpProgress& progress) {
    if (progress.State <= HttpState::Connecting) form.lblResult.Caption = "Resolving IP/Connecting...";
    if (progress.State == HttpState::Connected) form.lblResult.Caption = "Connected...";
    if (progress.State == HttpState::Error) {
        TellDownloadError(TheScreen(), progress.Reply, NetworkAdvice(form.txtURL.Text));
        Finish(form, false);
    }
    if (progress.State == HttpState::Complete) TakeText(form, progress.Reply.Body);
}

void Load(frmDownload& form) {
    form.lblWarning.Visible = false;
    form.cmd_OK.Enabled = false;
    TakeNetworkOfUser();  // the user may have mended it since the last failure
    form.txtURL.Text = NetworkUrl(form.Year);
    form.txtURL.ReadOnly = true;
    TheScreen().StartGet(form.txtURL.Text, [&form](const HttpProgress& progress) { Follow(form, progress); });
}

void cmd_OK_Click(frmDownload&) { Unload(FormName::frmDownload); }

void Cmd_Exit_Click(frmDownload&) {
    TheScreen().CancelGet();
    TheScreen().Tell("Your download has been cancelled", "DOWNLOAD ENDED");
    Unload(FormName::frmDownload);
}

void Close(frmDownload& form) { form.Cmd_Exit.Enabled ? Cmd_Exit_Click(form) : cmd_OK_Click(form); }

}  // namespace

FormTable TableOf(frmDownload& form) {
    FormFor table(form, FormName::frmDownload, "frmDownload");
    table.Add("Label1", form.Label1);
    table.Add("txtURL", form.txtURL);
    table.Add("lblResult", form.lblResult);
    table.Add("lblWarning", form.lblWarning);
    table.Add("cmd_OK", form.cmd_OK).Click(cmd_OK_Click);
    table.Add("Cmd_Exit", form.Cmd_Exit).Click(Cmd_Exit_Click).Exit();
    table.Load(Load).Close(Close);
    FormTable done = table.Done();
    done.Reset = [&form] {
        frmDownload fresh;
        fresh.Year = form.Year;
        form = fresh;
    };
    return done;
}

bool DownloadText(int year) {
    The<frmDownload>().Year = year;
    ShowModal(FormName::frmDownload);
    return The<frmDownload>().Succeeded;
}

}  // namespace veraqua
