#pragma once

#include "screen/controls.h"

/// What the windows share in which the user picks a directory.
namespace veraqua {

/// Lists where a picker can begin: the user's home, the farms used before, and the top.
void ListDrives(ComboBox& drives);

/// Goes on with the directory picked: its path and its files. After the user has been told why it can't be read, with
/// the one before, which `path` still has.
void ShowPicked(DirectoryBox& picked, Label& path, ListBox& files);

}  // namespace veraqua
