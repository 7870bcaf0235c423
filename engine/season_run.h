#pragma once

#include "core/ask.h"
#include "core/field_file.h"

/// The engine's entry: the season of the field in work, from its file and weather to its file and row.
namespace veraqua {

enum class RunOutcome {
    Done,
    NothingToUpdate,   ///< the weather ends before planting; the user has been told
    FieldFileMissing,  ///< the user has been told
    WeatherDamaged,    ///< a weather file lacks a day; the user has been told, nothing is written
    StoppedByUser,     ///< written through the day before the one without weather
};

/// Runs the season of `CurrentField` on the weather through `WeatherLastJulian` and forecasts the rest on default
/// weather. Writes field file and directory row as one set of changes and leaves the results in `Stat` and the state.
/// The loaded default weather must be that of the field's station. RunTimeFailure on an arithmetic fault or a damaged
/// file; nothing has changed then.
RunOutcome UpdateField(Ask& ask);

/// The same with `today` in the place of the state's.
RunOutcome UpdateField(Ask& ask, JulianValue today);

/// Makes the file of `CurrentField` with its first row, the planting day, from `Field` or `Hay` and the soil, and its
/// row of the directory with a first depletion. RunTimeFailure if the soil has no capacity in the root zone.
void CreateField(Ask& ask, const SoilProfile& soil);

}  // namespace veraqua
