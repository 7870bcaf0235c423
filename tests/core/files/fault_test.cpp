#include <cerrno>
#include <map>
#include <set>
#include <string>
#include <utility>

#include <gmock/gmock.h>

#include "tests/core/files/files_fixture.h"

namespace veraqua::files {

/// A deed that does all that a set can do, and the directory before and after it. Every loop below disturbs it at its
/// first call to the disk, its second and so on, until it comes through undisturbed.
class Faults : public FilesTest {
  protected:
    static constexpr int Enough = 100;  // calls, far above those of the deed

    static void Deed() {
        ChangeSet set;
        Write("stat.dat", "field 3 has gone, field 4 is field 3");
        Write("field1.dat", std::string(9000, 'B'));
        Write("field2.dat", "shrunk");
        Rename("field4.dat", "field3.dat");
        Write("updates.dat", "new dates");
        Write("North 40.0001", std::string(5000, '3'));
        Remove("network.txt");
        set.Commit();
    }

    void OpenAsBefore() {
        Place(before_);
        Open(Path(), Access::Write);
    }

    /// Runs `deed` on `disk`, where the program dies at call `n`. False if it came to its end.
    template <class Deed>
    bool DiesAt(int n, DyingDisk& disk, Deed deed) {
        InstallDisk(&disk);
        disk.RefuseCall(n);
        bool died = false;
        try {
            deed();
        } catch (const Died&) {
            died = true;
        }
        disk.RefuseCall(0);
        UseQuickDisk();
        Close();
        return died;
    }

    /// The directory after a death, a power cut and the next start, which does the same for the same directory.
    const Contents& AfterRestart(const Contents& left) {
        Contents& restarted = restarted_[left];
        if (restarted.empty()) {
            Place(left);
            Open(Path(), Access::Write);
            Close();
            restarted = OnDisk();
        }
        return restarted;
    }

    const Contents before_{{"stat.dat", "four fields"},
                           {"field1.dat", std::string(4000, 'b')},
                           {"field2.dat", std::string(5000, 'c')},
                           {"field3.dat", std::string(5000, '3')},
                           {"field4.dat", "four"},
                           {"UPDATES.DAT", "old dates"},
                           {"NETWORK.TXT", "http://example.org/"}};
    const Contents after_{{"stat.dat", "field 3 has gone, field 4 is field 3"},
                          {"field1.dat", std::string(9000, 'B')},
                          {"field2.dat", "shrunk"},
                          {"field3.dat", "four"},
                          {"UPDATES.DAT", "new dates"},
                          {"North 40.0001", std::string(5000, '3')}};

  private:
    std::map<Contents, Contents> restarted_;
};

TEST_F(Faults, ASetIsSeenAtOnceAndWithinAnotherJoinsItOrIsForgottenAlone) {
    OpenAsBefore();
    for (const bool commits : {false, true}) {
        ChangeSet outer;
        Deed();
        {
            const ChangeSet forgotten;
            Write("stat.dat", "forgotten");
            Remove("field1.dat");
        }
        EXPECT_EQ(Seen(), after_);
        EXPECT_EQ(OnDisk(), before_);  // of the first outer set nothing is left
        if (commits) outer.Commit();
    }
    EXPECT_EQ(OnDisk(), after_);
}

TEST_F(Faults, OfTheDiskLeaveTheDirectoryWhollyOldOrRecordTheWhollyNew) {
    for (const auto& [error, lasts] : {std::pair(EIO, false), std::pair(ENOSPC, true)}) {
        for (int step = 2;; ++step) {  // each call twice: made good by the next start or the next change
            const int n = step / 2;
            SCOPED_TRACE(n);
            ASSERT_LT(n, Enough);
            OpenAsBefore();
            FailingDisk disk(n, error, lasts);
            InstallDisk(&disk);
            const std::string text = FailureOf(Deed);
            UseQuickDisk();
            const bool isRecorded = text.find("The change is recorded and will be completed") != std::string::npos;
            const Contents& expected = isRecorded || text.empty() ? after_ : before_;
            EXPECT_EQ(Seen(), expected);
            if (step % 2 == 0) {
                Close();
                Open(Path(), Access::Write);
            } else {
                Write("weather02.24", "another change");
                Remove("weather02.24");
            }
            EXPECT_EQ(OnDisk(), expected);
            Close();
            if (text.empty()) break;
            EXPECT_EQ(text.ends_with("Nothing was changed."), !isRecorded);
            EXPECT_THAT(text, testing::HasSubstr(error == EIO ? "Input/output error" : "No space left on device"));
        }
    }
}

TEST_F(Faults, DeathLeavesTheOldOrTheNewStateAsAWholeInARecoveryToo) {
    std::set<Contents> seen;
    bool died = true;
    for (int n = 1; died; ++n) {
        bool diedAgain = true;
        for (int m = 1; diedAgain; ++m) {
            SCOPED_TRACE(testing::Message() << "dead at " << n << " and in the recovery at " << m);
            ASSERT_TRUE(n < Enough && m < Enough);
            OpenAsBefore();
            DyingDisk disk(Path());
            died = DiesAt(n, disk, Deed);
            diedAgain = DiesAt(m, disk, [&] { Open(Path(), Access::Write); });
            for (const Contents& left : disk.AfterPowerCuts()) {
                const Contents& found = AfterRestart(left);
                ASSERT_TRUE(found == after_ || (died && found == before_));
                seen.insert(found);
            }
        }
    }
    EXPECT_EQ(seen.size(), 2);
}

}  // namespace veraqua::files
