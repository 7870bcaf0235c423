#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "core/ask.h"
#include "engine/season_run.h"
#include "workbench/event_list.h"
#include "workbench/refused.h"

/// A change of the field in work with the run that follows it: one load, one change, one store.
namespace veraqua {

/// What a deed has done to a field.
struct FieldChange {
    StatRecord Before;  ///< its row of the directory
    StatRecord After;
    RunOutcome Run = RunOutcome::Done;
    FieldFile File;           ///< as it is stored now
    bool IsRecorded = false;  ///< else there was nothing to change
    bool IsNoWater = false;   ///< the amount recorded is stored as 0 mm

    /// Whether the predictions follow from the change. Else they are those from before, and the user has been told.
    bool HasRun() const { return Run == RunOutcome::Done || Run == RunOutcome::StoppedByUser; }
};

/// Lets `change` work on the field in work and, if it says that there is something to store, runs the season and stores
/// file and row, all as one set of changes. Nothing, after the user has been told, if the field's file is missing.
/// RunTimeFailure where the change or the run fails; everything is as before then.
std::optional<FieldChange> ChangeAndRun(Ask& ask, const std::function<bool(FieldInHand&)>& change);

/// A list of a field that the user keeps.
using KeptList = std::vector<EventRecord> FieldLists::*;

/// Puts lists that the user has kept into the file; one that is empty has lost its entries.
void RecordWaterLists(FieldFile& file, std::vector<EventRecord> rain, std::vector<EventRecord> irrigation);
void RecordCuttingList(FieldFile& file, std::vector<EventRecord> cuttings);

/// Puts `amount`, nothing to remove it, on `day` of one of the lists, and runs.
OrRefused<FieldChange> RecordAndRun(Ask& ask, KeptList list, JulianValue day, std::optional<double> amount);

}  // namespace veraqua
