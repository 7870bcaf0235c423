#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/files/disk.h"
#include "core/files/whole_file.h"

/// Looking into a directory: which file a name means, and what it holds.
namespace veraqua::files {

inline constexpr std::string_view LockName = "veraqua.lock";
inline constexpr std::string_view JournalName = "veraqua.journal";
/// Begins the names of files that are being written and get their own name when they are whole.
inline constexpr std::string_view ScratchPrefix = ".veraqua-";

/// A data file is far smaller; one above this has gone wrong.
inline constexpr std::size_t LargestDataFile = std::size_t{64} << 20;

/// True for the names that the directory needs for itself, whatever their case.
bool IsOwnName(std::string_view name);

/// RunTimeFailure unless `name` can be a data file's: 1 to 255 bytes, no "/" and no NUL byte, and not a name that the
/// directory needs for itself.
void ExpectDataName(std::string_view name);

/// A directory whose file names are compared without case. Of several spellings of one name the lower-case one counts,
/// else the first in the order of their bytes.
class DataDirectory {
  public:
    /// Spellings by the name in lower case, sorted.
    using Listing = std::map<std::string, std::vector<std::string>, std::less<>>;

    /// RunTimeFailure if it can't be opened.
    explicit DataDirectory(std::string path);

    const std::string& Path() const { return path_; }
    int Number() const { return directory_.Number(); }

    /// The spelling under which there is a file `name`, or nothing.
    std::optional<std::string> Find(std::string_view name);

    /// The file that `name` means, or nothing.
    std::optional<OpenedFile> Open(std::string_view name);

    /// All files but the directory's own.
    const Listing& Files();

    /// While `held`, the directory is listed once and taken to change by nobody else.
    void HoldListing(bool held);

    static const std::string& Chosen(const std::string& lowerName, const std::vector<std::string>& spellings);

  private:
    std::optional<std::string> FindOtherSpelling(const std::string& lowerName);

    std::string path_;
    Descriptor directory_;
    std::optional<Listing> listing_;
    bool held_ = false;
};

}  // namespace veraqua::files
