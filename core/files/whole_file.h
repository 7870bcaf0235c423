#pragma once

#include <sys/stat.h>

#include <cerrno>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/files/disk.h"
#include "core/files/files.h"

/// Reading and writing of whole files, with failures that a user can read. A directory, a pipe or a device in the place
/// of a file is a failure too, and never waited for.
namespace veraqua::files {

/// Throws the RunTimeFailure "`name` `what`: " and the system's words for `error`.
[[noreturn]] void Fail(std::string_view name, std::string_view what, int error = errno);

/// An open file, as it was when it was opened.
struct OpenedFile {
    std::string Name;
    Descriptor File;
    struct stat Status {};
};

/// `directory` is a descriptor, or AT_FDCWD. Nothing if there is no such file; RunTimeFailure if it can't be opened.
std::optional<OpenedFile> OpenToRead(int directory, const std::string& name);

/// `flags` as the system's `open` takes them. Nothing if there is no such file and they have no O_CREAT.
std::optional<OpenedFile> OpenToWrite(int directory, const std::string& name, int flags, mode_t mode = 0666);

/// All of the file. RunTimeFailure if it can't be read or is larger than `limit` bytes.
Bytes ReadWhole(const OpenedFile& file, std::size_t limit);

/// The first `count` bytes of the file, or what it has of them.
Bytes ReadFirst(const OpenedFile& file, std::size_t count);

/// Puts `bytes` at the start of the file. RunTimeFailure if the disk refuses.
void WriteFirst(const OpenedFile& file, std::string_view bytes);

/// RunTimeFailure if the disk refuses.
void SetSize(const OpenedFile& file, std::size_t size);
void Flush(const OpenedFile& file);

/// True if the file has been written to since it was opened.
bool HasChanged(const OpenedFile& file);

/// True if both are the same file and it has not been written to between the two looks.
bool IsSame(const struct stat& one, const struct stat& other);

}  // namespace veraqua::files
