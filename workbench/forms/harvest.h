#pragma once

#include <optional>
#include <string>

#include "workbench/forms/field_menu.h"

/// The end of a field, and its undo. A harvested field's file stays in the data directory as a backup, and beside it,
/// in a file of the backup's name with the ending ".row", what the directory knew of it.
namespace veraqua {

/// Ends the field of `row`: its file becomes a backup, its row leaves the directory, and the fields behind it move up,
/// all as one set of changes. Gives the backup's name; empty, with all as before, where the disk refuses. The user has
/// been told either way.
std::string HarvestField(int row);

/// Undoes a harvest: the backup becomes the file of the row behind the last one, with the depletion date and the
/// prediction that the field had; without its ".row" file it is run from planting. Gives the row; nothing, after the
/// user has been told, if that is no backup, there is no room or a field in use has its ID. RunTimeFailure if the
/// backup is damaged or the disk refuses; the files then stay as they are.
std::optional<int> RestoreField(const std::string& backupName);

/// The user has picked backup `number`, from 1, of those listed.
void RestorePicked(frmField& form, int number);

void mnuDelete_Click(frmField& form);
void mnuRestore_Click(frmField& form);

}  // namespace veraqua
