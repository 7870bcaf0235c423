#include "reports/forms/report_options.h"

#include <optional>
#include <string_view>

#include "core/files/files.h"
#include "core/state.h"
#include "reports/report_file.h"
#include "screen/forms.h"
#include "screen/screen.h"

namespace veraqua {

namespace {

struct ReportKind {
    std::string_view Title;
    bool Printable;  ///< the dialog offers the printer as well
};

constexpr std::array<ReportKind, 4> Kinds{{
    {"Save Irrigation Schedule", false},
    {"Save Field Report", false},
    {"Field Report of Harvested Field", true},
    {"Save List of Fields", false},
}};

std::string& LastName(frmReportOptions& form) { return form.LastNames[form.ProposedName]; }

void Choose(frmReportOptions& form, ReportDestination destination) {
    form.Destination = destination;
    State.ReportCancelled = destination == ReportDestination::None;
}

void Load(frmReportOptions& form) {
    const ReportKind& kind = Kinds[static_cast<std::size_t>(form.Report)];
    Choose(form, ReportDestination::None);
    form.Caption = kind.Title;
    form.cmd_print.Visible = kind.Printable;
    form.Txt_filename.Text = LastName(form).empty() ? files::DirectoryPath() + form.ProposedName : LastName(form);
}

/// The dialog ends with a choice.
void Leave(frmReportOptions& form, ReportDestination destination) {
    Choose(form, destination);
    Unload(FormName::frmReportOptions);
}

/// Whether there is a file of that name which the user doesn't want to lose.
bool KeepsOldFile(const std::string& path) {
    return files::FileExists(path) && TheScreen().YesNo(path + " is there already. Keep it and choose another name?",
                                                        "File Exists", Icon::Question, false);
}

void cmd_OK_Click(frmReportOptions& form) {
    const std::optional<std::string> path = ReportPath(TheScreen(), form.Txt_filename.Text, BareName::InDataDirectory);
    if (!path || KeepsOldFile(*path)) return;
    State.ReportFileName = LastName(form) = *path;
    Leave(form, ReportDestination::Disk);
}

void cmd_print_Click(frmReportOptions& form) { Leave(form, ReportDestination::Printer); }

void cmd_cancel_Click(frmReportOptions&) { Unload(FormName::frmReportOptions); }

}  // namespace

FormTable TableOf(frmReportOptions& form) {
    FormFor table(form, FormName::frmReportOptions, "frmReportOptions");
    table.Add("lbl_filename", form.lbl_filename);
    table.Add("Txt_filename", form.Txt_filename).EnterKey(cmd_OK_Click);
    table.Add("cmd_OK", form.cmd_OK).Click(cmd_OK_Click);
    table.Add("cmd_print", form.cmd_print).Click(cmd_print_Click);
    table.Add("cmd_cancel", form.cmd_cancel).Click(cmd_cancel_Click).Exit();
    table.Load(Load).Close(cmd_cancel_Click);
    FormTable done = table.Done();
    done.Reset = [&form] {
        frmReportOptions fresh;
        fresh.Report = form.Report;
        fresh.ProposedName = form.ProposedName;
        fresh.LastNames = form.LastNames;
        form = fresh;
    };
    return done;
}

ReportDestination ChooseDestination(SavedReport report, std::string_view proposedName) {
    The<frmReportOptions>().Report = report;
    The<frmReportOptions>().ProposedName = proposedName;
    ShowModal(FormName::frmReportOptions);
    return The<frmReportOptions>().Destination;
}

}  // namespace veraqua
