#include <fmt/format.h>

#include "cli/commands.h"
#include "core/directory.h"
#include "core/field_file.h"
#include "core/state.h"
#include "reports/field_report.h"
#include "reports/report_file.h"
#include "reports/schedule.h"

namespace veraqua {

namespace {

/// Takes `file`, as typed, for the name of the report to save. False if it is refused, after a message.
bool TakeReportName(Session& session, const std::string& file) {
    const std::optional<std::string> path = ReportPath(session.Outside, file, BareName::InWorkingDirectory);
    if (path) State.ReportFileName = *path;
    return path.has_value();
}

}  // namespace

int RunSchedule(Session& session, const std::optional<std::string>& file) {
    if (!session.OpenData(files::Access::Read)) return ExitRefused;
    if (file && !TakeReportName(session, *file)) return ExitRefused;
    if (file) SaveSchedule(session.Outside);
    session.Print(JsonOfRows(RowsInUse()), file ? "" : ScheduleText(session.Outside));
    return ExitDone;
}

int RunReport(Session& session, int row, const std::optional<std::string>& file) {
    if (!session.OpenData(files::Access::Read) || !IsField(session, row)) return ExitRefused;
    if (file && !TakeReportName(session, *file)) return ExitRefused;
    const std::optional<std::string> report = FieldReportText(session.Outside, row);
    if (!report || (file && !SaveFieldReport(session.Outside, row))) return ExitRefused;
    const FieldFile field = LoadFieldFile(row);
    Json json = JsonOfField(row, field);
    json["days"] = JsonOfDays(field);
    session.Print(json, file ? "" : *report);
    return ExitDone;
}

}  // namespace veraqua
