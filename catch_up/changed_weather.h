#pragma once

#include <vector>

#include "core/ask.h"
#include "core/calendar.h"

/// Fields whose season has been worked out with weather that is another by now.
namespace veraqua {

/// Rows of the fields of the station in work whose runs have used real weather of a day in `changed`. A field whose
/// file is missing or damaged isn't among them: the run that comes upon it tells so.
std::vector<int> FieldsWorkedOutWith(const DayRange& changed);

/// Runs the seasons of `rows` anew. What the state says of the weather work, which may go on, stays. RunTimeFailure if
/// the disk refuses.
void RunAgain(Ask& ask, const std::vector<int>& rows);

}  // namespace veraqua
