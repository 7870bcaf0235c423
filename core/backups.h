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

/// What the user is told where there are none.
constexpr std::string_view NoBackupsText = "No deleted fields found on disk!";

/// All files of the data directory that bear a backup's name: 24 characters that end in ".dat". Sorted by name.
std::vector<Backup> FindBackups();

/// The field file in a backup; the state stays as it is. RunTimeFailure if it is missing or damaged.
FieldFile LoadBackup(const std::string& fileName);

}  // namespace veraqua
