#include "workbench/harvest.h"

#include <filesystem>
#include <set>

#include "core/backups.h"
#include "tests/support/failing_disks.h"
#include "tests/workbench/forms/field_menu_fixture.h"

namespace veraqua {
namespace {

using Ids = std::vector<std::string>;

struct HarvestTest : FieldMenuTest {
    /// Fields "1", "2" and so on in `rows`, each with a depletion date of its own.
    void PlantRows(std::initializer_list<int> rows) {
        for (const int row : rows) {
            Plant(AField().Id(std::to_string(row)).Days(ThroughYesterday), row);
            State.Updates[row] = Today - row;
        }
    }

    /// The field in `position` of the list.
    void Harvest(int position) {
        User.Answers = {true};
        Menu.Click("mnuDelete").Pick("ComboField", position);
    }

    /// The fields by their rows, as files and directory say alike.
    static Ids FieldsInRows() {
        Ids ids;
        for (const int row : RowsInUse()) {
            EXPECT_EQ(State.Stat[row].FieldId, LoadFieldFile(row).Header().FieldId);
            ids.push_back(State.Stat[row].FieldId.Text());
        }
        return ids;
    }
};

TEST_F(HarvestTest, LaterFieldsMoveUpWithTheirRowsAndDatesAndARestoredFieldIsAsItWas) {
    PlantRows({1, 2, 3, 4, 5});
    const StatRecord row = State.Stat[2];
    const std::string file = Directory.Raw("field2.dat");
    Harvest(1);
    EXPECT_EQ(User.LastAsked(), "Delete Confirmation: Please confirm you wish to harvest/delete Field ID = 2         ");
    EXPECT_EQ(User.LastSaid(),
              "Field Harvested/Deleted: Your field was deleted and backed up to 2         _150703_ 1.dat");
    EXPECT_EQ(Directory.Raw("2         _150703_ 1.dat"), file);
    EXPECT_EQ(FieldsInRows(), (Ids{"1", "3", "4", "5"}));
    EXPECT_EQ(State.Updates[2], Today - 3);

    Menu.Click("mnuRestore").Pick("ComboField", 0);
    EXPECT_EQ(User.LastSaid(), "Field Restored: Field ID = 2 was restored from 2         _150703_ 1.dat");
    EXPECT_EQ(FieldsInRows(), (Ids{"1", "3", "4", "5", "2"}));
    EXPECT_EQ(State.Stat[5], row);
    EXPECT_EQ(State.Updates[5], Today - 2);
    EXPECT_EQ(Directory.Raw("field5.dat"), file);
    EXPECT_THAT(files::Names(), testing::Not(testing::Contains(testing::HasSubstr("_150703_"))));
}

TEST_F(HarvestTest, AGapClosesAndTheLastFieldLeavesAFreshDirectory) {
    PlantRows({1, 4});
    Harvest(0);
    EXPECT_EQ(FieldsInRows(), Ids{"4"});
    Harvest(0);
    EXPECT_EQ(Directory.Raw("stat.dat"), BlankStatFile(100));
}

TEST_F(HarvestTest, AHarvestThatIsDeclinedOrRefusedChangesNothing) {
    PlantRows({1, 2, 3});
    Select(0);
    Menu.Click("mnuDelete");  // No is the answer
    EXPECT_EQ(FieldsInRows(), (Ids{"1", "2", "3"}));
    std::filesystem::create_directory(Directory.Path() + "1         _150703_ 1.row");
    User.OtherAnswer = true;
    Menu.Click("mnuDelete");
    EXPECT_THAT(User.LastSaid(), testing::StartsWith("File Error: Your field was NOT backed up.  1         _150703_"));
    EXPECT_EQ(FieldsInRows(), (Ids{"1", "2", "3"}));
    Directory.Delete("field3.dat");
    Menu.Click("mnuDelete");
    EXPECT_THAT(User.LastSaid(),
                testing::StartsWith("File Error: Field file renumbering error (for files past deleted one).  field3"));
    EXPECT_TRUE(Directory.Has("field1.dat") && State.CurrentField == 1);
}

TEST_F(HarvestTest, ADamagedFieldIsHarvestedWithItsBytesAndTheIdOfTheDirectory) {
    PlantRows({1, 2, 3});
    Directory.Put("field2.dat", "damaged");
    Menu.Click("mnuDelete").Pick("ComboField", 1);  // No is the answer
    EXPECT_THAT(User.LastSaid(), testing::StartsWith("Veraqua: field2.dat (field 2): 7 bytes, but"));
    EXPECT_TRUE(State.FieldCount == 3 && State.CurrentField == 0);
    Harvest(1);
    EXPECT_EQ(Directory.Raw("2         _150703_ 1.dat"), "damaged");
    EXPECT_EQ(FieldsInRows(), (Ids{"1", "3"}));
}

TEST_F(HarvestTest, OneThatIsRecordedOnlySaysSo) {
    PlantRows({1, 2});
    User.OtherAnswer = true;
    files::FailingDisk disk(0, EIO, true);
    files::InstallDisk(&disk);
    bool isRecorded = false;
    for (int n = 1; !isRecorded; ++n) {  // until the journal is whole when the disk gives up
        ASSERT_LT(n, 100);
        disk.RefuseCall(n);
        const OrRefused<Harvested> harvest = HarvestField(User, 1);
        if (!harvest.IsDone()) continue;
        isRecorded = true;
        EXPECT_FALSE(harvest->IsCarriedOut);
        EXPECT_THAT(User.LastSaid(), testing::HasSubstr("is recorded and will be completed"));
    }
    files::InstallDisk(nullptr);
    EXPECT_EQ(FieldsInRows(), Ids{"2"});
}

TEST_F(HarvestTest, ABackupFromElsewhereIsRunFromPlanting) {
    for (int harvest = 0; harvest < 2; ++harvest) {
        Plant(AField().Id("a/b").Days(ThroughYesterday), 1);
        Harvest(0);
    }
    EXPECT_THAT(User.LastSaid(), testing::EndsWith("backed up to a-b       _150703_ 2.dat"));
    Directory.Delete("a-b       _150703_ 1.row");
    EXPECT_EQ(*RestoreField(User, "a-b       _150703_ 1.dat"), 1);
    EXPECT_THAT(User.LastSaid(), testing::EndsWith("Its depletion date was not kept. It was run from planting."));
    EXPECT_EQ(State.Stat[1].LastDay, Today - 1);
    EXPECT_EQ(LoadFieldFile(1).Days.at(1).EtrSum, 6);  // that of the weather
}

TEST_F(HarvestTest, WhatCannotBeRestoredStaysABackup) {
    PlantRows({1, 2});
    Harvest(0);
    const std::string backup = "1         _150703_ 1.dat";
    PlantRows({1});
    auto before = Files();
    EXPECT_EQ(RestoreField(User, backup).Why().Title, "Duplicate Field ID");
    EXPECT_FALSE(RestoreField(User, "field1.dat").IsDone());
    EXPECT_EQ(Files(), before);
    Harvest(0);
    for (const std::string& name : {backup, backup.substr(0, 21) + "row"}) {
        const std::string whole = Directory.Raw(name);
        Directory.Put(name, whole.substr(0, whole.size() - 1));
        before = Files();
        EXPECT_THROW(RestoreField(User, backup), RunTimeFailure) << name;
        EXPECT_EQ(Files(), before);
        Directory.Put(name, whole);
    }
    EXPECT_EQ(*RestoreField(User, backup), 1);
}

TEST_F(HarvestTest, APowerCutAtAnyCallOfTheDiskLeavesTheFieldWholeOrHarvested) {
    PlantRows({1, 2, 3});
    const files::Contents before = files::ContentsOf(Directory.Path());
    const auto start = [&](const files::Contents& contents) {
        for (const auto& [name, bytes] : files::ContentsOf(Directory.Path())) Directory.Delete(name);
        for (const auto& [name, bytes] : contents) Directory.Put(name, bytes);
        Directory.Reopen();
        StartUp(User);
    };
    User.OtherAnswer = true;
    std::set<Ids> seen;
    bool died = true;
    for (int n = 1; died; ++n) {
        ASSERT_LT(n, 100);
        start(before);
        files::DyingDisk disk(Directory.Path());
        disk.RefuseCall(n);
        files::InstallDisk(&disk);
        try {
            HarvestField(User, 2);
            died = false;
        } catch (const files::Died&) {}
        files::InstallDisk(nullptr);
        for (const files::Contents& left : disk.AfterPowerCuts()) {
            start(left);
            seen.insert(FieldsInRows());
            EXPECT_EQ(FindBackups().size(), RowsInUse().size() == 2 ? 1U : 0U);
        }
    }
    EXPECT_EQ(seen, (std::set<Ids>{{"1", "2", "3"}, {"1", "3"}}));
}

}  // namespace
}  // namespace veraqua
