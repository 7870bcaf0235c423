#include <string>
#include <string_view>

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

TEST_F(Journals, HaveTheseBytes) { EXPECT_EQ(JournalBytes(SmallChanges()), SmallJournal); }

TEST_F(Journals, ThatAreWholeAreCarriedOut) {
    EXPECT_EQ(AfterStartWith(SmallJournal), carriedOut_);
    EXPECT_EQ(AfterStartWith(std::string(SmallJournal) + std::string(8192, '\0')), carriedOut_);  // room reserved
}

TEST_F(Journals, CutAtAnyByteAreDiscarded) {
    for (std::size_t size = 0; size < SmallJournal.size(); ++size)
        EXPECT_EQ(AfterStartWith(SmallJournal.substr(0, size)), untouched_) << size;
}

TEST_F(Journals, WithAnyBitTurnedAreDiscarded) {
    for (std::size_t bit = 0; bit < 8 * SmallJournal.size(); ++bit) {
        std::string journal(SmallJournal);
        journal[bit / 8] = static_cast<char>(journal[bit / 8] ^ (1 << (bit % 8)));
        EXPECT_EQ(AfterStartWith(journal), untouched_) << bit;
    }
}

TEST_F(Journals, ThatAreWholeButForeignAreRefusedAndStay) {
    struct Row {
        const char* Says;
        std::string Journal;
    };
    std::string newer(SmallJournal);
    newer[12] = 2;
    std::string nameTooLong(SmallJournal);
    nameTooLong[24] = 0x7F;
    std::string negativeName(SmallJournal);
    negativeName[27] = '\xFF';
    std::string fewerChanges(SmallJournal);
    fewerChanges[20] = 1;
    const auto contents = std::make_shared<const Bytes>("root::0:0:::");
    for (const Row& row :
         {Row{"version 2 was left by a newer Veraqua", newer}, Row{"57 bytes, but its counts ask for", nameTooLong},
          Row{"a negative length at byte", negativeName}, Row{"more bytes than its changes have", fewerChanges},
          Row{"\"../passwd\" can't be the name", JournalBytes({{"../passwd", {"../passwd", contents}}})}}) {
        SCOPED_TRACE(row.Says);
        Contents before = untouched_;
        before["veraqua.journal"] = WithChecksum(row.Journal);
        Place(before);
        EXPECT_THAT(FailureOfOpen(Access::Write), HasSubstr(row.Says));
        EXPECT_EQ(OnDisk(), before);
    }
}

}  // namespace veraqua::files
