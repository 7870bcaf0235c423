#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "core/failure.h"
#include "core/files.h"
#include "tests/support/data_directory.h"
#include "tests/support/failing_disks.h"

namespace veraqua::files {

/// A directory of the test's own, not open. What stands in it is placed and looked at past the code under test.
class FilesTest : public testing::Test {
  protected:
    FilesTest() {
        Close();
        UseQuickDisk();
    }
    ~FilesTest() override { InstallDisk(nullptr); }

    /// Makes the directory hold these files and no others.
    void Place(const Contents& contents) const {
        for (const auto& entry : std::filesystem::directory_iterator(Path()))
            if (entry.path().filename() != "veraqua.lock") std::filesystem::remove_all(entry);
        for (const auto& [name, bytes] : contents) directory_.Put(name, bytes);
    }

    /// All files, but for the lock, which is always empty and stays: to open and close it would give the lock back.
    Contents OnDisk() const {
        Contents contents;
        for (const auto& entry : std::filesystem::directory_iterator(Path())) {
            const std::string name = entry.path().filename();
            if (name != "veraqua.lock") contents[name] = entry.is_regular_file() ? directory_.Raw(name) : "";
        }
        return contents;
    }

    /// What the program sees through Names and Read.
    static Contents Seen() {
        Contents contents;
        for (const std::string& name : Names()) contents[name] = *files::Read(name);
        return contents;
    }

    /// Text of the failure that Open ends in; empty if it succeeds.
    std::string FailureOfOpen(Access access) const {
        try {
            Open(Path(), access);
        } catch (const RunTimeFailure& failure) {
            return failure.what();
        }
        Close();
        return "";
    }

    /// Instead of a disk that a test has installed.
    void UseQuickDisk() { InstallDisk(&quickDisk_); }

    const std::string& Path() const { return directory_.Path(); }

  private:
    TestDirectory directory_;
    QuickDisk quickDisk_;
};

}  // namespace veraqua::files
