#pragma once

#include <map>
#include <string>

#include <gtest/gtest.h>

#include "core/disk.h"
#include "core/files.h"

namespace veraqua::files {

/// A directory's files with their contents.
using Contents = std::map<std::string, std::string>;

/// The system's disk without the waiting: no test here pulls a plug.
class QuickDisk : public Disk {
  public:
    int Flush(int) override { return 0; }
    int FlushFileSystem(int) override { return 0; }
};

/// A directory of the test's own. What stands in it is placed and looked at past the code under test.
class FilesTest : public testing::Test {
  protected:
    FilesTest();
    ~FilesTest() override;

    /// Makes the directory hold these files and no others.
    void Place(const Contents& contents) const;

    /// All files, but for the lock, which is always empty and stays.
    Contents OnDisk() const;

    /// What the program sees through Names and Read.
    static Contents Seen();

    /// Text of the failure that Open ends in; empty if it succeeds.
    std::string FailureOfOpen(Access access) const;

    /// Instead of a disk that a test has installed.
    void UseQuickDisk() { InstallDisk(&quickDisk_); }

    const std::string& Path() const { return path_; }

  private:
    std::string path_;
    QuickDisk quickDisk_;
};

}  // namespace veraqua::files
