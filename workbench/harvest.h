#pragma once

#include <string>

#include "core/ask.h"
#include "workbench/refused.h"

/// The end of a field, and its undo. A harvested field's file stays in the data directory as a backup, and beside it,
/// in a file of the backup's name with the ending ".row", what the directory knew of it.
namespace veraqua {

/// What a harvest has done.
struct Harvested {
    std::string Backup;        ///< the file's name
    bool IsCarriedOut = true;  ///< else it is recorded, the user has been told, and the next start completes it
};

/// What becomes of a field whose file is damaged.
enum class DamagedField {
    Fails,
    IsHarvested,  ///< after the user has been told; its bytes are kept as they are, its ID is that of the directory
};

/// Whether the field of `row` has a file that can't be read as one.
bool IsDamaged(int row);

/// Ends the field of `row`, after a question: its file becomes a backup, its row leaves the directory, and the fields
/// behind it move up, all as one set of changes. RunTimeFailure if the field's file is missing, and as `damaged` says.
OrRefused<Harvested> HarvestField(Ask& ask, int row, DamagedField damaged = DamagedField::Fails);

/// Undoes a harvest: the backup becomes the file of the row behind the last one, with the depletion date and the
/// prediction that the field had; without its ".row" file it is run from planting. Gives the row. RunTimeFailure if the
/// backup is damaged or the disk refuses; the files then stay as they are.
OrRefused<int> RestoreField(Ask& ask, const std::string& backupName);

}  // namespace veraqua
