#pragma once

#include <optional>

#include "core/ask.h"
#include "core/field_file.h"
#include "engine/prediction.h"

/// The engine's entry: the season of the field in work, from its file and weather to its file and row.
namespace veraqua {

enum class RunOutcome {
    Done,
    NothingToUpdate,   ///< the weather ends before planting; the user has been told
    FieldFileMissing,  ///< the user has been told
    WeatherDamaged,    ///< a weather file lacks a day; the user has been told, nothing is written
    StoppedByUser,     ///< run through the day before the one without weather
};

/// What has come of a run.
struct FieldRun {
    RunOutcome Outcome = RunOutcome::NothingToUpdate;
    Outlook Result;                  ///< where days were run
    JulianValue LastWeatherDay = 0;  ///< likewise: the last day of real weather

    /// Whether days were run, so that there is something new to store.
    bool HasRun() const { return Outcome == RunOutcome::Done || Outcome == RunOutcome::StoppedByUser; }
};

/// A field whose file and directory row are in hand.
struct FieldInHand {
    FieldFile File;
    StatRecord Row;
    JulianValue DepletionDay = 0;  ///< day of the last depletion set by hand; 0: never
};

/// The field in work with the row that the directory has. Nothing if its file is missing, after the user has been told.
/// RunTimeFailure if it is damaged.
std::optional<FieldInHand> TakeInHand(Ask& ask);

/// A new field on its planting day: first row, first depletion. RunTimeFailure if the soil has no capacity in the root
/// zone.
FieldInHand NewField(const FieldFile& headerAndSoil);

/// Runs the season of the field in work, `field`, on the weather through `WeatherLastJulian` and forecasts the rest on
/// default weather. The loaded default weather must be that of the field's station. What the run has made is in
/// `field`; only the weather files of the years that it looked into are made. RunTimeFailure on an arithmetic fault.
FieldRun RunField(Ask& ask, FieldInHand& field, JulianValue today);

/// Writes the file and the directory row of the field in work.
void StoreField(Ask& ask, const FieldInHand& field);

/// What memory says of the field in work once its set of changes is true: row, header and, where it was run, what the
/// run has found for the screens.
void LeaveInState(const FieldInHand& field, const FieldRun& run);

/// Runs the season of `CurrentField` from its file to its file and row, as one set of changes. RunTimeFailure on an
/// arithmetic fault or a damaged file; nothing has changed then.
FieldRun UpdateField(Ask& ask);

/// The same as of `today`.
FieldRun UpdateField(Ask& ask, JulianValue today);

/// Makes the file of `CurrentField` with its first row, the planting day, from `Field` or `Hay` and the soil, and its
/// row of the directory with a first depletion. RunTimeFailure if the soil has no capacity in the root zone.
void CreateField(Ask& ask, const SoilProfile& soil);

}  // namespace veraqua
