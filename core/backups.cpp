#include "core/backups.h"

#include <algorithm>

#include <fmt/format.h>

#include "core/backup_name.h"
#include "core/base/failure.h"
#include "core/files/files.h"

namespace veraqua {

namespace {

/// What the header of a field file begins with, behind the count of the day rows.
constexpr std::size_t IdOffset = 2;
constexpr std::size_t CropOffset = 12;

/// By its name alone, which is all that tells a backup.
bool IsBackupName(std::string_view name) {
    constexpr std::ptrdiff_t length = 24;
    const auto characters = std::count_if(name.begin(), name.end(), [](char c) { return (c & 0xC0) != 0x80; });
    return characters == length && LowerCase(name).ends_with(".dat");
}

/// Ten characters of a file; blank beyond its end.
std::string TenCharacters(std::string_view bytes, std::size_t offset) {
    FixedText<10> text;
    bytes.substr(std::min(offset, bytes.size())).copy(text.Bytes().data(), text.Bytes().size());
    return text.Text();
}

}  // namespace

std::vector<Backup> FindBackups() {
    std::vector<Backup> backups;
    for (const std::string& name : files::Names()) {
        if (!IsBackupName(name)) continue;
        const auto bytes = files::ReadExisting(name);
        backups.push_back({name, TenCharacters(*bytes, IdOffset), TenCharacters(*bytes, CropOffset)});
    }
    return backups;
}

std::string ListText(const Backup& backup) {
    const std::string harvest = HarvestInName(backup.FileName);
    return fmt::format("{}  -  {}  -  {}", backup.FieldId, backup.CropName,
                       harvest.empty() ? backup.FileName : "harvested " + harvest);
}

FieldFile LoadBackup(const std::string& fileName) {
    const auto bytes = files::ReadExisting(fileName);
    const bool isHay = bytes->size() > CropOffset && (*bytes)[CropOffset] == HayMark;
    return ParseFieldFile(*bytes, isHay, fileName);
}

}  // namespace veraqua
