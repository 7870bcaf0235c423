#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "core/failure.h"
#include "tests/core/files_fixture.h"

namespace veraqua::files {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;

TEST_F(FilesTest, NamesAreFoundWithoutRegardToCaseAndKeepTheirSpelling) {
    struct Asked {
        std::vector<std::string> OnDisk;
        std::string Name;
        std::string Found;  ///< empty: none
    };
    for (const Asked& asked : {Asked{{"STAT.DAT"}, "stat.dat", "STAT.DAT"},
                               {{"Stat.Dat"}, "sTAT.dAT", "Stat.Dat"},
                               {{"STAT.DAT", "stat.dat"}, "STAT.DAT", "stat.dat"},  // lower case wins
                               {{"Stat.dat", "STAT.dat", "stAT.dat"}, "stat.dat", "STAT.dat"},
                               {{"stat.da", "stat.dat2"}, "stat.dat", ""},
                               {{}, "Field 12.0001", ""},
                               {{"Br\xC3\xBChl.0001"}, "br\xC3\xBChl.0001", "Br\xC3\xBChl.0001"}}) {
        SCOPED_TRACE(asked.Name + " as " + asked.Found);
        Contents before;
        for (const std::string& name : asked.OnDisk) before[name] = "contents of " + name;
        Place(before);
        Open(Path(), Access::Write);
        EXPECT_EQ(Exists(asked.Name), !asked.Found.empty());
        const auto contents = Read(asked.Name);
        EXPECT_EQ(contents ? *contents : "", asked.Found.empty() ? "" : "contents of " + asked.Found);
        Write(asked.Name, "new");
        Contents after = before;
        after[asked.Found.empty() ? asked.Name : asked.Found] = "new";
        EXPECT_EQ(OnDisk(), after);
        Remove(asked.Name);
        EXPECT_FALSE(Exists(asked.Name));
        Close();
    }
}

TEST_F(FilesTest, NamesListsEachFileOnceInItsSpelling) {
    Place({{"stat.dat", ""}, {"STAT.DAT", ""}, {"Field1.dat", ""}, {"veraqua.journal", ""}, {".veraqua-77-0", ""}});
    std::filesystem::create_directory(Path() + "old");
    Open(Path(), Access::Write);
    EXPECT_THAT(Names(), ElementsAre("Field1.dat", "stat.dat"));

    const ChangeSet set;
    Write("FIELD1.DAT", "x");
    Write("Aa.dat", "x");
    Remove("stat.dat");
    EXPECT_THAT(Names(), ElementsAre("Aa.dat", "Field1.dat"));
}

TEST_F(FilesTest, NamesThatNoDataFileCanHaveAreRefused) {
    Open(Path(), Access::Write);
    for (const std::string& name : {std::string(""), std::string(".."), std::string("../stat.dat"),
                                    std::string("a\0b", 3), std::string("Veraqua.Lock"), std::string("veraqua.journal"),
                                    std::string(".veraqua-1-0"), std::string(256, 'n')}) {
        SCOPED_TRACE(name);
        EXPECT_THROW(Read(name), RunTimeFailure);
        EXPECT_THROW(Write(name, "x"), RunTimeFailure);
        EXPECT_THROW(Remove(name), RunTimeFailure);
    }
    Write(std::string(255, 'n'), "the longest");
    EXPECT_THROW(Rename("missing.dat", "other.dat"), RunTimeFailure);
    EXPECT_THROW(Rename(std::string(255, 'n'), "a/b"), RunTimeFailure);
    EXPECT_EQ(OnDisk(), (Contents{{std::string(255, 'n'), "the longest"}}));
}

TEST_F(FilesTest, AFileBeyondAllSenseIsAFailureAndNoAllocation) {
    Place({{"stat.dat", ""}});
    std::filesystem::resize_file(Path() + "stat.dat", std::uintmax_t{1} << 40);  // takes no room on the disk
    Open(Path(), Access::Read);
    EXPECT_THAT([] { Read("stat.dat"); }, ThrowsMessage<RunTimeFailure>(HasSubstr("stat.dat: 1099511627776 bytes")));
}

}  // namespace veraqua::files
