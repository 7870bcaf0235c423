#include "reports/report_file.h"

#include <algorithm>
#include <array>
#include <system_error>

#include <fmt/format.h>

#include "core/backup_name.h"
#include "core/base/characters.h"
#include "core/base/text.h"
#include "core/files/data_directory.h"
#include "core/files/files.h"
#include "core/state.h"

namespace veraqua {

namespace {

constexpr std::string_view Separators = "/\\";
constexpr std::string_view NotInNames = "':|";
constexpr std::size_t LongestName = 255;  // bytes, in every usual file system

/// Names of the data directory's own files, in lower case: "#" is a digit, "*" one or more digits, "?" any character.
constexpr std::array<std::string_view, 16> DataFileNames{
    "stat.dat",
    "updates.dat",
    "crop.dat",
    "weathdef.dat",
    "network.txt",
    "field*.dat",
    "field*.tmp",
    "weather##.##",
    "kesta.##",
    "####rd.txt",
    "??????????_######_ *.dat",  // a harvested field: ID, date, counter
    "??????????_######_ *.row",  // its row of the directory
    "????????????????????.dat",  // whatever has a harvested field's 24 characters is listed as one
    "veraguide.doc",
    files::LockName,
    files::JournalName,
};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool Fits(std::string_view name, std::string_view pattern) {
    for (const char place : pattern) {
        if (name.empty()) return false;
        const bool digit = IsDigit(name.front());
        const bool fits = place == '#' || place == '*' ? digit : place == '?' || place == name.front();
        if (!fits) return false;
        name.remove_prefix(1);
        if (place == '*') name.remove_prefix(std::min(name.size(), name.find_first_not_of("0123456789")));
    }
    return name.empty();
}

bool IsDataFileName(std::string_view name) {
    // The ten characters of a field ID may take more bytes here than in a data file. No data file has characters that
    // Latin-1 lacks.
    const std::optional<std::string> singleBytes = Latin1FromUtf8(LowerCase(name));
    return singleBytes && std::any_of(DataFileNames.begin(), DataFileNames.end(),
                                      [&](std::string_view pattern) { return Fits(*singleBytes, pattern); });
}

/// A report name at its last separator, both parts as typed.
struct SplitName {
    std::string_view Directory;  ///< without the separator, unless it is the root; empty where none is named
    std::string_view File;
};

SplitName Split(std::string_view text) {
    const std::size_t separator = text.find_last_of(Separators);
    if (separator == std::string_view::npos) return {{}, text};
    return {text.substr(0, std::max<std::size_t>(separator, 1)), text.substr(separator + 1)};
}

std::string WithSlashes(std::string_view path) {
    std::string slashes(path);
    std::replace(slashes.begin(), slashes.end(), '\\', '/');
    return slashes;
}

std::string DirectoryOf(const SplitName& name, BareName bare) {
    if (!name.Directory.empty()) return WithSlashes(name.Directory);
    return bare == BareName::InDataDirectory ? files::DirectoryPath() : ".";
}

/// True if a report may be called `file` in `directory`; else the user has been told why not.
bool FileNameMayBeUsed(Ask& ask, std::string_view file, const std::string& directory) {
    constexpr std::string_view title = "Invalid File Name";
    if (file.size() > LongestName)
        ask.Tell("Please enter a shorter file name", title);
    else if (file.find_first_of(NotInNames) != std::string_view::npos || HasControlCharacter(file))
        ask.Tell("An invalid special character was found in your file name.", title);
    else if (IsDataFileName(file) && files::SameDirectory(directory, files::DirectoryPath()))
        ask.Tell("That is a data file of Veraqua. Please choose another name.", title);
    else
        return true;
    return false;
}

}  // namespace

std::optional<std::string> ReportPath(Ask& ask, std::string_view text, BareName bare) {
    const SplitName name = Split(text);
    const std::string directory = DirectoryOf(name, bare);
    if (!name.Directory.empty() && !files::DirectoryExists(directory)) {
        ask.Tell(fmt::format("The following directory was not found: {}", name.Directory), "Directory Error");
        return std::nullopt;
    }
    if (Trimmed(name.File).empty()) {
        ask.Tell("Please enter a file name", "Missing File Name");
        return std::nullopt;
    }
    if (!FileNameMayBeUsed(ask, name.File, directory)) return std::nullopt;
    const bool inDataDirectory = name.Directory.empty() && bare == BareName::InDataDirectory;
    return (inDataDirectory ? directory : std::string()) + WithSlashes(text);
}

std::string HarvestedReportName(const Backup& backup) {
    const std::string harvest = HarvestInName(backup.FileName);
    std::string name = fmt::format("Field {} {}.txt", backup.FieldId, harvest.empty() ? backup.FileName : harvest);
    const std::string refused = fmt::format("{}{}", Separators, NotInNames);
    std::replace_if(
        name.begin(), name.end(), [&](char c) { return refused.find(c) != std::string::npos; }, '-');
    return name;
}

void SaveReport(Ask& ask, const SavedAs& report, std::string_view text) {
    if (State.ReportFileName.empty()) State.ReportFileName = files::DirectoryPath() + std::string(report.DefaultName);
    files::WriteOutside(State.ReportFileName, text);
    ask.Tell(fmt::format("{} was saved to: {}", report.What, State.ReportFileName), "File Saved");
}

}  // namespace veraqua
