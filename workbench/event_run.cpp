#include "workbench/event_run.h"

#include "core/state.h"
#include "engine/season_run.h"
#include "reports/change_line.h"
#include "screen/screen.h"

namespace veraqua {

std::string RunAfterChange() {
    const StatRecord before = State.Stat[State.CurrentField];
    const RunOutcome outcome = UpdateField(TheScreen());
    if (outcome == RunOutcome::Done || outcome == RunOutcome::StoppedByUser)
        return ChangeLine(before, State.Stat[State.CurrentField], State.EnglishUnits);
    return "The change is recorded, but the field was not run: its predictions are those from before.";
}

std::string RecordAndRun(FieldLists lists) {
    FieldChanges changes;
    changes.StartDay = State.Header().PlantDay + 1;
    changes.Lists = std::move(lists);
    changes.RainRemoved = State.RainChanged;
    changes.IrrigationRemoved = State.IrrigationChanged;
    changes.CutsRemoved = State.CutsChanged;
    State.RainChanged = State.IrrigationChanged = State.CutsChanged = false;

    files::ChangeSet asOne;
    WriteField(changes, LoadFieldFile(State.CurrentField).Soil);
    std::string line = RunAfterChange();
    asOne.Commit();
    return line;
}

}  // namespace veraqua
