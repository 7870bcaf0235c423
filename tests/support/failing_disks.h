#pragma once

#include <sys/types.h>

#include <cerrno>
#include <map>
#include <string>
#include <vector>

#include "core/files/disk.h"

namespace veraqua::files {

/// A directory's files with their contents.
using Contents = std::map<std::string, std::string>;

/// The files in `directory`, a path with a final "/", without that of the lock: to open and close it would give the
/// lock back.
Contents ContentsOf(const std::string& directory);

/// The system's disk without the waiting: no test here pulls a plug. It counts how often it was waited for.
class QuickDisk : public Disk {
  public:
    int Flush(int) override { return ++Flushes, 0; }
    int FlushFileSystem(int) override { return ++Flushes, 0; }

    int Flushes = 0;
};

/// A disk that refuses one call, or that one and all after it. A write is done by half before it is refused.
class RefusingDisk : public QuickDisk {
  public:
    int Open(int at, const char* name, int flags, mode_t mode) override {
        return IsRefused() ? Refuse() : QuickDisk::Open(at, name, flags, mode);
    }
    ssize_t Write(int file, const char* bytes, std::size_t count, off_t position) override {
        if (!IsRefused()) return QuickDisk::Write(file, bytes, count, position);
        return QuickDisk::Write(file, bytes, count / 2, position), Refuse();
    }
    int SetSize(int file, off_t size) override { return IsRefused() ? Refuse() : QuickDisk::SetSize(file, size); }
    int Reserve(int file, off_t end, off_t size) override {
        return IsRefused() ? Refuse() : QuickDisk::Reserve(file, end, size);
    }
    int Flush(int file) override { return IsRefused() ? Refuse() : QuickDisk::Flush(file); }
    int FlushFileSystem(int file) override { return IsRefused() ? Refuse() : QuickDisk::FlushFileSystem(file); }
    int Rename(int at, const char* from, const char* to) override {
        return IsRefused() ? Refuse() : QuickDisk::Rename(at, from, to);
    }
    int Unlink(int at, const char* name) override { return IsRefused() ? Refuse() : QuickDisk::Unlink(at, name); }

    /// From now on the `n`th call is refused, counted from 1; with 0 none is.
    void RefuseCall(int n) { calls_ = 0, refused_ = n; }

  protected:
    explicit RefusingDisk(bool lasts) : lasts_(lasts) {}

    /// What a refused call does.
    virtual int Refuse() = 0;

  private:
    bool IsRefused() { return ++calls_ == refused_ || (lasts_ && refused_ > 0 && calls_ > refused_); }

    bool lasts_;
    int calls_ = 0;
    int refused_ = 0;
};

/// Refused calls fail with `error`.
class FailingDisk : public RefusingDisk {
  public:
    FailingDisk(int n, int error, bool lasts) : RefusingDisk(lasts), error_(error) { RefuseCall(n); }

  protected:
    int Refuse() override { return errno = error_, -1; }

  private:
    int error_;
};

/// Thrown where the program dies. No clean-up of the code under test catches it.
struct Died {};

/// At the refused call the program dies, and whatever it would do afterwards has no effect. Keeps account of what has
/// been flushed: a file's contents by its own flush, the names by that of the directory, both by that of the file
/// system.
class DyingDisk : public RefusingDisk {
  public:
    /// In `directory`, a path with a final "/", which is flushed.
    explicit DyingDisk(const std::string& directory)
        : RefusingDisk(true), directory_(directory), names_(ContentsOf(directory)), flushed_(names_) {}

    int Flush(int file) override;
    int FlushFileSystem(int file) override;

    /// The directory when the program alone dies at this moment, and after the power cuts in which names, contents or
    /// both are lost that haven't been flushed.
    std::vector<Contents> AfterPowerCuts() const;

  protected:
    int Refuse() override { throw Died(); }

  private:
    std::string directory_;
    Contents names_;    ///< as of the last flush of the directory; the contents don't count
    Contents flushed_;  ///< contents by their last flush
};

}  // namespace veraqua::files
