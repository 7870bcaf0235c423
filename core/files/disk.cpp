#include "core/files/disk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace veraqua::files {

namespace {

Disk systemDisk;
Disk* currentDisk = &systemDisk;

}  // namespace

int Disk::Open(int directory, const char* name, int flags, mode_t mode) {
    return openat(directory, name, flags | O_CLOEXEC | O_NOCTTY, mode);
}

ssize_t Disk::Write(int file, const char* bytes, std::size_t count, off_t position) {
    return pwrite(file, bytes, count, position);
}

int Disk::SetSize(int file, off_t size) { return ftruncate(file, size); }

int Disk::Reserve(int file, off_t position, off_t size) {
    const int error = posix_fallocate(file, position, size);
    if (error != 0) errno = error;
    return error == 0 ? 0 : -1;
}

int Disk::Flush(int file) { return fsync(file); }

int Disk::FlushFileSystem(int file) { return syncfs(file); }

int Disk::Rename(int directory, const char* from, const char* to) { return renameat(directory, from, directory, to); }

int Disk::Unlink(int directory, const char* name) { return unlinkat(directory, name, 0); }

int Disk::MakeDirectory(const char* path) { return mkdir(path, 0777); }

Disk& CurrentDisk() { return *currentDisk; }

void InstallDisk(Disk* disk) { currentDisk = disk != nullptr ? disk : &systemDisk; }

Descriptor::~Descriptor() {
    if (IsOpen()) close(number_);
}

}  // namespace veraqua::files
