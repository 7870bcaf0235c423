#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/files/files.h"

/// Where the data directory is, and what the user finds or has put there.
namespace veraqua {

/// The file by which a data directory is known.
constexpr std::string_view DataDirectoryMarker = "weathdef.dat";

/// Where the data directory is looked for, in this order, each without a final "/": $XDG_DATA_HOME/veraqua (without
/// that variable ~/.local/share/veraqua), then the same in capitals. The first is where a new one is made.
std::vector<std::string> DefaultDataDirectories();

/// Whether `path` is a data directory. Looks without making anything, a lock neither; no data directory may be open.
bool IsDataDirectory(const std::string& path);

/// Opens the first of `candidates` that is a data directory. False if none is. RunTimeFailure as of `files::Open`.
bool OpenDataDirectory(const std::vector<std::string>& candidates, files::Access access);

/// `url` with a final "/".
std::string WithSlash(std::string url);

/// The path of the user's manual in the open data directory, in the spelling that it has on disk.
std::optional<std::string> ManualPath();

}  // namespace veraqua
