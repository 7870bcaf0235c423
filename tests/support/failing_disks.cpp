#include "tests/support/failing_disks.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <utility>

namespace veraqua::files {

namespace {

struct stat StatusOf(int file) {
    struct stat status {};
    fstat(file, &status);
    return status;
}

std::string ContentsOf(int file) {
    std::string bytes(static_cast<std::size_t>(StatusOf(file).st_size), '\0');
    if (pread(file, bytes.data(), bytes.size(), 0) < 0) bytes = "unreadable";
    return bytes;
}

}  // namespace

WatchedDisk::WatchedDisk(std::string directory, bool lasts)
    : RefusingDisk(lasts), directory_(std::move(directory)), flushedNames_(CurrentNames()) {
    for (const auto& [name, inode] : flushedNames_) {
        Keep(open((directory_ + name).c_str(), O_RDONLY | O_CLOEXEC));
        flushedContents_[inode] = ContentsOf(kept_.at(inode));
    }
}

WatchedDisk::~WatchedDisk() {
    for (const auto& [inode, file] : kept_) close(file);
}

std::map<std::string, ino_t> WatchedDisk::CurrentNames() const {
    std::map<std::string, ino_t> names;
    for (const auto& entry : std::filesystem::directory_iterator(directory_)) {
        struct stat status {};
        stat(entry.path().c_str(), &status);
        names[entry.path().filename()] = status.st_ino;
    }
    names.erase("veraqua.lock");
    return names;
}

void WatchedDisk::Keep(int file) {
    if (!kept_.try_emplace(StatusOf(file).st_ino, file).second) close(file);
}

int WatchedDisk::Open(int directory, const char* name, int flags, mode_t mode) {
    const int file = RefusingDisk::Open(directory, name, flags, mode);
    // To close a second descriptor of the lock would give the lock back.
    if (file >= 0 && std::string(name) != "veraqua.lock") Keep(openat(directory, name, O_RDONLY | O_CLOEXEC));
    return file;
}

int WatchedDisk::Flush(int file) {
    const int result = RefusingDisk::Flush(file);
    const struct stat status = StatusOf(file);
    if (S_ISDIR(status.st_mode))
        flushedNames_ = CurrentNames();
    else
        flushedContents_[status.st_ino] = ContentsOf(kept_.at(status.st_ino));
    return result;
}

int WatchedDisk::FlushFileSystem(int file) {
    const int result = RefusingDisk::FlushFileSystem(file);
    flushedNames_ = CurrentNames();
    for (const auto& [inode, kept] : kept_) flushedContents_[inode] = ContentsOf(kept);
    return result;
}

Contents WatchedDisk::Left(PowerCut cut) const {
    Contents left;
    for (const auto& [name, inode] : cut.NamesSurvive ? CurrentNames() : flushedNames_) {
        const auto flushed = flushedContents_.find(inode);
        if (cut.ContentsSurvive)
            left[name] = ContentsOf(kept_.at(inode));
        else
            left[name] = flushed != flushedContents_.end() ? flushed->second : "";
    }
    return left;
}

}  // namespace veraqua::files
