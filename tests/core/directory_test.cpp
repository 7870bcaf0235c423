#include "core/directory.h"

#include <array>
#include <cerrno>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "core/field_file.h"
#include "core/state.h"
#include "tests/support/builders.h"
#include "tests/support/bytes.h"
#include "tests/support/data_directory.h"
#include "tests/support/failing_disks.h"
#include "tests/support/failure.h"

namespace veraqua {
namespace {

using testing::ElementsAre;

/// Two rows, their numbers written out by hand; 730426 (hexadecimal 0B253A) is 01-01-2000.
const std::string FirstBytes = "NORTH 40  MAIZE GRAIN  " +               // field ID, crop
                               Hex("3A 25 0B 00  2B 00  32 00") +        // last day 730426; depletion 43, MAD 50
                               Hex("3F 25 0B 00  00 00 00 00  28 00");   // irrigate on 730431; no cutting; 40 mm
const std::string SecondBytes = " CREEK \xF1  @ALFALFA     " +           // a blank in front and a letter of Latin-1
                                Hex("3B 25 0B 00  F9 FF  37 00") +       // 730427; depletion -7, MAD 55
                                Hex("00 00 00 00  40 25 0B 00  FE FF");  // never; cut on 730432; not required
const std::string BothRows = FirstBytes + SecondBytes;
const std::string BothUpdates = Hex("00 00 00 00  39 25 0B 00");  // never; 730425

using Id = FixedText<10>;
using Crop = FixedText<13>;
const StatRecord FirstRow{Id::FromAscii("NORTH 40"), Crop::FromAscii("MAIZE GRAIN"), 730426, 43, 50, 730431, 0, 40};
const StatRecord SecondRow{Id::FromAscii(" CREEK \xF1"), Crop::FromAscii("@ALFALFA"), 730427, -7, 55, 0, 730432, -2};

struct FieldDirectory : DirectoryTest {
    void PutBoth(std::string_view stat = BothRows, std::string_view updates = BothUpdates) const {
        Directory.Put("stat.dat", stat);
        Directory.Put("updates.dat", updates);
    }
    std::array<std::string, 2> Both() const { return {Directory.Raw("stat.dat"), Directory.Raw("updates.dat")}; }
};

TEST_F(FieldDirectory, TheBytesOfBothFilesAreReadAndWrittenAsTheyStandAndABrokenTailIsIgnored) {
    PutBoth(BothRows + std::string(40, 'x'), BothUpdates + "xyz");
    State.Stat[3] = FirstRow;
    LoadFieldDirectory();
    EXPECT_EQ(State.Stat[1], FirstRow);
    EXPECT_EQ(State.Stat[2], SecondRow);
    EXPECT_EQ(State.Stat[3], StatRecord{});
    EXPECT_EQ(State.Updates[2], 730425);
    // A new row takes the place of the tail; in files that are too short it comes after empty ones.
    State.Stat[3] = FirstRow;
    SaveFieldRow(User, 3);
    EXPECT_THAT(Both(), ElementsAre(BothRows + FirstBytes, BothUpdates + std::string(4, '\0')));
    PutBoth("", "");
    SaveFieldRow(User, 2);
    EXPECT_THAT(Both(), ElementsAre(std::string(41, '\0') + SecondBytes, BothUpdates));
}

TEST_F(FieldDirectory, AStartMakesTheFilesThatAreMissing) {
    StartDirectory();
    EXPECT_THAT(Both(), ElementsAre(std::string(4100, '\0'), std::string(400, '\0')));
    PutBoth();
    Directory.Delete("updates.dat");  // which costs only the depletion dates
    LoadFieldDirectory();
    EXPECT_EQ(State.Stat[2], SecondRow);
    EXPECT_THAT(Both(), ElementsAre(BothRows, std::string(8, '\0')));
}

TEST_F(FieldDirectory, ImpossibleFilesAreFailuresAndStay) {
    const std::string negative = Hex("FF FF FF FF");
    for (const auto& [stat, updates, says] : std::vector<std::array<std::string, 3>>{
             {Patched(BothRows, 23, negative), BothUpdates, "stat.dat: row 1 has the impossible day number -1"},
             {Patched(BothRows, 41 + 31, Hex("01 84 D7 17")), BothUpdates, "row 2 has the impossible day number"},
             {BothRows, Patched(BothUpdates, 4, negative), "updates.dat: row 2"},
             {BothRows, BothUpdates.substr(0, 7), "updates.dat: 7 bytes"},
             {std::string(std::size_t{101} * 41, '\0'), std::string(404, '\0'), "stat.dat: 101 rows"}}) {
        PutBoth(stat, updates);
        EXPECT_FAILURE(LoadFieldDirectory(), testing::HasSubstr(says));
        EXPECT_THAT(Both(), ElementsAre(stat, updates));
    }
}

TEST_F(FieldDirectory, ARowWhoseFieldFileIsLostLeavesAGap) {
    AField().PlantedOn(731001).StoreAt(1);
    AField().PlantedOn(739000).Id("LOST").StoreAt(2);
    AField().PlantedOn(731003).Hay().StoreAt(3);
    const std::string stat = Directory.Raw("stat.dat");
    Directory.Delete("field2.dat");
    Directory.Reopen();
    StartDirectory();
    EXPECT_EQ(State.FieldCount, 2);
    EXPECT_THAT(RowsInUse(), ElementsAre(1, 3));
    EXPECT_EQ(LowestFreeRow(), 2);
    EXPECT_EQ(State.LatestLastDay, 739000) << "the lost row counts";
    EXPECT_EQ(Directory.Raw("stat.dat"), stat) << "cleared in memory only";
}

/// Else the next start would find one file shorter than the other.
TEST_F(FieldDirectory, ASavedRowIsInBothFilesOrInNone) {
    bool refused = true;
    for (int n = 1; refused; ++n) {
        PutBoth();
        Directory.Reopen();
        LoadFieldDirectory();
        State.Stat[3] = FirstRow;
        files::FailingDisk disk(n, ENOSPC, true);
        files::InstallDisk(&disk);
        try {
            SaveFieldRow(User, 3);
            refused = false;
        } catch (const RunTimeFailure&) {}
        files::InstallDisk(nullptr);
        Directory.Reopen();
        LoadFieldDirectory();
        const bool isNew = State.Stat[3] == FirstRow;
        EXPECT_THAT(Both(), ElementsAre(BothRows + (isNew ? FirstBytes : ""),
                                        BothUpdates + (isNew ? std::string(4, '\0') : "")))
            << n;
        EXPECT_TRUE(isNew || refused) << n;
    }
}

}  // namespace
}  // namespace veraqua
