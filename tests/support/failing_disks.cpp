#include "tests/support/failing_disks.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace veraqua::files {

Contents ContentsOf(const std::string& directory) {
    Contents contents;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        const std::string name = entry.path().filename();
        if (name == "veraqua.lock") continue;
        std::ifstream file(entry.path(), std::ios::binary);
        contents[name] = {std::istreambuf_iterator<char>(file), {}};
    }
    return contents;
}

int DyingDisk::Flush(int file) {
    const int result = RefusingDisk::Flush(file);
    const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file));
    const Contents now = ContentsOf(directory_);
    if (std::filesystem::is_directory(path))
        names_ = now;
    else
        flushed_[path.filename()] = now.at(path.filename());
    return result;
}

int DyingDisk::FlushFileSystem(int file) {
    const int result = RefusingDisk::FlushFileSystem(file);
    names_ = flushed_ = ContentsOf(directory_);
    return result;
}

std::vector<Contents> DyingDisk::AfterPowerCuts() const {
    const Contents now = ContentsOf(directory_);
    std::vector<Contents> found{now, now, names_, names_};
    for (std::size_t cut = 1; cut < found.size(); ++cut)
        for (auto& [name, bytes] : found[cut]) {
            const Contents& source = cut == 2 && now.contains(name) ? now : flushed_;
            const auto known = source.find(name);
            bytes = known != source.end() ? known->second : "";
        }
    return found;
}

}  // namespace veraqua::files
