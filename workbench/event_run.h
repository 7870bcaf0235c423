#pragma once

#include <string>

#include "core/field_file.h"

namespace veraqua {

/// Writes changed lists into the file of the field in work and runs its season, all as one set of changes. Lists that
/// come in empty stay as they are in the file unless the state says that the user has removed their entries; it no
/// longer says so afterwards. Gives the line that tells the user what the change did. RunTimeFailure where the run
/// fails; files are as before then.
std::string RecordAndRun(FieldLists lists);

/// Runs the season of the field in work and gives the line that tells what the change before it did.
std::string RunAfterChange();

}  // namespace veraqua
