#pragma once

#include <sys/types.h>

#include <string>

#include "core/files/disk.h"

namespace veraqua::files {

/// The lock that lets one program at a time write to a data directory: a POSIX record lock on `veraqua.lock`, an empty
/// file that stays. The system gives it back when the program ends in any way, and names the process that holds it.
///
/// Such a lock is also lost when the process closes any other descriptor of the file, so nothing else may open it.
class DirectoryLock {
  public:
    enum class Outcome {
        Taken,
        HeldByAnother,  ///< `Holder` names the process
        Refused,        ///< `Error` says why: the file can't be made or locked
    };

    Outcome Take(int directory);
    void Release() { file_ = Descriptor(); }

    bool IsHeld() const { return file_.IsOpen(); }
    pid_t Holder() const { return holder_; }  ///< 0 where the system can't tell
    int Error() const { return error_; }

  private:
    Outcome Lock(int file);

    Descriptor file_;
    pid_t holder_ = 0;
    int error_ = 0;
};

}  // namespace veraqua::files
