#pragma once

#include <sys/types.h>

#include <cerrno>
#include <map>
#include <string>
#include <utility>

#include "core/disk.h"

namespace veraqua::files {

/// A directory's files with their contents.
using Contents = std::map<std::string, std::string>;

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
    int Open(int directory, const char* name, int flags, mode_t mode) override {
        return IsRefused() ? Refuse() : QuickDisk::Open(directory, name, flags, mode);
    }
    ssize_t Write(int file, const char* bytes, std::size_t count, off_t position) override {
        const bool alreadyRefuses = left_ < 0;
        if (!IsRefused()) return QuickDisk::Write(file, bytes, count, position);
        if (!alreadyRefuses) QuickDisk::Write(file, bytes, count / 2, position);
        return Refuse();
    }
    int SetSize(int file, off_t size) override { return IsRefused() ? Refuse() : QuickDisk::SetSize(file, size); }
    int Reserve(int file, off_t position, off_t size) override {
        return IsRefused() ? Refuse() : QuickDisk::Reserve(file, position, size);
    }
    int Flush(int file) override { return IsRefused() ? Refuse() : QuickDisk::Flush(file); }
    int FlushFileSystem(int file) override { return IsRefused() ? Refuse() : QuickDisk::FlushFileSystem(file); }
    int Rename(int directory, const char* from, const char* to) override {
        return IsRefused() ? Refuse() : QuickDisk::Rename(directory, from, to);
    }
    int Unlink(int directory, const char* name) override {
        return IsRefused() ? Refuse() : QuickDisk::Unlink(directory, name);
    }
    int MakeDirectory(const char* path) override { return IsRefused() ? Refuse() : QuickDisk::MakeDirectory(path); }

    /// From now on the `n`th call is refused, counted from 1.
    void RefuseCall(int n) { left_ = n; }

  protected:
    explicit RefusingDisk(bool lasts) : lasts_(lasts) {}

    /// What a refused call does.
    virtual int Refuse() = 0;

  private:
    bool IsRefused() {
        if (left_ <= 0) return left_ < 0;
        --left_;
        if (left_ > 0) return false;
        if (lasts_) left_ = -1;
        return true;
    }

    bool lasts_;
    int left_ = 0;  ///< 0: none is refused, or it has been; -1: all are
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

/// What a power cut leaves of the changes that have not been flushed, each taken for the whole directory.
struct PowerCut {
    bool NamesSurvive;
    bool ContentsSurvive;
};
/// The first is none: the program alone dies.
inline constexpr PowerCut PowerCuts[] = {{true, true}, {true, false}, {false, true}, {false, false}};

/// Keeps account of what has been flushed: a file's contents by its own flush, the names by that of the directory, both
/// by that of the file system.
class WatchedDisk : public RefusingDisk {
  public:
    WatchedDisk(std::string directory, bool lasts);
    ~WatchedDisk() override;

    int Open(int directory, const char* name, int flags, mode_t mode) override;
    int Flush(int file) override;
    int FlushFileSystem(int file) override;

    /// The directory after a power cut at this moment.
    Contents Left(PowerCut cut) const;

  private:
    std::map<std::string, ino_t> CurrentNames() const;
    void Keep(int file);

    std::string directory_;
    std::map<std::string, ino_t> flushedNames_;
    std::map<ino_t, std::string> flushedContents_;
    std::map<ino_t, int> kept_;  ///< descriptors: an inode that one is open of isn't used for another file
};

/// Thrown where the program dies. No clean-up of the code under test catches it.
struct Died {};

/// At the refused call the program dies, and whatever it would do afterwards has no effect.
class DyingDisk : public WatchedDisk {
  public:
    explicit DyingDisk(std::string directory) : WatchedDisk(std::move(directory), true) {}

  protected:
    int Refuse() override { throw Died(); }
};

/// Refuses one call; the program goes on.
class StumblingDisk : public WatchedDisk {
  public:
    StumblingDisk(std::string directory, int n) : WatchedDisk(std::move(directory), false) { RefuseCall(n); }

  protected:
    int Refuse() override { return errno = EIO, -1; }
};

}  // namespace veraqua::files
