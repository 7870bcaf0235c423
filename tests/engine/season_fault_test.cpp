#include <cerrno>
#include <string>

#include "core/disk.h"
#include "core/failure.h"
#include "tests/engine/update_fixture.h"

namespace veraqua {
namespace {

/// Thrown where the program dies.
struct Died {};

/// A disk that breaks at its nth call, and with it perhaps the program. Nothing after that has an effect.
class BreakingDisk : public files::Disk {
  public:
    BreakingDisk(int n, bool kills) : left_(n), kills_(kills) { files::InstallDisk(this); }
    ~BreakingDisk() override { files::InstallDisk(nullptr); }

    int Open(int directory, const char* name, int flags, mode_t mode) override {
        return Breaks() ? -1 : Disk::Open(directory, name, flags, mode);
    }
    ssize_t Write(int file, const char* bytes, std::size_t count, off_t position) override {
        return Breaks() ? -1 : Disk::Write(file, bytes, count, position);
    }
    int SetSize(int file, off_t size) override { return Breaks() ? -1 : Disk::SetSize(file, size); }
    int Reserve(int file, off_t position, off_t size) override {
        return Breaks() ? -1 : Disk::Reserve(file, position, size);
    }
    int Flush(int) override { return Breaks() ? -1 : 0; }
    int FlushFileSystem(int) override { return Breaks() ? -1 : 0; }
    int Unlink(int directory, const char* name) override { return Breaks() ? -1 : Disk::Unlink(directory, name); }

  private:
    bool Breaks() {
        errno = EIO;
        if (left_ > 0) --left_;
        if (left_ > 0) return false;
        if (kills_) {
            kills_ = false;
            throw Died();
        }
        return true;
    }

    int left_;
    bool kills_;
};

struct UpdateOnABreakingDisk : UpdateFieldTest, testing::WithParamInterface<bool> {
    /// Whether the update comes through with its disk breaking at the nth call.
    bool Survives(int n) {
        BreakingDisk disk(n, GetParam());
        try {
            Update(Last);
        } catch (const RunTimeFailure&) {
            return false;
        } catch (const Died&) {
            return false;
        }
        return true;
    }

    static constexpr JulianValue Last = Planting + 50;
};

INSTANTIATE_TEST_SUITE_P(With, UpdateOnABreakingDisk, testing::Bool(),
                         [](const auto& row) { return row.param ? "TheProgramKilled" : "TheProgramAlive"; });

TEST_P(UpdateOnABreakingDisk, LeavesFieldFileAndDirectoryRowBothOldOrBothNew) {
    Plant(LivelyField(), Last);
    const auto old = Files();
    Update(Last);
    const auto done = Files();
    int stayedOld = 0;
    int becameNew = 0;
    for (int n = 1;; ++n) {
        SCOPED_TRACE(n);
        for (const auto& [name, bytes] : done) Directory.Delete(name);
        for (const auto& [name, bytes] : old) Directory.Put(name, bytes);
        Directory.Reopen();
        LoadFieldDirectory();
        const StatRecord row = State.Stat[1];
        const bool isDone = Survives(n);
        const bool rowStands = State.Stat[1] == row;
        Directory.Reopen();  // the next start
        const auto left = Files();
        ASSERT_TRUE(left == done || (left == old && !isDone));
        EXPECT_TRUE(rowStands || left == done);
        ++(left == old ? stayedOld : becameNew);
        if (isDone) break;
    }
    EXPECT_GT(stayedOld, 5);
    EXPECT_GT(becameNew, 5);
}

}  // namespace
}  // namespace veraqua
