#include <string>

#include <gmock/gmock.h>

#include "tests/core/files_fixture.h"

namespace veraqua::files {

class ChangeSets : public FilesTest {
  protected:
    ChangeSets() {
        Place(before_);
        Open(Path(), Access::Write);
    }

    const Contents before_{{"stat.dat", "rows"}, {"field1.dat", "one"}, {"field2.dat", "two"}};
};

TEST_F(ChangeSets, AreSeenAtOnceAndReachTheDiskAtTheirCommit) {
    const Contents after{{"stat.dat", "more rows"}, {"field1.dat", "two"}, {"field3.dat", "three"}};
    for (const bool commits : {false, true}) {
        {
            ChangeSet set;
            Write("stat.dat", "more rows");
            Remove("field1.dat");
            Rename("field2.dat", "field1.dat");
            Write("field3.dat", "three");
            EXPECT_EQ(Seen(), after);
            EXPECT_EQ(Read("field2.dat"), nullptr);
            EXPECT_EQ(OnDisk(), before_);
            if (commits) set.Commit();
        }
        EXPECT_EQ(OnDisk(), commits ? after : before_);
        EXPECT_EQ(Seen(), OnDisk());
    }
}

TEST_F(ChangeSets, InsideAnotherJoinItOrAreForgottenAlone) {
    for (const bool commits : {false, true}) {
        ChangeSet outer;
        Write("stat.dat", "outer");
        {
            ChangeSet inner;
            Write("field1.dat", "inner");
            inner.Commit();
        }
        {
            const ChangeSet inner;
            Write("stat.dat", "forgotten");
            Remove("field1.dat");
            EXPECT_EQ(*Read("stat.dat"), "forgotten");
        }
        EXPECT_EQ(*Read("stat.dat"), "outer");
        EXPECT_EQ(OnDisk(), before_);  // of the first set nothing is left
        if (commits) outer.Commit();
    }
    EXPECT_EQ(OnDisk(), (Contents{{"stat.dat", "outer"}, {"field1.dat", "inner"}, {"field2.dat", "two"}}));
}

TEST_F(ChangeSets, CostTheSameFlushesForAHundredFilesAndNothingWithoutADifference) {
    FailingDisk disk(1, EIO, true);  // nothing may be called
    InstallDisk(&disk);
    {
        ChangeSet set;
        Write("stat.dat", "rows");
        Write("field1.dat", "other");
        Write("field1.dat", "one");
        Write("field9.dat", "made and taken away");
        Remove("field9.dat");
        Remove("field8.dat");
        set.Commit();
    }
    QuickDisk counting;
    InstallDisk(&counting);
    Write("field1.dat", "other");
    EXPECT_EQ(counting.Flushes, 3);
    ChangeSet set;
    for (int i = 1; i <= 100; ++i) Write("field" + std::to_string(i) + ".dat", std::string(3000, 'x'));
    set.Commit();
    EXPECT_EQ(counting.Flushes, 6);
    UseQuickDisk();
}

TEST_F(ChangeSets, ReadAFileFromTheDiskOnce) {
    Contents changed = before_;
    changed["field1.dat"] = "changed by another hand";
    changed["FIELD7.DAT"] = "copied in";
    {
        const ChangeSet set;
        const auto first = Read("field1.dat");
        EXPECT_FALSE(Exists("field7.dat"));
        Place(changed);
        EXPECT_EQ(Read("FIELD1.DAT"), first);
    }
    EXPECT_EQ(*Read("field1.dat"), "changed by another hand");
    EXPECT_EQ(*Read("field7.dat"), "copied in");
}

}  // namespace veraqua::files
