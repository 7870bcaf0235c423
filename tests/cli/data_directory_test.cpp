#include <unistd.h>

#include <array>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "tests/cli/program.h"
#include "tests/support/bytes.h"

namespace veraqua {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

using Json = nlohmann::json;
using Directories = CliTest;

TEST_F(Directories, KeepWritersOutWhileAnotherProgramWritesAndReadersNot) {
    Directory.Reopen();  // this program holds it now
    const std::string held = "Veraqua: Another Veraqua (process " + std::to_string(getpid()) + ") is working in " +
                             Directory.Path() + ". Close it first.\n";
    const auto before = Everything();
    for (const auto& [command, status] :
         std::vector<std::pair<std::string, int>>{{"init", 1},
                                                  {"field update", 1},
                                                  {"weather default 06 1-1-2003 1-2-2003", 1},
                                                  {"weather import 06 text", 1},
                                                  {"weather fetch 06", 1},
                                                  {"weather check 06 2003", 1},
                                                  {"crops", 0},
                                                  {"fields", 0},
                                                  {"field days 2", 0},
                                                  {"weather show 06 2003", 0},
                                                  {"report 1", 0}}) {
        const Ran ran = Run(command);
        EXPECT_EQ(ran.Err, status == 0 ? "" : held) << command;
        EXPECT_EQ(ran.Status, status) << command;
    }
    EXPECT_EQ(Everything(), before);
    files::Close();
    EXPECT_EQ(Run("field update").Status, 0);
    EXPECT_NE(Everything(), before);
}

TEST_F(Directories, WithADamagedFileStayAsTheyAre) {
    const std::string field = Directory.Raw("field1.dat");
    const std::string weather = Directory.Raw("weather06.03");
    constexpr std::size_t lastDay = 8106;  // 193 records of 42 bytes stand before it
    const std::string import = "weather import 06 " + Directory.Path() + "crop.dat";
    for (const auto& [file, bytes, command] : std::vector<std::array<std::string, 3>>{
             {"field1.dat", field.substr(0, field.size() - 1), "field show 1"},
             {"stat.dat", Patched(Directory.Raw("stat.dat"), 23, Hex("FF FF FF FF")), "field update"},
             {"updates.dat", std::string(399, '\0'), "schedule"},
             {"crop.dat", "1\nMAIZE, thirty\n", "crops"},
             {"weathdef.dat", "1, 0\nDAVIS\nTELMORAN\n38.5, 18\n23.3, -9.9, x\n", "weather check 06 2003"},
             {"weather06.03", Patched(weather, lastDay, Hex("E7 03")), "weather check 06 2003"},  // day 999
             {"weather06.03", Patched(weather, lastDay + 6, Hex("00 00 C0 7F")), import}}) {
        SCOPED_TRACE(file + ", " + command);
        const std::string whole = Directory.Raw(file);
        Directory.Put(file, bytes);
        const auto before = Everything();
        const Ran ran = Run(command, {"--json"});
        EXPECT_EQ(ran.Status, 3);
        EXPECT_EQ(ran.Out, "");
        EXPECT_THAT(ran.Err, testing::AllOf(StartsWith("Veraqua: "), HasSubstr(file)));
        EXPECT_EQ(Everything(), before);
        Directory.Put(file, whole);
    }
}

TEST_F(Directories, WithADamagedFieldAreUpdatedInTheOtherRows) {
    Directory.Put("field1.dat", "short");
    const Ran ran = Run("field update", {"--json"});
    EXPECT_EQ(ran.Status, 3);
    EXPECT_THAT(ran.Err, StartsWith("Veraqua: field1.dat: "));
    const Json rows = Json::parse(ran.Out);
    EXPECT_EQ(rows.at(0).at("last_day").at("date"), "2003-05-01");
    EXPECT_EQ(rows.at(1).at("last_day").at("date"), "2003-07-13");
    EXPECT_EQ(Run("field update 2 7").Status, 1);
    EXPECT_EQ(Run("field update 7 1").Status, 3);
}

TEST_F(Directories, AreFoundWhereTheDesktopFindsThem) {
    const std::string home = Directory.Path() + "home";
    const std::vector<std::string> byXdg{"XDG_DATA_HOME=" + home + "/.local/share", "HOME=/nowhere"};
    const std::vector<std::string> byHome{"HOME=" + home};
    const std::string lower = home + "/.local/share/veraqua";
    const std::string upper = home + "/.local/share/Veraqua";

    const Ran none = RunCli({"stations"}, byXdg);
    EXPECT_EQ(none.Status, 1);
    EXPECT_THAT(none.Err, HasSubstr("There is no data directory (one with weathdef.dat) at " + lower + " or " + upper));
    EXPECT_FALSE(std::filesystem::exists(home));

    const std::string created =
        R"("created": ["VERAGUIDE.doc", "crop.dat", "stat.dat", "updates.dat", "weathdef.dat"]})";
    EXPECT_EQ(RunCli({"--json", "init"}, byHome).Out, R"({"data": ")" + lower + R"(", )" + created + "\n");
    EXPECT_EQ(RunCli({"--json", "init"}, byXdg).Out, R"({"data": ")" + lower + R"(", "created": []})" + "\n");
    std::filesystem::rename(lower, upper);
    std::filesystem::create_directory(lower);  // without its marker it isn't one, and stays empty
    for (const auto& environment : {byXdg, byHome})
        EXPECT_EQ(RunCli({"weather", "check", "06", "2003"}, environment).Status, 0);
    EXPECT_TRUE(std::filesystem::is_empty(lower));

    Directory.Put("home/.local/share/veraqua/weathdef.dat", "1, 0\nLOWER\n");
    EXPECT_THAT(RunCli({"stations"}, byHome).Out, HasSubstr("LOWER"));
    EXPECT_THAT(RunCli({"--data", upper, "stations"}, byHome).Out, HasSubstr("Arvendale"));
}

TEST_F(Directories, OfTheSampleAreMadeOnce) {
    const std::string path = Directory.Path() + "sec\xFFond";  // a name that is no UTF-8
    const Ran ran = RunCli({"--data", path, "--today", "10-05-2025", "--json", "init", "--sample"});
    EXPECT_EQ(ran.Status, 0);
    EXPECT_EQ(ran.Err, "");
    EXPECT_GT(Json::parse(ran.Out).at("created").size(), 20U);
    const Ran again = RunCli({"--data", path, "init", "--sample"});
    EXPECT_EQ(again.Status, 1);
    EXPECT_EQ(again.Err, "Veraqua: There are fields in this directory. The sample season needs one without fields.\n");
}

}  // namespace
}  // namespace veraqua
