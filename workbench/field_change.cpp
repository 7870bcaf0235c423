#include "workbench/field_change.h"

#include <utility>

#include "core/directory.h"
#include "core/files/files.h"
#include "core/state.h"

namespace veraqua {

std::optional<FieldChange> ChangeAndRun(Ask& ask, const std::function<bool(FieldInHand&)>& change) {
    files::ChangeSet asOne;
    std::optional<FieldInHand> field = TakeInHand(ask);
    if (!field) return std::nullopt;
    const StatRecord before = field->Row;
    if (!change(*field)) return FieldChange{before, before, RunOutcome::Done, std::move(field->File), false};
    const FieldRun run = RunField(ask, *field, State.TodayJulian);
    StoreField(ask, *field);
    asOne.Commit();
    LeaveInState(*field, run);
    return FieldChange{before, field->Row, run.Outcome, std::move(field->File), true};
}

void RecordWaterLists(FieldFile& file, std::vector<EventRecord> rain, std::vector<EventRecord> irrigation) {
    FieldChanges changes;
    changes.RainRemoved = rain.empty();
    changes.IrrigationRemoved = irrigation.empty();
    changes.Lists.Rain = std::move(rain);
    changes.Lists.Irrigation = std::move(irrigation);
    WriteField(file, changes);
}

void RecordCuttingList(FieldFile& file, std::vector<EventRecord> cuttings) {
    FieldChanges changes;
    changes.CutsRemoved = cuttings.empty();
    changes.Lists.Cuttings = std::move(cuttings);
    WriteField(file, changes);
}

OrRefused<FieldChange> RecordAndRun(Ask& ask, KeptList list, JulianValue day, std::optional<double> amount) {
    bool isMissing = false;
    const auto edit = [&](FieldInHand& field) {
        FieldLists lists = field.File.Lists;
        const ListChange change =
            InFile(FieldFileTitle(State.CurrentField), [&] { return ManageEvents(lists.*list, day, amount); });
        isMissing = change == ListChange::NoMatch;
        if (change != ListChange::Changed) return false;
        if (list == &FieldLists::Cuttings)
            RecordCuttingList(field.File, std::move(lists.Cuttings));
        else
            RecordWaterLists(field.File, std::move(lists.Rain), std::move(lists.Irrigation));
        return true;
    };
    std::optional<FieldChange> done = ChangeAndRun(ask, edit);
    if (isMissing) return Refused{"No matching date found", "Try again...", Given::Entry};
    if (!done) return Refused{};
    return *std::move(done);
}

}  // namespace veraqua
