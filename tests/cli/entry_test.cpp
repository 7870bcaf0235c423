#include <unistd.h>

#include <array>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "tests/cli/program.h"
#include "tests/support/bytes.h"

namespace veraqua {
namespace {

using testing::HasSubstr;

using Json = nlohmann::ordered_json;

/// Commands that enter and change fields, as words of which one may hold blanks.
struct Entry : CliTest {
    using Words = std::vector<std::string>;

    static Words NewField(const std::string& crop, const std::string& id) {
        return {"field", "new", "--crop", crop, "--id", id, "--plant", "5/1/2003", "--station", "06"};
    }

    /// With JSON asked for.
    Ran Do(Words words, const Words& more = {}, const std::string& answer = "no") const {
        words.insert(words.end(), more.begin(), more.end());
        words.insert(words.begin(),
                     {"--json", "--answer", answer, "--data", Directory.Path(), "--today", "07-15-2003"});
        return RunCli(words);
    }

    Json Show(int row) const { return Json::parse(Do({"field", "show", std::to_string(row)}).Out); }
};

TEST_F(Entry, ANewFieldPassesThroughTheFormsToItsFirstPrediction) {
    // The station's weather ends a day before yesterday: the answer no gives the field up, yes takes default weather.
    const Words layers{"--layer", "12:1.7:1.5", "--layer", "27:1.6:1.4", "--mad", "40", "--efficiency", "80"};
    const Ran refused = Do(NewField("maize grain", "EAST 5"), layers);
    EXPECT_EQ(refused.Status, 1);
    EXPECT_EQ(refused.Err, "Weather Info: Weather data required from 07-14-03 to 07-14-03\n");
    const Ran made = Do(NewField("maize grain", "EAST 5"), layers, "yes");
    EXPECT_EQ(made.Status, 0) << made.Err;
    EXPECT_EQ(Json::parse(made.Out)["last_day"]["date"], "2003-07-14");
    const Json field = Show(3);
    EXPECT_EQ(field["mad"], 40);
    // 1.7 and 1.6 inches per foot; 12 and 27 inches, in metres.
    EXPECT_EQ(field["capacity"], Json::parse("[142, 133]"));
    EXPECT_EQ(field["history"][0]["content"], Json::parse("[125, 117]"));
    EXPECT_EQ(field["bounds"], Json::parse("[0.3048, 0.6858, 0, 0, 0, 0]"));
}

TEST_F(Entry, OfANewFieldThatIsRefusedNothingStays) {
    const Words zones{"--interval", "12", "--zone", "2:1", "--zone", "1.5:1"};
    Run("fields");  // stat.dat and updates.dat are there
    Run("weather default 06 7/14/2003 7/14/2003");
    const auto before = Everything();
    // What the desktop's forms refuse is refused here too; these are the slips of a command line.
    for (const auto& [crop, id, more, said] : std::vector<std::tuple<std::string, std::string, Words, std::string>>{
             {"RICE", "A", zones, "There is no crop \"RICE\""},
             {"POTATO", "north 40", zones, "Duplicate Field ID: "},
             {"POTATO", "A", {"--mad", "0", "--copy-soil", "1"}, "Input Error: "},
             {"POTATO", "A", {"--dry-days", "5", "--copy-soil", "1"}, "for hay only"},
             {"POTATO", "A", {"--copy-soil", "9"}, "There is no field in row 9."},
             {"POTATO", "A", {"--interval", "12", "--zone", "2:1"}, "Water Capacity Input"},
             {"@ALFALFA", "A", zones, "Input Error: "}}) {  // without a critical MAD
        const Ran ran = Do(NewField(crop, id), more);
        EXPECT_EQ(ran.Status, 1) << said;
        EXPECT_THAT(ran.Err, HasSubstr(said));
    }
    EXPECT_EQ(Do(NewField("POTATO", "A")).Status, 2);  // no soil
    EXPECT_EQ(Do(NewField("POTATO", "A"), {"--layer", "12:1.7"}).Status, 2);
    EXPECT_EQ(Everything(), before);
}

TEST_F(Entry, WaterAndCuttingsAreRecordedAndRemoved) {
    EXPECT_EQ(Run("water add 1 rain 5/10/2003 1").Status, 0);
    EXPECT_EQ(Run("--units metric water add 1 irrigation 5/12/2003 30.4").Status, 0);
    EXPECT_EQ(Run("cut add 2 7/1/2003 2").Status, 0);
    EXPECT_EQ(Show(1)["rain"].dump(), R"([{"day":{"julian":731651,"date":"2003-05-10"},"amount":25}])");
    EXPECT_EQ(Show(1)["irrigation_total"], 30);
    EXPECT_EQ(Show(2)["cuttings"].size(), 2);
    EXPECT_EQ(Run("water delete 1 rain 5/10/2003").Status, 1);  // the answer is no
    EXPECT_EQ(Run("--answer yes water delete 1 rain 5/10/2003").Status, 0);
    EXPECT_EQ(Run("--answer yes water delete 1 rain 5/10/2003").Status, 1);  // there is none any more
    EXPECT_EQ(Run("--answer yes cut delete 2 7/1/2003").Status, 0);
    EXPECT_EQ(Show(1)["rain"].size(), 0);
    EXPECT_EQ(Run("water add 1 rain 7/16/2003 1").Status, 1);
}

TEST_F(Entry, AdjustmentsResetHarvestAndItsUndo) {
    Run("field update");
    EXPECT_EQ(Run("field set 1 mad 62.5").Status, 0);
    EXPECT_EQ(Show(1)["mad"], 62);
    const Ran depleted = Do({"field", "set", "1", "depletion", "20"});
    EXPECT_EQ(Json::parse(depleted.Out)["depletion_day"]["date"], "2003-07-13");
    EXPECT_EQ(Run("field reset 2").Status, 1);
    EXPECT_EQ(Run("--answer yes field reset 2").Status, 0);
    EXPECT_EQ(Show(2)["rain"].size(), 0);

    const auto before = Everything();
    EXPECT_EQ(Run("field harvest 2").Status, 1);
    EXPECT_EQ(Everything(), before);
    const std::string backup = Json::parse(Do({"field", "harvest", "2"}, {}, "yes").Out)["backup"];
    EXPECT_EQ(backup, "CREEK     _150703_ 1.dat");
    EXPECT_EQ(Do({"field", "restore", "CREEK.dat"}).Status, 1);
    EXPECT_EQ(Do({"field", "restore", backup}).Status, 0);
    EXPECT_EQ(Directory.Raw("field2.dat"), before.at("field2.dat"));
    EXPECT_EQ(Directory.Raw("stat.dat"), before.at("stat.dat").substr(0, 82));
}

TEST_F(Entry, AskForTheSeasonAsAChartAndAsATable) {
    const Json chart = Json::parse(Do({"field", "chart", "2"}).Out);
    EXPECT_EQ(chart["series"][0]["points"].dump(), "[[731642,168]]");  // the planting day: 140 mm/m in 1.2 m
    EXPECT_EQ(chart["marks"].dump(), R"([{"name":"Today","day":{"julian":731717,"date":"2003-07-15"}}])");
    EXPECT_EQ(Run("--units metric field days 2 --csv").Out,
              "date,day,available_mm,depletion_percent,gdd_c,gdd_sum_c,etr_mm,etr_sum_mm,kc,kd,etc_mm,etc_sum_mm,"
              "irrigation_mm,rain_mm,cutting\n2003-05-01,0,168,0,0,0,0,0,0,1,0,0,0,0,0\n");
}

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
             {"weathdef.dat", "1, 0\nDAVIS\nTELMORAN\n38.5, 18\n23.3, -9.9, x\n", "weather check 06 2003"},
             {"weather06.03", Patched(weather, lastDay + 6, Hex("00 00 C0 7F")), import}}) {
        SCOPED_TRACE(command);
        SCOPED_TRACE(file);
        const std::string whole = Directory.Raw(file);
        Directory.Put(file, bytes);
        const auto before = Everything();
        const Ran ran = Run(command, {"--json"});
        EXPECT_EQ(ran.Status, 3);
        EXPECT_THAT(ran.Err, testing::AllOf(testing::StartsWith("Veraqua: "), HasSubstr(file)));
        EXPECT_TRUE(bytes == "short" || Everything() == before);  // there the other row is updated
        EXPECT_EQ(Directory.Raw(file), before.at(file));
        Directory.Put(file, whole);
    }
}

}  // namespace
}  // namespace veraqua
