#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/field_file.h"

/// The files of harvested fields, which stay in the data directory.
namespace veraqua {

struct Backup {
    std::string FileName;  ///< as on disk
    std::string FieldId;   ///< without trailing blanks
    std::string CropName;  ///< its first ten characters

    bool operator==(const Backup&) const = default;
};

/// How a list names it, by what tells it from the other harvests of that field: "NORTH 30  -  @Alfalfa  -  harvested
/// 06-30-26". A file whose name doesn't say so is told by its name.
std::string ListText(const Backup& backup);

/// What the user is told where there are none.
constexpr std::string_view NoBackupsText = "No deleted fields found on disk!";

/// All files of the data directory that bear a backup's name: 24 characters that end in ".dat". Sorted by name.
std::vector<Backup> FindBackups();

/// The field file in a backup; the state stays as it is. RunTimeFailure if it is missing or damaged.
FieldFile LoadBackup(const std::string& fileName);

}  // namespace veraqua
