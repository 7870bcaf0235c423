#include <unistd.h>

#include <array>

#include <gmock/gmock.h>

#include "tests/cli/program.h"
#include "tests/support/bytes.h"

namespace veraqua {
namespace {

// Typed but empty is not absent: no other directory stands in.
TEST_F(CliTest, RefuseAnEmptyNameOfTheDirectory) { EXPECT_EQ(RunCli({"--data", "", "fields"}).Status, 1); }

TEST_F(CliTest, KeepWritersOutWhileAnotherProgramWritesAndReadersNot) {
    Directory.Reopen();  // this program holds it now
    const std::string held = "Veraqua: Another Veraqua (process " + std::to_string(getpid()) + ") is working in " +
                             Directory.Path() + ". Close it first.\n";
    const auto before = Everything();
    const std::map<std::string, int> commands = {{"init", 1},   {"field update", 1}, {"weather import 06 text", 1},
                                                 {"fields", 0}, {"report 1", 0},     {"weather check 06 2003", 1}};
    for (const auto& [command, status] : commands) {
        const Ran ran = Run(command);
        EXPECT_EQ(ran.Err, status == 0 ? "" : held) << command;
        EXPECT_EQ(ran.Status, status) << command;
    }
    EXPECT_EQ(Everything(), before);
}

TEST_F(CliTest, WithADamagedFileStayAsTheyAre) {
    const std::string field = Directory.Raw("field1.dat");
    const std::string weather = Directory.Raw("weather06.03");
    constexpr std::size_t lastDay = 8106;  // 193 records of 42 bytes stand before it
    const std::string import = "weather import 06 " + Directory.Path() + "crop.dat";
    for (const auto& [file, bytes, command] : std::vector<std::array<std::string, 3>>{
             {"field1.dat", field.substr(0, field.size() - 1), "field show 1"},
             {"field1.dat", "short", "field update"},
             {"stat.dat", Patched(Directory.Raw("stat.dat"), 23, Hex("FF FF FF FF")), "field update"},
             {"weathdef.dat", "1, 0\nDAVIS\nTELMORAN\n38.5, 18\n23.3, -9.9, x\n", "weather check 01 2003"},
             {"weather06.03", Patched(weather, lastDay + 6, Hex("00 00 C0 7F")), import}}) {
        SCOPED_TRACE(command);
        SCOPED_TRACE(file);
        const std::string whole = Directory.Raw(file);
        Directory.Put(file, bytes);
        auto expected = Everything();
        const Ran ran = Run(command, {"--json"});
        EXPECT_EQ(ran.Status, 3);
        EXPECT_THAT(ran.Err, testing::AllOf(testing::StartsWith("Veraqua: "), testing::HasSubstr(file)));
        if (bytes == "short") {  // the other row is updated, and has looked for the weather of the years to come
            for (const char* name : {"field2.dat", "stat.dat"}) expected[name] = Directory.Raw(name);
            for (const char* year : {"04", "05", "06", "07"}) expected["weather06." + std::string(year)] = "";
        }
        EXPECT_EQ(Everything(), expected);
        Directory.Put(file, whole);
    }
}

}  // namespace
}  // namespace veraqua
