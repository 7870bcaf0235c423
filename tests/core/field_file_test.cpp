#include <array>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "core/field_in_work.h"
#include "core/state.h"
#include "tests/support/builders.h"
#include "tests/support/bytes.h"
#include "tests/support/data_directory.h"
#include "tests/support/failure.h"

namespace veraqua {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

/// An ordinary field with fixed soil, two Capacity and three Content zones, two days and something in every list.
/// Day 730426 (hexadecimal 0B253A) is 01-01-2000; the singles are exact in binary.
const std::string OrdinaryBytes =
    Hex("01 00") + "NORTH 40  MAIZE GRAIN  06" +                        //   0 last day row; field ID, crop, station
    Hex("01 00  02 00  3A 25 0B 00") +                                  //  27 tops 1 and 2; planted 730426
    Hex("00 00 80 3E  00 00 C0 3F  00 00 20 41  00 00 F0 41") +         //  35 roots 0.25 to 1.5; thresholds 10 and 30
    Hex("6C 04  A0 00  00 80 E3 44") +                                  //  51 harvest at 1132, season 160; Kc span 1820
    Hex("00 00 80 3F  00 00 00 BF  00 00 80 3E") +                      //  59 1, -0.5, 0.25
    Hex("00 00 00 BE  00 00 00 40  00 00 80 C0") +                      //  71 -0.125, 2, -4
    Hex("32 00  00 00 40 3F  00 00 00 3F  00 00 20 3F") +               //  83 MAD 50, eff. 0.75; intervals 0.5, 0.625
    Hex("8C 00  96 00  5A 00  64 00  FB FF") + std::string(24, '\0') +  //  97 Capacity; Content 90, 100, -5; Bounds
    Hex("00 00 28 42  00 00 00 00  00 00 80 3E  00 00 00 00  04 00") +  // 131 row 0: 42, 0, 0.25, 0, 4
    Hex("00 00 12 42  00 00 40 41  00 00 00 3F  00 00 C0 40  05 00") +  // 149 row 1: 36.5, 12, 0.5, 6, 5
    Hex("01 00  02 00  01 00  01 00  01 00  02 00  03 00") +            // 167 counts
    Hex("3B 25 0B 00  64 00  6E 00  78 00") +                           // 181 History: 730427, 100, 110, 120
    Hex("3A 25 0B 00  03 00  3B 25 0B 00  04 00") +                     // 191 Leaching: 3, 4
    Hex("3B 25 0B 00  37 00  3B 25 0B 00  00 00 00 3F") +               // 203 MAD changes: 55; Efficiency changes: 0.5
    Hex("3A 25 0B 00  29 00") +                                         // 217 Depletion changes: 41
    Hex("3A 25 0B 00  0C 00  3B 25 0B 00  00 00") +                     // 223 Rain: 12, 0
    Hex("3A 25 0B 00  01 00  3B 25 0B 00  2C 01  3C 25 0B 00  02 00");  // 235 Irrigation: 1, 300, 2

FieldFile OrdinaryFile() {
    FieldFile file = AField()
                         .Roots(0.25F, 1.5F)
                         .PlantedOn(730426)
                         .Efficiency(0.75F)
                         .Zones(3, 0.625F)
                         .Capacity({140, 150, 0})
                         .Content({90, 100, -5})
                         .Days({{42, 0, 0.25F, 0, 4}, {36.5F, 12, 0.5F, 6, 5}});
    file.Field.CapacityTop = 1;
    file.Field.CapacityInterval = 0.5F;
    file.Field.KcSine = {1, -0.5F, 0.25F, -0.125F, 2, -4};
    file.Lists.History = {{730427, {100, 110, 120}}};
    file.Lists.Leaching = {{730426, 3}, {730427, 4}};
    file.Lists.MadChanges = {{730427, 55}};
    file.Lists.EfficiencyChanges = {{730427, 0.5F}};
    file.Lists.DepletionChanges = {{730426, 41}};
    file.Lists.Rain = {{730426, 12}, {730427, 0}};
    file.Lists.Irrigation = {{730426, 1}, {730427, 300}, {730428, 2}};
    return file;
}

/// A hay field with layers of 0.25, 0.5 and 0.5 m, on its first day, with two cuttings.
const std::string HayBytes =
    Hex("00 00") + "CREEK     @ALFALFA     15" +                          //   0 last day row; field ID, crop, station
    Hex("02 00  01 00  48 25 0B 00  3A 25 0B 00") +                       //  27 tops; cut on 730440; planted
    Hex("00 00 A0 3F  00 00 A0 40  00 00 F0 41  EA 01  04 01  07 00") +   //  39 1.25; 5, 30; 490, 260, drying 7
    Hex("00 00 00 3F  00 00 80 3F  00 00 C0 3F  00 00 00 40") +           //  57 0.5, 1, 1.5, 2
    Hex("00 00 20 40  00 00 40 40  00 00 60 40  00 00 80 40") +           //  73 2.5, 3, 3.5, 4
    Hex("00 00 90 40  00 00 A0 40  00 00 B0 40  00 00 C0 40") +           //  89 4.5, 5, 5.5, 6
    Hex("00 00 D0 C0  32 00  41 00  00 00 40 3F") + std::string(8, '\0')  // 105 -6.5; 50, critical 65, 0.75; intervals
    + Hex("8C 00  96 00  A0 00  5A 00  64 00") +                          // 125 Capacity 140, 150, 160; Content 90, 100
    Hex("00 00 80 3E  00 00 00 3F  00 00 00 3F") + std::string(12, '\0')  // 135 Bounds
    + Hex("00 00 E1 42  00 00 00 00  00 00 A0 3F  00 00 00 00  04 00") +  // 159 row 0: 112.5, 0, 1.25, 0, 4
    std::string(12, '\0') + Hex("02 00  00 00") +                         // 177 counts
    Hex("3B 25 0B 00  01 00  48 25 0B 00  02 00");                        // 193 Cuttings 1 and 2

FieldFile HayFile() {
    FieldFile file = AField()
                         .Hay()
                         .Station("15")
                         .PlantedOn(730426)
                         .Efficiency(0.75F)
                         .Layers({0.25F, 0.5F, 0.5F})
                         .Capacity({140, 150, 160})
                         .Content({90, 100, 0})
                         .Days({{112.5F, 0, 1.25F, 0, 4}})
                         .Cutting(730427, 1)
                         .Cutting(730440, 2);
    file.Hay.ContentTop = 1;
    file.Hay.NextCutDay = 730440;
    file.Hay.RootMax = 1.25F;
    file.Hay.Curve = {0.5F, 1, 1.5F, 2, 2.5F, 3, 3.5F, 4, 4.5F, 5, 5.5F, 6, -6.5F};
    return file;
}

TEST(FieldFiles, TheBytesAreReadAndWrittenAsTheyStandAndAFileCutAtAnyByteIsAFailure) {
    for (const auto& [bytes, file] : {std::pair(OrdinaryBytes, OrdinaryFile()), std::pair(HayBytes, HayFile())}) {
        EXPECT_EQ(FieldFileBytes(file), bytes);
        for (std::size_t size = 0; size < bytes.size(); ++size)
            EXPECT_FAILURE(ParseFieldFile(bytes.substr(0, size), file.IsHay, "field7.dat"), StartsWith("field7.dat: "));
        const FieldFile read = ParseFieldFile(bytes + std::string(19, '\xFF'), file.IsHay, "field7.dat");
        EXPECT_EQ(FieldFileBytes(read), bytes);
        EXPECT_FAILURE(ParseFieldFile(bytes, !file.IsHay, "field7.dat"), HasSubstr("not of the kind"));
    }
}

TEST(FieldFiles, WhatCannotBeTrueIsAFailureThatNamesFileAndPlace) {
    for (const auto& [offset, patch, says] : std::vector<std::tuple<std::size_t, std::string, std::string>>{
             {0, Hex("FF FF"), "-1 as the last day row at byte 0"},
             {0, Hex("FF 7F"), "253 bytes, but its counts ask for 589955"},  // 131 + 32768 rows of 18
             {27, Hex("15 00"), "highest soil zone is 21"},
             {85, Hex("00 00 C0 7F"), "not finite at byte 85"},
             {179, Hex("00 80"), "-32768 records in a list at byte 179"},
             {181, Hex("FF FF FF FF"), "impossible day -1"},
             {247, Hex("FF FF FF 7F"), "impossible day 2147483647"}})
        EXPECT_FAILURE(ParseFieldFile(Patched(OrdinaryBytes, offset, patch), false, "field7.dat"),
                       AllOf(StartsWith("field7.dat: "), HasSubstr(says)));
    FieldFile file = AField();  // counts are 16 bits, signed
    file.Days.resize(32769);
    EXPECT_FAILURE(FieldFileBytes(file), HasSubstr("32768 day rows"));
    file.Days.resize(1);
    file.Lists.Rain.resize(32768);
    EXPECT_FAILURE(FieldFileBytes(file), HasSubstr("32768 records in a list"));
}

/// Planted on day 1000, 11 rows; profiles of 10 up to 1003 and of 20 up to 1007, 30 since.
TEST(FieldFiles, ADayIsMovedIntoTheRowsAndTakesTheProfileOfItsTime) {
    FieldFile file = AField().PlantedOn(1000).Days(11).Content(30);
    file.Lists.History = {{1003, {10}}, {1007, {20}}};
    for (const auto& [asked, day, content] : std::vector<std::array<int, 3>>{
             {0, 1000, 10}, {1002, 1002, 10}, {1003, 1003, 20}, {1006, 1006, 20}, {1007, 1007, 30}, {1011, 1010, 30}}) {
        const DayView view = AsOf(file, asked);
        EXPECT_EQ(view.Day, day) << asked;
        EXPECT_EQ(view.Row, static_cast<std::size_t>(day - 1000)) << asked;
        EXPECT_EQ(view.Content[0], content) << asked;
    }
}

using FieldFilesOnDisk = DirectoryTest;

TEST_F(FieldFilesOnDisk, AMissingFileIsToldAndADamagedOneIsAFailureAndStays) {
    AField().StoreAt(2);
    ASSERT_TRUE(SelectField(User, 2));
    Directory.Delete("field2.dat");
    EXPECT_FALSE(SelectField(User, 2));
    EXPECT_THAT(User.Texts(), ElementsAre("This is not good. :-( Your field file is missing...  Select another."));
    const std::string damaged = OrdinaryBytes.substr(0, 200);
    Directory.Put("FIELD2.DAT", damaged);
    EXPECT_FAILURE(SelectField(User, 2), StartsWith("field2.dat (field NORTH 40): "));
    EXPECT_FAILURE(LoadFieldFile(2), StartsWith("field2.dat (field NORTH 40): "));
    EXPECT_EQ(Directory.Raw("FIELD2.DAT"), damaged);
}

TEST_F(FieldFilesOnDisk, OfAFieldThatIsPutToWorkNothingIsKnownFromTheOneBefore) {
    AField().StoreAt(2);
    State.MadExceededDay = State.DriedOutDay = JulianFromDate(6, 1, 2003);
    ASSERT_TRUE(SelectField(User, 2));
    EXPECT_EQ(State.MadExceededDay, 0);
    EXPECT_EQ(State.DriedOutDay, 0);
}

}  // namespace
}  // namespace veraqua
