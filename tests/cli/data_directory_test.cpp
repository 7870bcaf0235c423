#include <unistd.h>

#include <limits>

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
    for (const char* command : {"init", "field update", "weather default 06 1-1-2003 1-2-2003",
                                "weather import 06 text", "weather fetch 06", "weather check 06 2003"}) {
        const Ran ran = Run(command);
        EXPECT_EQ(ran.Err, held) << command;
        EXPECT_EQ(ran.Out, "") << command;
        EXPECT_EQ(ran.Status, 1) << command;
    }
    for (const char* command : {"crops", "stations", "fields", "field show 1", "field days 2", "weather show 06 2003",
                                "schedule", "report 1"}) {
        const Ran ran = Run(command);
        EXPECT_EQ(ran.Err, "") << command;
        EXPECT_EQ(ran.Status, 0) << command;
    }
    EXPECT_EQ(Everything(), before);
    files::Close();
    EXPECT_EQ(Run("field update").Status, 0);
    EXPECT_NE(Everything(), before);
}

TEST_F(Directories, WithADamagedFileStayAsTheyAre) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const std::string notANumber(reinterpret_cast<const char*>(&nan), sizeof nan);
    const std::string field = Directory.Raw("field1.dat");
    const std::string weather = Directory.Raw("weather06.03");
    constexpr std::size_t lastDay = 8106;  // 193 records of 42 bytes stand before it
    const std::string import = "weather import 06 " + Directory.Path() + "crop.dat";
    struct Damage {
        std::string File;
        std::string Bytes;
        std::string Command;
    };
    for (const Damage& row : std::vector<Damage>{
             {"field1.dat", field.substr(0, field.size() - 1), "field show 1"},
             {"field1.dat", Patched(field, 137, notANumber), "field days 1"},  // its first day's water
             {"field1.dat", "", "report 1"},
             {"stat.dat", std::string(4141, '\0'), "fields"},  // 101 rows
             {"stat.dat", Patched(Directory.Raw("stat.dat"), 23, Hex("FF FF FF FF")), "field update"},
             {"updates.dat", std::string(399, '\0'), "schedule"},
             {"crop.dat", "1\nMAIZE, thirty\n", "crops"},
             {"weathdef.dat", "three, 0\n", "stations"},
             {"weathdef.dat", "1, 0\nDAVIS\nTELMORAN\n38.5, 18\n23.3, -9.9, x\n", "weather check 06 2003"},
             {"weather06.03", Patched(weather, 2, notANumber), "weather show 06 2003"},
             {"weather06.03", Patched(weather, lastDay, Hex("E7 03")), "weather check 06 2003"},  // day 999
             {"weather06.03", Patched(weather, lastDay + 6, notANumber), import}}) {
        SCOPED_TRACE(row.File + ", " + row.Command);
        const std::string whole = Directory.Raw(row.File);
        Directory.Put(row.File, row.Bytes);
        const auto before = Everything();
        const Ran ran = Run(row.Command, {"--json"});
        EXPECT_EQ(ran.Status, 3);
        EXPECT_EQ(ran.Out, "");
        EXPECT_THAT(ran.Err, testing::AllOf(StartsWith("Veraqua: "), HasSubstr(row.File)));
        EXPECT_EQ(Everything(), before);
        Directory.Put(row.File, whole);
    }
    EXPECT_EQ(Run("field update").Status, 0);
}

TEST_F(Directories, WithADamagedFieldAreUpdatedInTheOtherRows) {
    Directory.Put("field1.dat", "short");
    const Ran ran = Run("field update", {"--json"});
    EXPECT_EQ(ran.Status, 3);
    EXPECT_THAT(ran.Err, StartsWith("Veraqua: field1.dat: "));
    const Json rows = Json::parse(ran.Out);
    EXPECT_EQ(rows.at(0).at("last_day").at("date"), "2003-05-01");
    EXPECT_EQ(rows.at(1).at("last_day").at("date"), "2003-07-13");
    EXPECT_EQ(Directory.Raw("field1.dat"), "short");
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
    EXPECT_EQ(RunCli({"--data", home, "fields"}, byHome).Status, 1);
}

TEST_F(Directories, OfTheSampleAreTheSameToTheByte) {
    const std::string first = Directory.Path() + "first";
    const std::string second = Directory.Path() + "sec\xFFond";  // a name that is no UTF-8
    for (const std::string& path : {first, second}) {
        const Ran ran = RunCli({"--data", path, "--today", "10-05-2025", "--json", "init", "--sample"});
        EXPECT_EQ(ran.Status, 0);
        EXPECT_EQ(ran.Err, "");
        EXPECT_GT(Json::parse(ran.Out).at("created").size(), 20U);
    }
    for (const auto& entry : std::filesystem::directory_iterator(first)) {
        const std::string name = entry.path().filename();
        EXPECT_EQ(Directory.Raw("first/" + name), Directory.Raw("sec\xFFond/" + name)) << name;
    }
    const Ran again = RunCli({"--data", first, "init", "--sample"});
    EXPECT_EQ(again.Status, 1);
    EXPECT_EQ(again.Err, "Veraqua: There are fields in this directory. The sample season needs one without fields.\n");
}

}  // namespace
}  // namespace veraqua
