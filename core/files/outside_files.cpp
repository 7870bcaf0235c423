#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <utility>

#include <fmt/format.h>

#include "core/base/failure.h"
#include "core/files/data_directory.h"
#include "core/files/files.h"
#include "core/files/whole_file.h"

/// Files that the user names, anywhere.
namespace veraqua::files {

namespace {

constexpr mode_t OrdinaryMode = 0666;

/// The file that a rename to `path` shall replace: of a symbolic link what it points to, so that the link stays.
std::string ReplacedPath(const std::string& path) {
    struct Free {
        void operator()(char* text) const { std::free(text); }
    };
    const std::unique_ptr<char, Free> whole(realpath(path.c_str(), nullptr));
    return whole ? std::string(whole.get()) : path;
}

/// Permissions of the old file, or those of any new one. RunTimeFailure if it may not be replaced.
mode_t ModeFor(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return OrdinaryMode;
    if (!S_ISREG(status.st_mode)) throw RunTimeFailure(fmt::format("{} is not a file.", path));
    if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) Fail(path, "can't be written");
    return status.st_mode & 0777;
}

/// A new file in the directory of `path`, under a name that no other program uses and none that died has left.
OpenedFile MakeScratchFile(const std::string& path, mode_t mode) {
    const std::string directory = path.substr(0, path.rfind('/') + 1);
    for (int i = 0;; ++i) {
        const std::string name = fmt::format("{}{}{}-{}", directory, ScratchPrefix, getpid(), i);
        const int number = CurrentDisk().Open(AT_FDCWD, name.c_str(), O_WRONLY | O_CREAT | O_EXCL, mode);
        if (number >= 0) return {name, Descriptor(number), {}};
        if (errno != EEXIST) Fail(path, "can't be written");
    }
}

}  // namespace

void WriteOutside(const std::string& path, std::string_view contents) try {
    const std::string replaced = ReplacedPath(path);
    const OpenedFile scratch = MakeScratchFile(replaced, ModeFor(path));
    try {
        WriteFirst(scratch, contents);
        Flush(scratch);
        if (CurrentDisk().Rename(AT_FDCWD, scratch.Name.c_str(), replaced.c_str()) != 0) Fail(path, "can't be written");
    } catch (const RunTimeFailure&) {  // the half-written file is to go
        CurrentDisk().Unlink(AT_FDCWD, scratch.Name.c_str());
        throw;
    }
} catch (const RunTimeFailure& failure) {
    throw Refusal(failure.what());
}

Bytes ReadOutside(const std::string& path, std::size_t limit) try {
    // To open and close the lock file would give the lock back.
    if (IsOwnName(path.substr(path.rfind('/') + 1)))
        throw RunTimeFailure(fmt::format("{} is no file to be read.", path));
    const auto file = OpenToRead(AT_FDCWD, path);
    if (!file) Fail(path, "can't be read", ENOENT);
    return ReadWhole(*file, limit);
} catch (const RunTimeFailure& failure) {
    throw Refusal(failure.what());
}

bool FileExists(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

bool DirectoryExists(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::vector<std::string> FilesIn(const std::string& path) {
    std::error_code error;
    std::vector<std::string> names;
    for (std::filesystem::directory_iterator entry(path, error), end; !error && entry != end; entry.increment(error)) {
        std::error_code unknown;  // of a link that leads nowhere
        if (entry->is_regular_file(unknown)) names.push_back(entry->path().filename().string());
    }
    if (error) throw Refusal(fmt::format("{} can't be read: {}.", path, error.message()));
    std::sort(names.begin(), names.end());
    return names;
}

bool SameDirectory(const std::string& a, const std::string& b) {
    struct stat first {};
    struct stat second {};
    return stat(a.empty() ? "." : a.c_str(), &first) == 0 && stat(b.empty() ? "." : b.c_str(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

void MakeDirectory(const std::string& path) try {
    for (std::size_t end = path.find('/', 1);; end = path.find('/', end + 1)) {
        const std::string part = path.substr(0, end);
        if (!DirectoryExists(part) && CurrentDisk().MakeDirectory(part.c_str()) != 0 && !DirectoryExists(part))
            Fail(part, "can't be made");
        if (end == std::string::npos) return;
    }
} catch (const RunTimeFailure& failure) {
    throw Refusal(failure.what());
}

}  // namespace veraqua::files
