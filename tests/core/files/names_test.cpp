#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "tests/core/files/files_fixture.h"

namespace veraqua::files {

TEST_F(FilesTest, NamesAreFoundWithoutRegardToCaseAndKeepTheirSpelling) {
    struct Asked {
        std::vector<std::string> OnDisk;
        std::string Name, Found;
    };
    for (const Asked& asked : {Asked{{"STAT.DAT"}, "stat.dat", "STAT.DAT"},
                               {{"STAT.DAT", "stat.dat"}, "STAT.DAT", "stat.dat"},  // lower case wins
                               {{"Stat.dat", "STAT.dat", "stAT.dat"}, "stat.dat", "STAT.dat"},
                               {{"stat.da", "stat.dat2"}, "stat.dat", ""}}) {
        Contents files;
        for (const std::string& name : asked.OnDisk) files[name] = "contents of " + name;
        Place(files);
        Open(Path(), Access::Write);
        const auto contents = Read(asked.Name);
        EXPECT_EQ(contents ? *contents : "", asked.Found.empty() ? "" : "contents of " + asked.Found);
        Write(asked.Name, "new");
        files[asked.Found.empty() ? asked.Name : asked.Found] = "new";
        EXPECT_EQ(OnDisk(), files);
        Remove(asked.Name);
        EXPECT_FALSE(Exists(asked.Name)) << "in any spelling";
        Close();
    }
    Place({{"Field1.dat", ""}, {".veraqua-77-0", ""}});
    Open(Path(), Access::Write);
    EXPECT_THAT(Names(), testing::ElementsAre("Field1.dat"));
    for (const std::string& name : {std::string("../stat.dat"), std::string("a\0b", 3), std::string("Veraqua.Lock"),
                                    std::string("veraqua.journal"), std::string(256, 'n')})
        EXPECT_NE(FailureOf([&] { Write(name, "x"); }), "") << name;
}

TEST_F(FilesTest, AReportReplacesTheOldOneWhollyOrNotAtAllWhereItsNamePoints) {
    bool isDone = false;
    for (int n = 1; !isDone; ++n) {
        Place({{"report.txt", "of yesterday"}});
        std::filesystem::create_symlink("report.txt", Path() + "latest.txt");
        FailingDisk disk(n, ENOSPC, false);
        InstallDisk(&disk);
        isDone = FailureOf([&] { WriteOutside(Path() + "latest.txt", "of today"); }).empty();
        UseQuickDisk();
        const std::string expected = isDone ? "of today" : "of yesterday";
        EXPECT_EQ(OnDisk(), (Contents{{"report.txt", expected}, {"latest.txt", expected}})) << n;
    }
    EXPECT_THAT(FailureOf([&] { ReadOutside(Path() + "report.txt", 7); }), testing::HasSubstr("8 bytes are too many"));
    Open(Path(), Access::Write);
    EXPECT_NE(FailureOf([&] { ReadOutside(Path() + "veraqua.lock", 5); }), "");  // which would give the lock back
}

}  // namespace veraqua::files
