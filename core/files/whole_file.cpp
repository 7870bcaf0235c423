#include "core/files/whole_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <system_error>

#include <fmt/format.h>

#include "core/base/failure.h"

namespace veraqua::files {

namespace {

/// `number` is what the system's `open` gave. It was given O_NONBLOCK, without which a pipe in the place of a file
/// would hold the program until somebody uses its other end.
std::optional<OpenedFile> Opened(int number, const std::string& name, std::string_view failure) {
    if (number < 0) {
        if (errno == ENOENT) return std::nullopt;
        Fail(name, failure);
    }
    OpenedFile opened{name, Descriptor(number), {}};
    if (fstat(number, &opened.Status) != 0) Fail(name, failure);
    if (!S_ISREG(opened.Status.st_mode)) throw RunTimeFailure(fmt::format("{} is not a file.", name));
    return opened;
}

constexpr std::string_view CannotBeRead = "can't be read";
constexpr std::string_view CannotBeWritten = "can't be written";

}  // namespace

void Fail(std::string_view name, std::string_view what, int error) {
    // A name that is empty shows as such.
    throw RunTimeFailure(
        fmt::format("{} {}: {}.", name.empty() ? "\"\"" : name, what, std::generic_category().message(error)));
}

std::optional<OpenedFile> OpenToRead(int directory, const std::string& name) {
    return Opened(openat(directory, name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY), name, CannotBeRead);
}

std::optional<OpenedFile> OpenToWrite(int directory, const std::string& name, int flags, mode_t mode) {
    auto opened = Opened(CurrentDisk().Open(directory, name.c_str(), flags | O_NONBLOCK, mode), name, CannotBeWritten);
    if (!opened && (flags & O_CREAT) != 0) Fail(name, CannotBeWritten, ENOENT);
    return opened;
}

Bytes ReadWhole(const OpenedFile& file, std::size_t limit) {
    const auto size = static_cast<std::size_t>(file.Status.st_size);
    if (size > limit) FailIn(file.Name, fmt::format("{} bytes are too many, at most {} can be read.", size, limit));
    return ReadFirst(file, size);
}

Bytes ReadFirst(const OpenedFile& file, std::size_t count) {
    Bytes bytes(count, '\0');
    std::size_t filled = 0;
    while (filled < count) {
        const ssize_t got =
            pread(file.File.Number(), bytes.data() + filled, count - filled, static_cast<off_t>(filled));
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) Fail(file.Name, CannotBeRead);
        if (got == 0) break;
        filled += static_cast<std::size_t>(got);
    }
    bytes.resize(filled);
    return bytes;
}

void WriteFirst(const OpenedFile& file, std::string_view bytes) {
    off_t position = 0;
    while (!bytes.empty()) {
        const ssize_t count = CurrentDisk().Write(file.File.Number(), bytes.data(), bytes.size(), position);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) Fail(file.Name, CannotBeWritten, count == 0 ? ENOSPC : errno);
        bytes.remove_prefix(static_cast<std::size_t>(count));
        position += count;
    }
}

void SetSize(const OpenedFile& file, std::size_t size) {
    if (CurrentDisk().SetSize(file.File.Number(), static_cast<off_t>(size)) != 0) Fail(file.Name, CannotBeWritten);
}

void Flush(const OpenedFile& file) {
    if (CurrentDisk().Flush(file.File.Number()) != 0) Fail(file.Name, CannotBeWritten);
}

bool HasChanged(const OpenedFile& file) {
    struct stat now {};
    if (fstat(file.File.Number(), &now) != 0) Fail(file.Name, CannotBeRead);
    return !IsSame(now, file.Status);
}

bool IsSame(const struct stat& one, const struct stat& other) {
    return one.st_ino == other.st_ino && one.st_size == other.st_size && one.st_mtim.tv_sec == other.st_mtim.tv_sec &&
           one.st_mtim.tv_nsec == other.st_mtim.tv_nsec;
}

}  // namespace veraqua::files
