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

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr std::string_view Weathdef = "2,1\nArvendale\nBrannock Ford\nTELMORAN\nTELMORAN\n";

/// Two rows, their numbers written out by hand; 730426 (hexadecimal 0B253A) is 01-01-2000.
std::string TwoStatRows() {
    return "NORTH 40  MAIZE GRAIN  " +               // field ID, crop
           Hex("3A 25 0B 00  2B 00  32 00") +        // last day 730426; depletion 43, MAD 50
           Hex("3F 25 0B 00  00 00 00 00  28 00") +  // irrigate on 730431; no cutting; 40 mm
           " CREEK \xF1  @ALFALFA     " +            // row 2: an ID with a blank before it and a letter of Latin-1
           Hex("3B 25 0B 00  F9 FF  37 00") +        // 730427; depletion -7, MAD 55
           Hex("00 00 00 00  40 25 0B 00  FE FF");   // none predicted; cut on 730432; not required
}
std::string TwoUpdates() { return Hex("00 00 00 00  39 25 0B 00"); }  // never; 730425

StatRecord FirstRow() {
    return {
        FixedText<10>::FromAscii("NORTH 40"), FixedText<13>::FromAscii("MAIZE GRAIN"), 730426, 43, 50, 730431, 0, 40};
}

StatRecord SecondRow() {
    return {FixedText<10>::FromAscii(" CREEK \xF1"),
            FixedText<13>::FromAscii("@ALFALFA"),
            730427,
            -7,
            55,
            0,
            730432,
            AmountNotRequired};
}

struct FieldDirectory : DirectoryTest {
    void PutTwoRows() const {
        Directory.Put("stat.dat", TwoStatRows());
        Directory.Put("updates.dat", TwoUpdates());
    }
};

TEST_F(FieldDirectory, TheBytesOfBothFilesAreReadAndWrittenAsTheyStand) {
    PutTwoRows();
    LoadFieldDirectory();
    EXPECT_EQ(State.Stat[1], FirstRow());
    EXPECT_EQ(State.Stat[2], SecondRow());
    EXPECT_EQ(State.Stat[3], StatRecord{});
    EXPECT_EQ(State.Updates[1], 0);
    EXPECT_EQ(State.Updates[2], 730425);

    // The same rows, written one after the other into files that have none: each extends them.
    Directory.Put("stat.dat", "");
    Directory.Put("updates.dat", "");
    SaveFieldRow(User, 2);
    EXPECT_EQ(Directory.Raw("stat.dat"), std::string(41, '\0') + TwoStatRows().substr(41));
    EXPECT_EQ(Directory.Raw("updates.dat"), TwoUpdates());
    SaveFieldRow(User, 1);
    EXPECT_EQ(Directory.Raw("stat.dat"), TwoStatRows());
    EXPECT_EQ(Directory.Raw("updates.dat"), TwoUpdates());
}

TEST_F(FieldDirectory, AFirstStartMakesBothFiles) {
    Directory.Put("weathdef.dat", Weathdef);
    State.EnglishUnits = false;
    State.FieldCount = State.CurrentField = 7;
    State.Stat[7].LastDay = 730426;
    StartUp(User);
    EXPECT_EQ(Directory.Raw("stat.dat"), std::string(4100, '\0'));
    EXPECT_EQ(Directory.Raw("updates.dat"), std::string(400, '\0'));
    EXPECT_EQ(State.FieldCount + State.CurrentField, 0);
    EXPECT_THAT(RowsInUse(), IsEmpty());
    EXPECT_TRUE(State.EnglishUnits);
    EXPECT_EQ(State.DisplayDays, 12);
    EXPECT_EQ(State.TodayJulian, User.Today);
    EXPECT_EQ(StationNameOf("02"), "Brannock Ford");
    for (const std::string code : {"00", "03", "  ", "-1", "x"}) EXPECT_EQ(StationNameOf(code), "UNKNOWN") << code;
    // A later start of the directory alone, as after the last deletion, leaves what the user has set.
    State.EnglishUnits = false;
    StartDirectory();
    EXPECT_FALSE(State.EnglishUnits);
}

TEST_F(FieldDirectory, ADamagedStationListIsAFailureAndALostUpdatesFileCostsOnlyTheDepletionDates) {
    for (const std::string text : {"", "2,1\nArvendale\n", "two\n", "-1,6\n"}) {
        Directory.Put("weathdef.dat", text);
        EXPECT_FAILURE(StartUp(User), StartsWith("weathdef.dat: ")) << text;
    }
    Directory.Delete("weathdef.dat");
    EXPECT_FAILURE(StartUp(User), StartsWith("weathdef.dat: "));

    PutTwoRows();
    Directory.Delete("updates.dat");
    State.Updates[2] = 730425;
    LoadFieldDirectory();
    EXPECT_EQ(State.Stat[2], SecondRow());
    EXPECT_EQ(State.Updates[2], 0);
    EXPECT_EQ(Directory.Raw("updates.dat"), std::string(8, '\0'));
}

TEST_F(FieldDirectory, ABrokenTailIsIgnoredAndTheRowsAboveAreCleared) {
    Directory.Put("STAT.DAT", TwoStatRows() + std::string(40, 'x'));
    Directory.Put("Updates.dat", TwoUpdates() + "xyz");
    State.Stat[3] = FirstRow();
    State.Updates[3] = 730425;
    LoadFieldDirectory();
    EXPECT_EQ(State.Stat[2], SecondRow());
    EXPECT_EQ(State.Stat[3], StatRecord{});
    EXPECT_EQ(State.Updates[3], 0);

    // A new row takes the place of the tail, in the file that is there.
    State.Stat[3] = FirstRow();
    SaveFieldRow(User, 3);
    EXPECT_EQ(Directory.Raw("STAT.DAT"), TwoStatRows() + TwoStatRows().substr(0, 41));
    EXPECT_EQ(Directory.Raw("Updates.dat"), TwoUpdates() + std::string(4, '\0'));
    EXPECT_FALSE(Directory.Has("stat.dat"));
}

TEST_F(FieldDirectory, ImpossibleFilesAreFailuresAndTheStateStays) {
    PutTwoRows();
    LoadFieldDirectory();
    const std::string negative = Hex("FF FF FF FF");
    for (const auto& [stat, updates, says] : std::vector<std::array<std::string, 3>>{
             {Patched(TwoStatRows(), 23, negative), TwoUpdates(), "stat.dat: row 1 has the impossible day number -1"},
             {Patched(TwoStatRows(), 41 + 31, Hex("01 84 D7 17")), TwoUpdates(),
              "row 2 has the impossible day number 400000001"},
             {TwoStatRows(), Patched(TwoUpdates(), 4, negative), "updates.dat: row 2"},
             {TwoStatRows(), TwoUpdates().substr(0, 7), "updates.dat: 7 bytes"},
             {std::string(std::size_t{101} * 41, '\0'), std::string(404, '\0'), "stat.dat: 101 rows"}}) {
        Directory.Put("stat.dat", stat);
        Directory.Put("updates.dat", updates);
        EXPECT_FAILURE(LoadFieldDirectory(), HasSubstr(says));
        EXPECT_EQ(State.Stat[2], SecondRow());
        EXPECT_EQ(Directory.Raw("stat.dat") + Directory.Raw("updates.dat"), stat + updates);
    }
}

TEST_F(FieldDirectory, ARowWhoseFieldFileIsLostLeavesAGap) {
    AField().PlantedOn(731001).StoreAt(1);
    AField().PlantedOn(739000).Id("LOST").StoreAt(2);
    AField().PlantedOn(731003).Hay().StoreAt(3);
    State.Updates[2] = 739000;
    SaveFieldRow(User, 2);
    const std::string stat = Directory.Raw("stat.dat");
    Directory.Delete("field2.dat");
    Directory.Put("field4.dat", "a row with last day 0 is not looked for");
    Directory.Reopen();

    StartDirectory();
    EXPECT_EQ(State.FieldCount, 2);
    EXPECT_THAT(RowsInUse(), ElementsAre(1, 3));
    EXPECT_EQ(LowestFreeRow(), 2);
    EXPECT_EQ(State.Updates[2], 0);
    EXPECT_EQ(State.LatestLastDay, 739000) << "the lost row counts";
    EXPECT_EQ(Directory.Raw("stat.dat"), stat) << "cleared in memory only";

    for (int row = 1; row <= MaxFields; ++row) State.Stat[row].LastDay = 1;
    EXPECT_EQ(LowestFreeRow(), 0);
}

TEST_F(FieldDirectory, ASavedRowNeedsBothFilesAndARow) {
    PutTwoRows();
    LoadFieldDirectory();
    for (const int row : {0, 101})
        EXPECT_FAILURE(SaveFieldRow(User, row), AllOf(HasSubstr("1 to 100"), HasSubstr(std::to_string(row))));
    for (const std::string name : {"updates.dat", "stat.dat"}) {
        Directory.Delete(name);
        EXPECT_THROW(SaveFieldRow(User, 1), ProgramEnded);
        EXPECT_EQ(User.Texts().back(), "Need to create " + name + " - exiting system.");
        EXPECT_FALSE(Directory.Has(name));
    }
}

/// A row and its depletion date are true together, wherever the disk gives up: else the next start would find one file
/// shorter than the other.
TEST_F(FieldDirectory, ASavedRowIsInBothFilesOrInNone) {
    bool refused = true;
    for (int n = 1; refused; ++n) {
        PutTwoRows();
        Directory.Reopen();
        LoadFieldDirectory();
        State.Stat[3] = FirstRow();
        State.Updates[3] = 730425;
        files::FailingDisk disk(n, ENOSPC, true);
        files::InstallDisk(&disk);
        try {
            SaveFieldRow(User, 3);
            refused = false;
        } catch (const RunTimeFailure&) {}
        files::InstallDisk(nullptr);
        Directory.Reopen();
        LoadFieldDirectory();
        const bool isNew = State.Stat[3] == FirstRow();
        EXPECT_EQ(Directory.Raw("stat.dat"), TwoStatRows() + (isNew ? TwoStatRows().substr(0, 41) : "")) << n;
        EXPECT_EQ(Directory.Raw("updates.dat"), TwoUpdates() + (isNew ? Hex("39 25 0B 00") : "")) << n;
        EXPECT_TRUE(isNew || refused) << n;
    }
}

}  // namespace

}  // namespace veraqua
