#include "core/files/directory_lock.h"

#include <fcntl.h>
#include <unistd.h>

#include <cassert>
#include <cerrno>

#include "core/files/data_directory.h"

namespace veraqua::files {

namespace {

struct flock WholeFile() {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return lock;
}

}  // namespace

DirectoryLock::Outcome DirectoryLock::Take(int directory) {
    assert(!IsHeld());
    const std::string name(LockName);
    Descriptor file(CurrentDisk().Open(directory, name.c_str(), O_RDWR | O_CREAT | O_NONBLOCK, 0666));
    if (!file.IsOpen() || faccessat(directory, ".", W_OK, AT_EACCESS) != 0) {
        error_ = errno;
        return Outcome::Refused;
    }
    const Outcome outcome = Lock(file.Number());
    if (outcome == Outcome::Taken) file_ = std::move(file);
    return outcome;
}

DirectoryLock::Outcome DirectoryLock::Lock(int file) {
    for (;;) {
        struct flock wanted = WholeFile();
        if (fcntl(file, F_SETLK, &wanted) == 0) return Outcome::Taken;
        error_ = errno;
        if (error_ != EAGAIN && error_ != EACCES) return Outcome::Refused;
        struct flock found = WholeFile();
        if (fcntl(file, F_GETLK, &found) != 0) return Outcome::Refused;
        if (found.l_type != F_UNLCK) {
            holder_ = found.l_pid > 0 ? found.l_pid : 0;
            return Outcome::HeldByAnother;
        }
        // Its holder has ended between the two calls: once more.
    }
}

}  // namespace veraqua::files
