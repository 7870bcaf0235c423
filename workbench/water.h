#pragma once

#include <optional>
#include <vector>

#include "workbench/field_change.h"

/// Rain and irrigation of the field in work. Each change reaches the field file at once and runs the season.
namespace veraqua {

enum class Water { Rain, Irrigation };

/// Records `mm` of water on `day`, in place of what stood there.
///   day  0: the user has typed no date, and been told why
///   mm   gross; nothing: no number was typed. Stored as whole millimetres
/// RunTimeFailure where the run fails.
OrRefused<FieldChange> RecordWater(Ask& ask, Water kind, JulianValue day, std::optional<double> mm);

/// Removes the water of `day`, after a question.
OrRefused<FieldChange> RemoveWater(Ask& ask, Water kind, JulianValue day);

/// Puts both lists back as they were at some time, and runs.
OrRefused<FieldChange> RestoreWater(Ask& ask, const std::vector<EventRecord>& rain,
                                    const std::vector<EventRecord>& irrigation);

}  // namespace veraqua
