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
    std::string_view DefaultName;  ///< in the data directory
    bool Printable;                ///< the dialog offers the printer as well
};

constexpr std::array<ReportKind, 3> Kinds{{
    {"Save Irrigation Schedule", SavedSchedule.DefaultName, false},
    {"Save Field Report", SavedFieldReport.DefaultName, false},
    {"Field Report of Harvested Field", SavedFieldReport.DefaultName, true},
}};

std::string& LastName(frmReportOptions& form) { return form.LastNames[static_cast<std::size_t>(form.Report)]; }

void Choose(frmReportOptions& form, ReportDestination destination) {
    form.Destination = destination;
    State.ReportCancelled = destination == ReportDestination::None;
}

void Load(frmReportOptions& form) {
    const ReportKind& kind = Kinds[static_cast<std::size_t>(form.Report)];
    Choose(form, ReportDestination::None);
    form.Caption = kind.Title;
    form.cmd_print.Visible = kind.Printable;
    form.Txt_filename.Text =
        LastName(form).empty() ? files::DirectoryPath() + std::string(kind.DefaultName) : LastName(form);
}

/// The dialog ends with a choice.
void Leave(frmReportOptions& form, ReportDestination destination) {
    Choose(form, destination);
    Unload(FormName::frmReportOptions);
}

void cmd_OK_Click(frmReportOptions& form) {
    const std::optional<std::string> path = ReportPath(TheScreen(), form.Txt_filename.Text, BareName::InDataDirectory);
    if (!path) return;
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
        fresh.LastNames = form.LastNames;
        form = fresh;
    };
    return done;
}

ReportDestination ChooseDestination(SavedReport report) {
    The<frmReportOptions>().Report = report;
    ShowModal(FormName::frmReportOptions);
    return The<frmReportOptions>().Destination;
}

}  // namespace veraqua
