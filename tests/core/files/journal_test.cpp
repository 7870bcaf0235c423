#include "core/files/journal.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <zlib.h>

#include "tests/core/files/files_fixture.h"

namespace veraqua::files {

/// field1.dat gets the contents "xy", B.dat is deleted. Written by hand from the table in docs/formats.md; the checksum
/// is that of gzip over bytes 12 to 56.
const std::string SmallJournal(
    "VERAQUAJ"
    "\x3D\x2A\xD4\x80"  // checksum
    "\x01\x00\x00\x00"  // version
    "\x21\x00\x00\x00"  // 33 bytes of changes
    "\x02\x00\x00\x00"  // two of them
    "\x05\x00\x00\x00"  // a name of 5 bytes
    "\xFF\xFF\xFF\xFF"  // no contents
    "B.dat"
    "\x0A\x00\x00\x00"  // a name of 10 bytes
    "\x02\x00\x00\x00"  // contents of 2 bytes
    "field1.dat"
    "xy",
    57);

class Journals : public FilesTest {
  protected:
    /// The directory after the start of a program that found `journal`.
    Contents AfterStartWith(const std::string& journal) const {
        Place({{"B.dat", "b"}, {"field1.dat", "a longer one"}, {"veraqua.journal", journal}});
        Open(Path(), Access::Write);
        Close();
        return OnDisk();
    }
};

TEST_F(Journals, HaveTheseBytesAndAreCarriedOutWhereTheyAreWhole) {
    const auto contents = std::make_shared<const Bytes>("xy");
    EXPECT_EQ(JournalBytes({{"b.dat", {"B.dat", nullptr}}, {"field1.dat", {"field1.dat", contents}}}), SmallJournal);
    EXPECT_EQ(AfterStartWith(SmallJournal + std::string(8192, '\0')), (Contents{{"field1.dat", "xy"}}));
    const Contents untouched{{"B.dat", "b"}, {"field1.dat", "a longer one"}};
    for (std::size_t size = 0; size < SmallJournal.size(); ++size) {
        EXPECT_EQ(AfterStartWith(SmallJournal.substr(0, size)), untouched) << size;
        std::string turned = SmallJournal;
        turned[size] = static_cast<char>(turned[size] ^ 4);
        EXPECT_EQ(AfterStartWith(turned), untouched) << size;
    }
}

TEST_F(Journals, ThatAreWholeButForeignAreRefusedAndStay) {
    for (const auto& [place, byte, says] :
         std::vector<std::tuple<std::size_t, char, std::string>>{{12, '\2', "version 2 was left by a newer Veraqua"},
                                                                 {24, '\x7F', "57 bytes, but its counts ask for"},
                                                                 {27, '\xFF', "a negative length at byte"},
                                                                 {20, '\1', "more bytes than its changes have"},
                                                                 {33, '/', "can't be the name"}}) {
        std::string journal = SmallJournal;
        journal[place] = byte;
        const auto checksum = crc32_z(0, reinterpret_cast<const Bytef*>(journal.data()) + 12, journal.size() - 12);
        for (std::size_t i = 0; i < 4; ++i) journal[8 + i] = static_cast<char>((checksum >> (8 * i)) & 0xFF);
        const Contents before{{"B.dat", "b"}, {"veraqua.journal", journal}};
        Place(before);
        EXPECT_THAT(FailureOfOpen(Access::Write), testing::HasSubstr(says));
        EXPECT_EQ(OnDisk(), before);
    }
}

}  // namespace veraqua::files
