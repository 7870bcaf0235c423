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

std::string HarvestInName(std::string_view name) {
    constexpr std::size_t idLength = 10;  // at the least: a letter may take more bytes
    static constexpr std::string_view end = "_300626_ 1.dat";
    if (name.size() < idLength + end.size()) return "";
    name.remove_prefix(name.size() - end.size());
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    for (std::size_t i = 0; i < end.size(); ++i)
        if (isDigit(end[i]) ? !isDigit(name[i]) : LowerCase(name.substr(i, 1)) != end.substr(i, 1)) return "";
    const char counter = name[9];
    return fmt::format("{}-{}-{}{}", name.substr(3, 2), name.substr(1, 2), name.substr(5, 2),
                       counter == '1' ? "" : fmt::format(" ({})", counter));
}

}  // namespace veraqua
