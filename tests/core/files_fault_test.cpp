#include <cerrno>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "core/failure.h"
#include "core/journal.h"
#include "tests/core/files_fixture.h"
#include "tests/support/failing_disks.h"

namespace veraqua::files {

using testing::AnyOf;
using testing::Each;
using testing::Eq;
using testing::HasSubstr;
using testing::IsSubsetOf;

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
        Write("weather02.24", "as it was");
        set.Commit();
    }

    /// Text of the failure that the deed ends in; empty if it succeeds.
    static std::string DeedSays() {
        try {
            Deed();
        } catch (const RunTimeFailure& failure) {
            return failure.what();
        }
        return "";
    }

    const Contents before_{{"stat.dat", "four fields"},
                           {"field1.dat", std::string(4000, 'b')},
                           {"field2.dat", std::string(5000, 'c')},
                           {"field3.dat", std::string(5000, '3')},
                           {"field4.dat", "four"},
                           {"UPDATES.DAT", "old dates"},
                           {"NETWORK.TXT", "http://example.org/"},
                           {"weather02.24", "as it was"}};
    const Contents after_{{"stat.dat", "field 3 has gone, field 4 is field 3"},
                          {"field1.dat", std::string(9000, 'B')},
                          {"field2.dat", "shrunk"},
                          {"field3.dat", "four"},
                          {"UPDATES.DAT", "new dates"},
                          {"North 40.0001", std::string(5000, '3')},
                          {"weather02.24", "as it was"}};

    /// Leaves the directory as a program does that was killed when it had decided, and had written some of the files.
    void PlaceHalfDone() {
        Place(before_);
        Open(Path(), Access::Write);
        DyingDisk disk(Path());
        InstallDisk(&disk);
        disk.RefuseCall(18);
        EXPECT_THROW(Deed(), Died);
        UseQuickDisk();
        Close();
        const Contents left = OnDisk();
        ASSERT_TRUE(left.contains("veraqua.journal"));
        const std::string& journal = left.at("veraqua.journal");
        ASSERT_EQ(journal.size(), JournalSize(journal));  // the room behind it has been given back
        ASSERT_NE(left.at("field1.dat"), before_.at("field1.dat"));
        ASSERT_EQ(left.at("stat.dat"), before_.at("stat.dat"));
    }
};

struct Fault {
    const char* Label;
    int Error;
    bool Lasts;
};

class FailingCalls : public Faults, public testing::WithParamInterface<Fault> {};

INSTANTIATE_TEST_SUITE_P(Of, FailingCalls,
                         testing::Values(Fault{"OneBadBlock", EIO, false}, Fault{"ABrokenDisk", EIO, true},
                                         Fault{"AFullDisk", ENOSPC, true}),
                         [](const auto& row) { return row.param.Label; });

TEST_P(FailingCalls, LeaveTheDirectoryWhollyOldOrRecordTheWhollyNew) {
    const Fault fault = GetParam();
    int old = 0;
    int recorded = 0;
    for (int step = 2;; ++step) {  // each call twice: what it leaves is made good by the next start or the next change
        const int n = step / 2;
        SCOPED_TRACE(n);
        ASSERT_LT(n, Enough);
        Place(before_);
        Open(Path(), Access::Write);
        FailingDisk disk(n, fault.Error, fault.Lasts);
        InstallDisk(&disk);
        const std::string text = DeedSays();
        if (fault.Lasts && !text.empty()) {
            EXPECT_THROW(Write("weather02.24", "another change"), RunTimeFailure);
        }
        UseQuickDisk();
        if (text.empty()) {
            EXPECT_EQ(OnDisk(), after_);
            Close();
            break;
        }
        EXPECT_THAT(text, HasSubstr(fault.Error == EIO ? "Input/output error" : "No space left on device"));
        const bool isRecorded = text.find("The change is recorded and will be completed") != std::string::npos;
        const Contents& expected = isRecorded ? after_ : before_;
        ++(isRecorded ? recorded : old);
        EXPECT_EQ(Seen(), expected);
        if (step % 2 == 0) {
            Close();
            Open(Path(), Access::Write);
        } else {
            Write("weather02.24", "another change");
            Write("weather02.24", "as it was");
        }
        EXPECT_EQ(OnDisk(), expected);
        Close();
    }
    // Before the decision: six files to open, the journal to open and to write, and more where it can be removed. After
    // it: the room given back, six files to open and to write, one to cut, two to delete, the flush, the journal's
    // removal.
    EXPECT_GE(old, 2 * 8);
    EXPECT_GE(recorded, 2 * 18);
}

TEST_P(FailingCalls, OfARecoveryLeaveItToTheNextStart) {
    const Fault fault = GetParam();
    for (const Access access : {Access::Write, Access::Read}) {
        for (int n = 1;; ++n) {
            SCOPED_TRACE(n);
            ASSERT_LT(n, Enough);
            PlaceHalfDone();
            FailingDisk disk(n, fault.Error, fault.Lasts);
            InstallDisk(&disk);
            const std::string text = FailureOfOpen(access);
            if (access == Access::Read) {  // which shows the new state whether or not it can tidy up
                EXPECT_EQ(text, "");
                Open(Path(), Access::Read);
                EXPECT_EQ(Seen(), after_);
                Close();
            }
            UseQuickDisk();
            const bool isDone = OnDisk() == after_;
            Open(Path(), Access::Write);
            EXPECT_EQ(OnDisk(), after_);
            Close();
            if (isDone && text.empty()) break;
        }
    }
}

class Deaths : public Faults {
  protected:
    /// Runs `deed`, which dies at call `n` of `disk`. False if it came to its end.
    template <class Deed>
    static bool DiesAt(int n, DyingDisk& disk, Deed deed) {
        disk.RefuseCall(n);
        bool died = false;
        try {
            deed();
        } catch (const Died&) {
            died = true;
        }
        disk.RefuseCall(0);
        Close();
        return died;
    }

    /// The directory after a death, each kind of power cut and the next start.
    std::vector<Contents> AfterRestarts(const WatchedDisk& disk) {
        std::vector<Contents> found;
        for (const PowerCut cut : PowerCuts) found.push_back(disk.Left(cut));
        UseQuickDisk();
        for (Contents& left : found) left = AfterRestart(left);
        return found;
    }

  private:
    /// A start does the same for the same directory, so it is done once for each.
    const Contents& AfterRestart(const Contents& left) {
        const auto known = restarted_.find(left);
        if (known != restarted_.end()) return known->second;
        Place(left);
        Open(Path(), Access::Write);
        EXPECT_EQ(Seen(), OnDisk());
        Close();
        return restarted_[left] = OnDisk();
    }

    std::map<Contents, Contents> restarted_;
};

TEST_F(Deaths, LeaveTheOldOrTheNewStateAsAWhole) {
    std::vector<Contents> last(std::size(PowerCuts), before_);
    for (int n = 1;; ++n) {
        SCOPED_TRACE(n);
        ASSERT_LT(n, Enough);
        Place(before_);
        Open(Path(), Access::Write);
        DyingDisk disk(Path());
        InstallDisk(&disk);
        const bool died = DiesAt(n, disk, Deed);
        const std::vector<Contents> found = AfterRestarts(disk);
        for (std::size_t cut = 0; cut < found.size(); ++cut) {
            if (!died || last[cut] == after_)
                EXPECT_EQ(found[cut], after_) << cut;  // once decided, it stays so
            else
                EXPECT_THAT(found[cut], AnyOf(Eq(before_), Eq(after_))) << cut;
        }
        if (!died) break;
        last = found;
    }
}

TEST_F(Deaths, InARecoveryToo) {
    std::set<Contents> seen;
    bool died = true;
    for (int n = 1; died; ++n) {
        bool diedAgain = true;
        for (int m = 1; diedAgain; ++m) {
            SCOPED_TRACE(testing::Message() << "dead at " << n << " and in the recovery at " << m);
            ASSERT_TRUE(n < Enough && m < Enough);
            Place(before_);
            Open(Path(), Access::Write);
            DyingDisk disk(Path());
            InstallDisk(&disk);
            died = DiesAt(n, disk, Deed);
            diedAgain = DiesAt(m, disk, [&] { Open(Path(), Access::Write); });
            for (const Contents& found : AfterRestarts(disk)) seen.insert(found);
            ASSERT_THAT(seen, IsSubsetOf({before_, after_}));
        }
    }
    EXPECT_EQ(seen.size(), 2);
}

TEST_F(Deaths, AfterAFailureLeaveWhatTheUserWasTold) {
    bool isDone = false;
    for (int n = 1; !isDone; ++n) {
        SCOPED_TRACE(n);
        ASSERT_LT(n, Enough);
        Place(before_);
        Open(Path(), Access::Write);
        StumblingDisk disk(Path(), n);
        InstallDisk(&disk);
        isDone = DeedSays().empty();
        const Contents told = Seen();
        Close();
        EXPECT_THAT(AfterRestarts(disk), Each(told));
    }
}

TEST_F(Faults, AReadOnlyDirectoryIsReadAndNotWritten) {
    PlaceHalfDone();
    const Contents halfDone = OnDisk();
    FailingDisk disk(1, EROFS, true);
    InstallDisk(&disk);
    EXPECT_THAT(FailureOfOpen(Access::Write), HasSubstr(Path() + " can't be written: Read-only file system"));
    Open(Path(), Access::Read);
    EXPECT_EQ(Seen(), after_);
    EXPECT_FALSE(MayWrite());
    EXPECT_EQ(OnDisk(), halfDone);
    UseQuickDisk();
}

}  // namespace veraqua::files
