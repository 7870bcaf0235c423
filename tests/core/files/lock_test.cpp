#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <string>

#include <gmock/gmock.h>

#include "core/files/journal.h"
#include "tests/core/files/files_fixture.h"

namespace veraqua::files {

/// Another program, a process of its own: it holds the directory until it is killed.
class OtherProgram {
  public:
    explicit OtherProgram(const std::string& path) {
        int ends[2] = {};
        if (pipe(ends) != 0) ADD_FAILURE() << "no pipe";
        process_ = fork();
        if (process_ == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);  // it outlives no test that breaks off
            Close();                           // what this process has open
            Open(path, Access::Write);
            if (write(ends[1], "r", 1) != 1) _exit(1);
            for (;;) pause();
        }
        close(ends[1]);
        char ready = 0;
        if (read(ends[0], &ready, 1) != 1) ADD_FAILURE() << "the other program ended too early";
        close(ends[0]);
    }
    ~OtherProgram() { Kill(); }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    void Kill() {
        if (process_ == 0) return;
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
        process_ = 0;
    }

    pid_t Process() const { return process_; }

  private:
    pid_t process_ = 0;
};

namespace {

/// Whether another program could work in `path` now.
bool IsFree(const std::string& path) {
    const pid_t other = fork();
    if (other == 0) {
        Close();
        try {
            Open(path, Access::Write);
        } catch (const Refusal&) {
            _exit(1);
        }
        _exit(0);
    }
    int status = 1;
    waitpid(other, &status, 0);
    return status == 0;
}

}  // namespace

TEST_F(FilesTest, ASecondProgramIsKeptOutUntilTheFirstOneDiesAndMayReadItsWholeJournal) {
    const Contents after{{"stat.dat", "new rows"}};
    OtherProgram other(Path());
    const Contents halfWay{
        {"stat.dat", "new"},
        {"field1.dat", "one"},
        {"veraqua.journal", JournalBytes({{"stat.dat", {"stat.dat", std::make_shared<const Bytes>("new rows")}},
                                          {"field1.dat", {"field1.dat", nullptr}}})}};
    Place(halfWay);
    EXPECT_EQ(FailureOfOpen(Access::Write), "Another Veraqua (process " + std::to_string(other.Process()) +
                                                ") is working in " + Path() + ". Close it first.");
    Open(Path(), Access::Read);
    EXPECT_EQ(Seen(), after);
    EXPECT_FALSE(MayWrite());
    EXPECT_EQ(OnDisk(), halfWay);

    other.Kill();
    EXPECT_TRUE(MayWrite());
    Close();
    Open(Path(), Access::Read);
    EXPECT_EQ(OnDisk(), after);       // with the lock free, a reader tidies up
    const OtherProgram next(Path());  // and holds nothing afterwards
}

TEST_F(FilesTest, ADirectorySetAsideKeepsItsLockUntilItIsGivenUp) {
    const std::string other = Path() + "other/";
    std::filesystem::create_directory(other);
    Open(Path(), Access::Write);
    {
        const SetAside aside;
        Open(other, Access::Write);
        EXPECT_FALSE(IsFree(Path()));
    }
    EXPECT_EQ(DirectoryPath(), Path());
    EXPECT_FALSE(IsFree(Path()));
    EXPECT_TRUE(IsFree(other));
    {
        SetAside aside;
        Open(other, Access::Write);
        aside.Keep();
    }
    EXPECT_TRUE(IsFree(Path()));
    EXPECT_FALSE(IsFree(other));
    Close();
}

}  // namespace veraqua::files
