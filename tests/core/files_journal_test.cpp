#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <zlib.h>

#include "core/failure.h"
#include "core/journal.h"
#include "tests/core/files_fixture.h"

namespace veraqua::files {

using testing::HasSubstr;

namespace {

/// field1.dat gets the contents "xy", B.dat is deleted. Written by hand from the table in docs/formats.md; the checksum
/// is that of gzip over bytes 12 to 56.
constexpr std::string_view SmallJournal(
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

Changes SmallChanges() {
    return {{"b.dat", {"B.dat", nullptr}}, {"field1.dat", {"field1.dat", std::make_shared<const Bytes>("xy")}}};
}

/// `journal` with the checksum that its bytes ask for.
std::string WithChecksum(std::string journal) {
    const auto checksum = crc32_z(0, reinterpret_cast<const Bytef*>(journal.data()) + 12, journal.size() - 12);
    for (std::size_t i = 0; i < 4; ++i) journal[8 + i] = static_cast<char>((checksum >> (8 * i)) & 0xFF);
    return journal;
}

}  // namespace

class Journals : public FilesTest {
  protected:
    /// The directory after the start of a program that found `journal`.
    Contents AfterStartWith(std::string_view journal) const {
        Place({{"B.dat", "b"}, {"field1.dat", "a longer one"}, {"veraqua.journal", std::string(journal)}});
        Open(Path(), Access::Write);
        Close();
        return OnDisk();
    }

    const Contents untouched_{{"B.dat", "b"}, {"field1.dat", "a longer one"}};
    const Contents carriedOut_{{"field1.dat", "xy"}};
};

TEST_F(Journals, HaveTheseBytesAndAreCarriedOutWhereTheyAreWhole) {
    EXPECT_EQ(JournalBytes(SmallChanges()), SmallJournal);
    EXPECT_EQ(AfterStartWith(SmallJournal), carriedOut_);
    EXPECT_EQ(AfterStartWith(std::string(SmallJournal) + std::string(8192, '\0')), carriedOut_);  // room reserved
}

TEST_F(Journals, CutAtAnyByteOrWithAnyBitTurnedAreDiscarded) {
    for (std::size_t size = 0; size < SmallJournal.size(); ++size)
        EXPECT_EQ(AfterStartWith(SmallJournal.substr(0, size)), untouched_) << size;
    for (std::size_t bit = 0; bit < 8 * SmallJournal.size(); ++bit) {
        std::string journal(SmallJournal);
        journal[bit / 8] = static_cast<char>(journal[bit / 8] ^ (1 << (bit % 8)));
        EXPECT_EQ(AfterStartWith(journal), untouched_) << bit;
    }
}

TEST_F(Journals, ThatAreWholeButForeignAreRefusedAndStay) {
    const auto with = [](std::size_t place, char byte) {
        std::string journal(SmallJournal);
        journal[place] = byte;
        return journal;
    };
    const auto contents = std::make_shared<const Bytes>("root::0:0:::");
    for (const auto& [says, journal] : std::vector<std::pair<std::string, std::string>>{
             {"version 2 was left by a newer Veraqua", with(12, 2)},
             {"57 bytes, but its counts ask for", with(24, 0x7F)},
             {"a negative length at byte", with(27, '\xFF')},
             {"more bytes than its changes have", with(20, 1)},
             {"\"../passwd\" can't be the name", JournalBytes({{"../passwd", {"../passwd", contents}}})}}) {
        SCOPED_TRACE(says);
        Contents before = untouched_;
        before["veraqua.journal"] = WithChecksum(journal);
        Place(before);
        EXPECT_THAT(FailureOfOpen(Access::Write), HasSubstr(says));
        EXPECT_EQ(OnDisk(), before);
    }
}

}  // namespace veraqua::files
