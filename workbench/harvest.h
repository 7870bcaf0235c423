#pragma once

#include <string>

#include "core/ask.h"
#include "workbench/refused.h"

/// The end of a field, and its undo. A harvested field's file stays in the data directory as a backup, and beside it,
/// in a file of the backup's name with the ending ".row", what the directory knew of it.
namespace veraqua {

/// Ends the field of `row`, after a question: its file becomes a backup, its row leaves the directory, and the fields
/// behind it move up, all as one set of changes. Gives the backup's name. RunTimeFailure if the field's file is missing
/// or damaged.
OrRefused<std::string> HarvestField(Ask& ask, int row);

/// Undoes a harvest: the backup becomes the file of the row behind the last one, with the depletion date and the
/// prediction that the field had; without its ".row" file it is run from planting. Gives the row. RunTimeFailure if the
/// backup is damaged or the disk refuses; the files then stay as they are.
OrRefused<int> RestoreField(Ask& ask, const std::string& backupName);

}  // namespace veraqua
