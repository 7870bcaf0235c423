#include "core/backup_name.h"

#include <fmt/format.h>

#include "core/files.h"

namespace veraqua {

std::string FreeBackupName(const FixedText<10>& fieldId, JulianValue harvestDay) {
    const Date date = DateFromJulian(harvestDay);
    const std::string stem =
        fmt::format("{}_{:02}{:02}{}_ ", fieldId.Whole(), date.Day, date.Month, YearSuffix(date.Year));
    for (int counter = 1;; ++counter)
        if (std::string name = fmt::format("{}{}.dat", stem, counter); !files::Exists(name)) return name;
}

}  // namespace veraqua
