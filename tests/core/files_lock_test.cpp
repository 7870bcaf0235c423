#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <functional>
#include <string>

#include <gmock/gmock.h>

#include "core/failure.h"
#include "tests/core/files_fixture.h"

namespace veraqua::files {

using testing::HasSubstr;

namespace {

/// Another program: a process of its own that does `deed`, says that it is ready unless the deed has, and waits,
/// holding what it holds, until it is killed.
class OtherProgram {
  public:
    explicit OtherProgram(const std::function<void()>& deed) {
        int ends[2] = {};
        if (pipe(ends) != 0) std::abort();
        process_ = fork();
        if (process_ == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);  // it outlives no test that breaks off
            ready_ = ends[1];
            deed();
            SayReadyAndWait();
        }
        close(ends[1]);
        char ready = 0;
        if (read(ends[0], &ready, 1) != 1) ADD_FAILURE() << "the other program ended too early";
        close(ends[0]);
    }
    ~OtherProgram() { Kill(); }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    static void SayReady() {
        if (write(ready_, "r", 1) != 1) _exit(1);
    }

    [[noreturn]] static void SayReadyAndWait() {
        SayReady();
        for (;;) pause();
    }

    void Kill() {
        if (process_ == 0) return;
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
        process_ = 0;
    }

    pid_t Process() const { return process_; }

  private:
    inline static int ready_ = -1;
    pid_t process_ = 0;
};

/// Stops for good at the flush of the files: the set is decided, and its files are written.
class StopAtTheLastFlush : public QuickDisk {
  public:
    int FlushFileSystem(int) override { OtherProgram::SayReadyAndWait(); }
};

}  // namespace

class Locks : public FilesTest {
  protected:
    Locks() { Place(before_); }

    /// Changes stat.dat and deletes field1.dat on `disk`.
    std::function<void()> CommitOn(Disk& disk) {
        return [this, &disk] {
            Open(Path(), Access::Write);
            InstallDisk(&disk);
            ChangeSet set;
            Write("stat.dat", "new rows");
            Remove("field1.dat");
            set.Commit();
        };
    }

    const Contents before_{{"stat.dat", "rows"}, {"field1.dat", "one"}};
    const Contents after_{{"stat.dat", "new rows"}};
};

TEST_F(Locks, KeepASecondProgramOutUntilTheFirstOneDies) {
    OtherProgram other([this] { Open(Path(), Access::Write); });
    EXPECT_EQ(FailureOfOpen(Access::Write), "Another Veraqua (process " + std::to_string(other.Process()) +
                                                ") is working in " + Path() + ". Close it first.");
    Open(Path(), Access::Read);
    EXPECT_EQ(Seen(), before_);
    EXPECT_FALSE(MayWrite());
    other.Kill();
    EXPECT_TRUE(MayWrite());
    Write("stat.dat", "new rows");
    Close();
    EXPECT_EQ(FailureOfOpen(Access::Write), "");
}

TEST_F(Locks, OfAProgramThatMayWriteKeepOthersOutAndReadersTakeNone) {
    const OtherProgram reader([this] {
        Open(Path(), Access::Read);
        Read("stat.dat");
    });
    EXPECT_EQ(FailureOfOpen(Access::Write), "");
    const OtherProgram first([this] {
        Open(Path(), Access::Read);
        if (!MayWrite()) _exit(1);
    });
    EXPECT_THAT(FailureOfOpen(Access::Write), HasSubstr(std::to_string(first.Process())));
}

TEST_F(Locks, BesideAHolderAWholeJournalIsReadAndLeftAlone) {
    StopAtTheLastFlush disk;
    OtherProgram writer(CommitOn(disk));
    Place(
        {{"stat.dat", "new"}, {"field1.dat", "one"}, {"veraqua.journal", OnDisk().at("veraqua.journal")}});  // half-way
    const Contents halfWay = OnDisk();
    Open(Path(), Access::Read);
    EXPECT_EQ(Seen(), after_);
    EXPECT_FALSE(Exists("field1.dat"));
    EXPECT_FALSE(MayWrite());
    Close();
    EXPECT_EQ(OnDisk(), halfWay);

    writer.Kill();
    Open(Path(), Access::Read);
    EXPECT_EQ(OnDisk(), after_);      // with the lock free, a reader tidies up
    const OtherProgram next([this] {  // and holds nothing afterwards
        Close();
        Open(Path(), Access::Write);
    });
    EXPECT_EQ(Seen(), after_);
}

TEST_F(Locks, AReaderNeverSeesAFileHalfChanged) {
    constexpr std::size_t size = 1000000;  // long enough to be caught amid its writing
    Place({{"field1.dat", std::string(size, 'z')}});
    const OtherProgram writer([this] {
        Open(Path(), Access::Write);
        OtherProgram::SayReady();
        for (int i = 0;; ++i) Write("field1.dat", std::string(size, static_cast<char>('a' + i % 26)));
    });
    Open(Path(), Access::Read);
    for (int i = 0; i < 300; ++i) {
        const auto contents = Read("field1.dat");
        ASSERT_EQ(*contents, std::string(size, contents->front()));
    }
}

}  // namespace veraqua::files
