#include "catch_up/field_updates.h"

#include <algorithm>

#include "core/directory.h"
#include "core/field_file.h"
#include "core/files.h"
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
    } catch (const RunTimeFailure& failure) {
        ask.Tell(failure.what(), ProgramTitle, Icon::Stop);
        return UpdateStatus::Failed;
    }
}

UpdateStatus StatusOf(RunOutcome outcome) {
    return outcome == RunOutcome::Done ? UpdateStatus::Done : UpdateStatus::Refused;
}

/// The field and the station in work before a walk over many fields.
struct InWork {
    std::int16_t Field = State.CurrentField;
    std::string StationCode = State.StationCode;
    std::string StationName = State.StationName;

    /// Takes them up again, the field as the walk has left its file.
    void Return(Ask& ask) const {
        State.CurrentField = 0;
        if (Field > 0) SelectField(ask, Field);
        State.StationCode = StationCode;
        State.StationName = StationName;
    }
};

/// Ends a walk and makes the fields' changes true; where the disk refuses them, the directory is as on disk again.
void EndWalk(Ask& ask, files::ChangeSet& changes, const InWork& before) {
    try {
        changes.Commit();
    } catch (const RunTimeFailure&) {
        StartDirectory();
        before.Return(ask);
        throw;
    }
    before.Return(ask);
}

}  // namespace

std::vector<UpdateStatus> UpdateRows(Ask& ask, const std::vector<int>& rows) {
    const InWork before;
    files::ChangeSet changes;
    std::vector<UpdateStatus> statuses;
    for (const int row : rows) {
        ask.Progress("Updating fields", statuses.size(), rows.size());
        statuses.push_back(Guarded(ask, [&] {
            if (!SelectField(ask, row)) return UpdateStatus::Refused;
            if (FindCoverage(ask, YearOf(State.Stat[row].LastDay)) == Coverage::RegionMissing)
                return UpdateStatus::Refused;
            return StatusOf(UpdateField(ask));
        }));
    }
    ask.Progress("Updating fields", rows.size(), rows.size());
    EndWalk(ask, changes, before);
    return statuses;
}

StationCatchUp UpdateFieldsForStation(Ask& ask, std::string_view what) {
    const InWork before;
    const std::vector<int> rows = RowsInUse();
    StationCatchUp result;

    files::ChangeSet changes;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        ask.Progress(what, i, rows.size());
        const int row = rows[i];
        const UpdateStatus status = Guarded(ask, [&] {
            if (!SelectField(ask, row)) return UpdateStatus::Refused;
            if (State.StationCode != before.StationCode) return UpdateStatus::Done;
            ++result.Fields;
            const bool behind = State.Stat[row].LastDay < State.TodayJulian - 1;
            return behind ? StatusOf(UpdateField(ask)) : UpdateStatus::Done;
        });
        result.Worst = std::max(result.Worst, status);
    }
    ask.Progress(what, rows.size(), rows.size());
    EndWalk(ask, changes, before);
    return result;
}

}  // namespace veraqua
