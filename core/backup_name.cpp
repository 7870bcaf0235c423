#include "core/backup_name.h"

#include <algorithm>

#include <fmt/format.h>

#include "core/files/files.h"

namespace veraqua {

std::string FreeBackupName(const FixedText<10>& fieldId, JulianValue harvestDay) {
    FixedText<10> id = fieldId;
    std::replace_if(
        id.Bytes().begin(), id.Bytes().end(), [](char c) { return c == '/' || c == '\0'; }, '-');
    const Date date = DateFromJulian(harvestDay);
    const std::string stem = fmt::format("{}_{:02}{:02}{}_ ", id.Whole(), date.Day, date.Month, YearSuffix(date.Year));
    for (int counter = 1;; ++counter)
        if (std::string name = fmt::format("{}{}.dat", stem, counter); !files::Exists(name)) return name;
}

}  // namespace veraqua
