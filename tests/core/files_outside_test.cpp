#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <string>

#include <gmock/gmock.h>

#include "core/failure.h"
#include "tests/core/files_fixture.h"
#include "tests/support/failing_disks.h"

namespace veraqua::files {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::ThrowsMessage;

TEST_F(FilesTest, AReportReplacesTheOldOneWhollyOrNotAtAll) {
    const std::string report = Path() + "report.txt";
    for (int n = 1;; ++n) {
        SCOPED_TRACE(n);
        const Contents before{{"report.txt", "of yesterday"}, {".veraqua-1-0", "left by a dead program"}};
        Place(before);
        FailingDisk disk(n, ENOSPC, false);
        InstallDisk(&disk);
        std::string text;
        try {
            WriteOutside(report, "of today");
        } catch (const RunTimeFailure& failure) {
            text = failure.what();
        }
        UseQuickDisk();
        Contents expected = before;
        if (text.empty()) expected["report.txt"] = "of today";
        EXPECT_EQ(OnDisk(), expected);
        if (text.empty()) {
            EXPECT_EQ(n, 5);  // opened, written, flushed, renamed
            break;
        }
        EXPECT_THAT(text, HasSubstr("can't be written: No space left on device"));
    }
}

TEST_F(FilesTest, AReportGoesWhereItsNamePoints) {
    Place({{"report.txt", "old"}});
    fs::permissions(Path() + "report.txt", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("report.txt", Path() + "latest.txt");
    WriteOutside(Path() + "latest.txt", "new");
    EXPECT_TRUE(fs::is_symlink(Path() + "latest.txt"));
    EXPECT_EQ(OnDisk().at("report.txt"), "new");
    EXPECT_EQ(fs::status(Path() + "report.txt").permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(OnDisk().size(), 2);

    fs::create_directory(Path() + "reports");
    ASSERT_EQ(mkfifo((Path() + "pipe").c_str(), 0600), 0);
    for (const std::string name : {"reports", "pipe"})
        EXPECT_THAT([&] { WriteOutside(Path() + name, "x"); },
                    ThrowsMessage<RunTimeFailure>(HasSubstr(name + " is not a file")));
    EXPECT_THAT([&] { WriteOutside(Path() + "missing/report.txt", "x"); },
                ThrowsMessage<RunTimeFailure>(HasSubstr("report.txt can't be written: No such file or directory")));
}

TEST_F(FilesTest, AFileThatTheUserNamesIsReadUpToALimit) {
    Place({{"network.txt", "12345"}});
    EXPECT_EQ(ReadOutside(Path() + "network.txt", 5), "12345");
    EXPECT_THAT([&] { ReadOutside(Path() + "network.txt", 4); },
                ThrowsMessage<RunTimeFailure>(HasSubstr("network.txt: 5 bytes are too many")));
    EXPECT_THAT([&] { ReadOutside(Path() + "missing.txt", 5); },
                ThrowsMessage<RunTimeFailure>(HasSubstr("missing.txt can't be read: No such file or directory")));
    ASSERT_EQ(mkfifo((Path() + "pipe").c_str(), 0600), 0);
    EXPECT_THROW(ReadOutside(Path() + "pipe", 5), RunTimeFailure);  // and doesn't wait for a writer
    Open(Path(), Access::Write);
    EXPECT_THROW(ReadOutside(Path() + "veraqua.lock", 5), RunTimeFailure);  // which would give the lock back
}

}  // namespace veraqua::files
