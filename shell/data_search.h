#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Where the data directory is, and what its network.txt says.
namespace veraqua {

/// The file by which a data directory is known.
constexpr std::string_view DataDirectoryMarker = "weathdef.dat";

/// Where the data directory is looked for, in this order, each without a final "/": $XDG_DATA_HOME/veraqua (without
/// that variable ~/.local/share/veraqua), then the same in capitals. The first is where a new one is made.
std::vector<std::string> DefaultDataDirectories();

/// Whether `path` is a data directory. Looks without making anything, a lock neither; no data directory may be open.
bool IsDataDirectory(const std::string& path);

/// `url` with a final "/".
std::string WithSlash(std::string url);

/// Takes `BaseUrl` from the first line of network.txt in the open data directory, if it has one.
void TakeNetworkOfUser();

}  // namespace veraqua
