#pragma once

#include <optional>
#include <vector>

#include "workbench/field_change.h"

/// Cuttings of the hay field in work. Each change reaches the field file at once and runs the season.
namespace veraqua {

/// Nothing else is cut.
inline Refused OnlyHayIsCut() { return {"This option only applies to Alfalfa fields", "Pick Another Option"}; }

/// Records the cutting `number` on `day`, in place of what stood there; 0 removes it without a question.
///   day     0: the user has typed no date, and been told why
///   number  nothing: no number was typed
/// RunTimeFailure where the run fails.
OrRefused<FieldChange> RecordCutting(Ask& ask, JulianValue day, std::optional<double> number);

/// Removes the cutting of `day`, after a question.
OrRefused<FieldChange> RemoveCutting(Ask& ask, JulianValue day);

/// Puts the list back as it was at some time, and runs.
OrRefused<FieldChange> RestoreCuttings(Ask& ask, const std::vector<EventRecord>& cuttings);

}  // namespace veraqua
