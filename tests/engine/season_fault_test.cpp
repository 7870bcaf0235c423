#include <cerrno>

#include "core/failure.h"
#include "tests/engine/season_fixture.h"
#include "tests/support/failing_disks.h"

namespace veraqua {
namespace {

struct UpdateOnABreakingDisk : UpdateFieldTest {
    /// Whether the update comes through on the disk.
    bool Survives(files::RefusingDisk& disk, JulianValue last) {
        files::InstallDisk(&disk);
        bool survives = false;
        try {
            Update(last);
            survives = true;
        } catch (const RunTimeFailure&) {
        } catch (const files::Died&) {}
        files::InstallDisk(nullptr);
        return survives;
    }
};

TEST_F(UpdateOnABreakingDisk, LeavesFieldFileAndDirectoryRowBothOldOrBothNew) {
    constexpr JulianValue last = Planting + 50;
    Plant(LivelyField(), last);
    const auto old = Files();
    Update(last);
    const auto done = Files();
    for (const bool kills : {false, true}) {
        int stayedOld = 0;
        int becameNew = 0;
        bool isDone = false;
        for (int n = 1; !isDone; ++n) {
            SCOPED_TRACE(testing::Message() << n << (kills ? ", the program killed" : ""));
            for (const auto& [name, bytes] : done) Directory.Delete(name);
            for (const auto& [name, bytes] : old) Directory.Put(name, bytes);
            Directory.Reopen();
            LoadFieldDirectory();
            const StatRecord row = State.Stat[1];
            files::FailingDisk failing(n, EIO, true);
            files::DyingDisk dying(Directory.Path());
            dying.RefuseCall(n);
            isDone = kills ? Survives(dying, last) : Survives(failing, last);
            const bool rowStands = State.Stat[1] == row;
            Directory.Reopen();  // the next start
            const auto left = Files();
            ASSERT_TRUE(left == done || (left == old && !isDone));
            EXPECT_TRUE(rowStands || left == done);
            ++(left == old ? stayedOld : becameNew);
        }
        EXPECT_GT(stayedOld, 5);
        EXPECT_GT(becameNew, 5);
    }
}

}  // namespace
}  // namespace veraqua
