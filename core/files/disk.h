#pragma once

#include <sys/types.h>

#include <cstddef>
#include <utility>

/// The seam between the program and the disk: every call that changes a disk goes through `Disk`, so that a test can
/// let the n-th one fail or cut the program off there.
namespace veraqua::files {

/// The system's calls that write. Each returns what the call it is named for returns, with -1 and errno for a failure.
/// `directory` is a descriptor that names are relative to, or AT_FDCWD.
class Disk {
  public:
    Disk() = default;
    virtual ~Disk() = default;
    Disk(const Disk&) = delete;
    Disk& operator=(const Disk&) = delete;

    virtual int Open(int directory, const char* name, int flags, mode_t mode);
    virtual ssize_t Write(int file, const char* bytes, std::size_t count, off_t position);
    virtual int SetSize(int file, off_t size);
    virtual int Reserve(int file, off_t position, off_t size);
    virtual int Flush(int file);
    virtual int FlushFileSystem(int file);
    virtual int Rename(int directory, const char* from, const char* to);
    virtual int Unlink(int directory, const char* name);
    virtual int MakeDirectory(const char* path);
};

Disk& CurrentDisk();

/// Lets `disk` stand in for the system's; with null the system's is back.
void InstallDisk(Disk* disk);

/// An open file or directory, closed with the end of its life.
class Descriptor {
  public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor();

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }

  private:
    int number_ = -1;
};

}  // namespace veraqua::files
