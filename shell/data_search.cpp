#include "shell/data_search.h"

#include <algorithm>
#include <cstdlib>

#include "core/base/text.h"

namespace veraqua {

namespace {

constexpr std::string_view ManualFile = "VERAGUIDE.doc";

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

}  // namespace

std::vector<std::string> DefaultDataDirectories() {
    const std::string home = Environment("XDG_DATA_HOME");
    const std::string ofAllPrograms = home.empty() ? Environment("HOME") + "/.local/share" : home;
    return {ofAllPrograms + "/veraqua", ofAllPrograms + "/Veraqua"};
}

bool IsDataDirectory(const std::string& path) {
    if (!files::DirectoryExists(path)) return false;
    files::Open(path, files::Access::Read);
    const bool hasMarker = files::Exists(DataDirectoryMarker);
    files::Close();
    return hasMarker;
}

bool OpenDataDirectory(const std::vector<std::string>& candidates, files::Access access) {
    const auto found = std::ranges::find_if(candidates, IsDataDirectory);
    if (found == candidates.end()) return false;
    files::Open(*found, access);
    return true;
}

std::optional<std::string> ManualPath() {
    const std::vector<std::string> names = files::Names();
    const auto found =
        std::ranges::find_if(names, [](const std::string& name) { return LowerCase(name) == LowerCase(ManualFile); });
    if (found == names.end()) return std::nullopt;
    return files::DirectoryPath() + *found;
}

std::string WithSlash(std::string url) {
    if (!url.ends_with('/')) url += '/';
    return url;
}

}  // namespace veraqua
