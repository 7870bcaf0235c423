#include "catch_up/field_updates.h"

#include <algorithm>

#include "core/directory.h"
#include "core/field_in_work.h"
#include "core/files/files.h"
#include "core/state.h"
#include "engine/season_run.h"
#include "weather/coverage.h"

namespace veraqua {

namespace {

/// Runs `update` for one field and tells its failure.
template <class Update>
UpdateStatus Guarded(Ask& ask, Update update) {
    try {
        return update();
    } catch (const RunTimeFailure& failure) {  // one field of many
        ask.Tell(failure.what(), ProgramTitle, Icon::Stop);
        return UpdateStatus::Failed;
    }
}

UpdateStatus StatusOf(const FieldRun& run) {
    return run.Outcome == RunOutcome::Done ? UpdateStatus::Done : UpdateStatus::Refused;
}

/// Makes what `walk` does to many fields one set of changes. Where the disk refuses them, the directory is as on disk
/// again, which only shows once the set is gone.
template <class Walk>
void AsOneSet(Ask& ask, Walk walk) {
    const InWork before;
    try {
        files::ChangeSet changes;
        walk();
        changes.Commit();
    } catch (const RunTimeFailure&) {  // memory is to say what the files say
        StartDirectory();
        before.Return(ask);
        throw;
    }
    before.Return(ask);
}

/// The season of a field on the weather that is there.
UpdateStatus UpdateRow(Ask& ask, int row) {
    if (!SelectField(ask, row)) return UpdateStatus::Refused;
    if (!FindCoverage(ask, YearOf(State.Stat[row].LastDay)).IsKnown()) return UpdateStatus::Refused;
    return StatusOf(UpdateField(ask));
}

}  // namespace

std::vector<UpdateStatus> UpdateRows(Ask& ask, const std::vector<int>& rows) {
    std::vector<UpdateStatus> statuses;
    AsOneSet(ask, [&] {
        for (const int row : rows) {
            ask.Progress("Updating fields", statuses.size(), rows.size());
            statuses.push_back(Guarded(ask, [&] { return UpdateRow(ask, row); }));
        }
        ask.Progress("Updating fields", rows.size(), rows.size());
    });
    return statuses;
}

StationCatchUp UpdateFieldsForStation(Ask& ask, std::string_view what) {
    const std::string code = State.StationCode;
    const std::vector<int> rows = RowsInUse();
    StationCatchUp result;
    const auto catchUp = [&](int row) {
        if (!SelectField(ask, row)) return UpdateStatus::Refused;
        if (State.StationCode != code) return UpdateStatus::Done;
        ++result.Fields;
        if (State.Stat[row].LastDay >= State.TodayJulian - 1) return UpdateStatus::Done;
        result.Run.push_back(row);
        return StatusOf(UpdateField(ask));
    };
    AsOneSet(ask, [&] {
        for (std::size_t i = 0; i < rows.size(); ++i) {
            ask.Progress(what, i, rows.size());
            result.Worst = std::max(result.Worst, Guarded(ask, [&] { return catchUp(rows[i]); }));
        }
        ask.Progress(what, rows.size(), rows.size());
    });
    return result;
}

}  // namespace veraqua
