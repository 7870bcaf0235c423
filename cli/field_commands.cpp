#include <algorithm>

#include <fmt/format.h>

#include "catch_up/field_updates.h"
#include "cli/commands.h"
#include "cli/field_text.h"
#include "core/directory.h"
#include "core/field_in_work.h"
#include "core/state.h"
#include "reports/days_csv.h"
#include "reports/season_chart.h"

namespace veraqua {

namespace {

/// The file of the field in `row`; nothing after a message if there is no such field or no file.
std::optional<FieldFile> FieldOf(Session& session, int row) {
    if (!IsField(session, row)) return std::nullopt;
    if (!SelectField(session.Outside, row)) return std::nullopt;
    return LoadFieldFile(row);
}

int ExitStatusOf(UpdateStatus status) {
    switch (status) {
        case UpdateStatus::Done: return ExitDone;
        case UpdateStatus::Refused: return ExitRefused;
        case UpdateStatus::Failed: return ExitFailure;
    }
    return ExitFailure;
}

}  // namespace

int RunFields(Session& session) {
    if (!session.OpenData(files::Access::Read)) return ExitRefused;
    const std::vector<int> rows = RowsInUse();
    session.Print(JsonOfRows(rows), TextOfRows(rows));
    return ExitDone;
}

int RunFieldUpdate(Session& session, std::vector<int> rows) {
    if (!session.OpenData(files::Access::Write)) return ExitRefused;
    int worst = ExitDone;
    if (rows.empty()) {
        rows = RowsInUse();
    } else {
        const auto noField = [&session](int row) { return !IsField(session, row); };
        if (std::erase_if(rows, noField) > 0) worst = ExitRefused;
    }
    for (const UpdateStatus status : UpdateRows(session.Outside, rows)) worst = std::max(worst, ExitStatusOf(status));
    session.Print(JsonOfRows(rows), TextOfRows(rows));
    return worst;
}

int RunFieldShow(Session& session, int row) {
    if (!session.OpenData(files::Access::Read)) return ExitRefused;
    const std::optional<FieldFile> file = FieldOf(session, row);
    if (!file) return ExitRefused;
    session.Print(JsonOfField(row, *file), TextOfField(row, *file));
    return ExitDone;
}

int RunFieldDays(Session& session, int row, bool csv) {
    if (!session.OpenData(files::Access::Read)) return ExitRefused;
    const std::optional<FieldFile> file = FieldOf(session, row);
    if (!file) return ExitRefused;
    session.Print(JsonOfDays(*file), csv ? DaysCsv(*file, State.EnglishUnits) : TextOfDays(*file));
    return ExitDone;
}

int RunFieldChart(Session& session, int row) {
    if (!session.OpenData(files::Access::Read)) return ExitRefused;
    const std::optional<FieldFile> file = FieldOf(session, row);
    if (!file) return ExitRefused;
    const StatRecord& record = State.Stat[row];
    session.Print(JsonOf(SeasonChart(*file, record, State.TodayJulian, false)),
                  TextOf(SeasonChart(*file, record, State.TodayJulian, State.EnglishUnits)));
    return ExitDone;
}

}  // namespace veraqua
