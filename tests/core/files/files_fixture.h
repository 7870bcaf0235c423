#pragma once

#include <filesystem>
#include <string>

#include "core/base/failure.h"
#include "core/files/files.h"
#include "tests/support/data_directory.h"
#include "tests/support/failing_disks.h"

namespace veraqua::files {

/// A directory of the test's own, not open. What stands in it is placed and looked at past the code under test, but for
/// the lock, which is always empty and stays: to open and close it would give the lock back.
class FilesTest : public testing::Test {
  protected:
    FilesTest() {
        Close();
        UseQuickDisk();
    }
    ~FilesTest() override { InstallDisk(nullptr); }

    /// Makes the directory hold these files and no others.
    void Place(const Contents& contents) const {
        for (const auto& [name, bytes] : OnDisk()) std::filesystem::remove(Path() + name);
        for (const auto& [name, bytes] : contents) directory_.Put(name, bytes);
    }

    Contents OnDisk() const { return ContentsOf(Path()); }

    /// What the program sees through Names and Read.
    static Contents Seen() {
        Contents contents;
        for (const std::string& name : Names()) contents[name] = *files::Read(name);
        return contents;
    }

    /// Text of the failure that `deed` ends in; empty if it succeeds.
    template <class Deed>
    static std::string FailureOf(Deed deed) {
        try {
            deed();
        } catch (const RunTimeFailure& failure) {
            return failure.what();
        }
        return "";
    }

    /// Likewise of Open; what it has opened is closed again.
    std::string FailureOfOpen(Access access) const {
        std::string text = FailureOf([&] { Open(Path(), access); });
        Close();
        return text;
    }

    /// Instead of a disk that a test has installed.
    void UseQuickDisk() { InstallDisk(&quickDisk_); }

    const std::string& Path() const { return directory_.Path(); }

  private:
    TestDirectory directory_;
    QuickDisk quickDisk_;
};

}  // namespace veraqua::files
