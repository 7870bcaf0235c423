#include "cli/commands.h"
#include "cli/field_text.h"
#include "core/directory.h"
#include "core/field_in_work.h"
#include "core/state.h"
#include "workbench/adjustments.h"

namespace veraqua {

namespace {

/// Prints the row of a field that was changed and run.
int Answer(Session& session, int row, const OrRefused<FieldChange>& outcome) {
    if (!outcome.IsDone()) return session.Refuse(outcome.Why());
    return outcome->Run == RunOutcome::Done ? PrintRow(session, row) : ExitRefused;
}

/// The same of one whose header was changed.
int Answer(Session& session, int row, const OrRefused<FieldFile>& outcome) {
    return outcome.IsDone() ? PrintRow(session, row) : session.Refuse(outcome.Why());
}

}  // namespace

int RunFieldSet(Session& session, int row, Adjustment what, const std::string& value,
                const std::optional<std::string>& critical) {
    if (!session.OpenData(files::Access::Write) || !TakeUpFieldToRun(session, row)) return ExitRefused;
    if (critical && !State.IsHay) return session.Refuse({"Only hay has a critical MAD."});
    switch (what) {
        case Adjustment::Mad: return Answer(session, row, SetMad(session.Outside, value, critical));
        case Adjustment::Efficiency: return Answer(session, row, SetEfficiency(session.Outside, value));
        case Adjustment::Depletion: break;
    }
    return Answer(session, row, SetDepletion(session.Outside, value));
}

int RunFieldReset(Session& session, int row) {
    if (!session.OpenData(files::Access::Write) || !TakeUpFieldToRun(session, row)) return ExitRefused;
    return Answer(session, row, ResetField(session.Outside));
}

int RunFieldHarvest(Session& session, int row, DamagedField damaged) {
    if (!session.OpenData(files::Access::Write) || !IsField(session, row)) return ExitRefused;
    const OrRefused<Harvested> harvest = HarvestField(session.Outside, row, damaged);
    if (!harvest.IsDone()) return session.Refuse(harvest.Why());
    const std::vector<int> rows = RowsInUse();
    session.Print({{"backup", harvest->Backup}, {"fields", JsonOfRows(rows)}}, TextOfRows(rows));
    return harvest->IsCarriedOut ? ExitDone : ExitFailure;
}

int RunFieldRestore(Session& session, const std::string& backup) {
    if (!session.OpenData(files::Access::Write)) return ExitRefused;
    const OrRefused<int> row = RestoreField(session.Outside, backup);
    return row.IsDone() ? PrintRow(session, *row) : session.Refuse(row.Why());
}

}  // namespace veraqua
