#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "tests/cli/program.h"
#include "tests/support/network_line.h"

namespace veraqua {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

using Json = nlohmann::ordered_json;
using Commands = CliTest;

const std::string Row =
    "row id crop hay last_day depletion mad_now next_irr_day next_cut_day next_irr_amount depletion_day";
const std::string Soil =
    " variable_soil capacity content bounds capacity_interval content_interval history leaching mad_changes "
    "efficiency_changes depletion_changes rain irrigation";
const std::string OrdinaryField = Row +
                                  " station plant_day root_start root_max gdd_lower gdd_upper gdd_harvest season_days "
                                  "mad irr_eff" +
                                  Soil + " rain_total irrigation_total";

/// The keys of an object, or of an array's first object.
std::string KeysOf(const std::string& text) {
    const Json json = Json::parse(text);
    const Json& object = json.is_array() ? json.at(0) : json;
    std::string keys;
    for (const auto& item : object.items()) keys += (keys.empty() ? "" : " ") + item.key();
    return keys;
}

TEST_F(Commands, PrintOneJsonDocumentWithTheKeysThatScriptsKnow) {
    Directory.Put("text", NetworkDays(1, 195));
    const std::string text = Directory.Path() + "text";
    for (const auto& [command, keys] : std::vector<std::pair<std::string, std::string>>{
             {"init", "data created"},
             {"crops", "number name hay"},
             {"fields", Row},
             {"field show 1", OrdinaryField},
             {"field days 1", "day available gdd_sum root_depth etr_sum days_since_wet"},
             {"field update 2", Row},
             {"weather import 06 " + text, "from to last_day"},
             {"weather eto --tmax 12 --tmin -3.5 --rhmax 90 --rhmin 40 --wind 100 --ratio 2 --solar 300",
              "reference_et"},
             {"schedule", Row},
             {"report 1", OrdinaryField + " days"}}) {
        SCOPED_TRACE(command);
        const Ran ran = Run(command, {"--json"});
        EXPECT_EQ(ran.Status, 0);
        EXPECT_EQ(ran.Err, "");
        EXPECT_EQ(ran.Out.find('\n'), ran.Out.size() - 1);
        EXPECT_EQ(KeysOf(ran.Out), keys);
    }
}

// Written out by hand from the records of the fixture; the Julian Values count from 731522, 1 January 2003.
TEST_F(Commands, PrintStoredNumbersInTheirShortestFormAndDatesAsObjects) {
    const std::string first = R"({"julian": 731642, "date": "2003-05-01"})";
    const std::string third = R"({"julian": 731644, "date": "2003-05-03"})";
    const std::string hay =
        R"({"row": 2, "id": "CREEK", "crop": "@ALFALFA", "hay": true, "last_day": )" + first +
        R"(, "depletion": 0, "mad_now": 50, "next_irr_day": null, "next_cut_day": null, "next_irr_amount": 0, )"
        R"("depletion_day": null, "station": "06", "plant_day": )" +
        first +
        R"(, "root_max": 1.2, "gdd_lower": 5, "gdd_upper": 30, "gdd_cut": 490, "season_days": 260, "mad": 50, )"
        R"("mad_critical": 65, "dry_days": 7, "irr_eff": 0.85, "variable_soil": false, )"
        R"("capacity": [140, 140, 140, 140], "content": [140, 140, 140, 140], "bounds": [0, 0, 0, 0, 0, 0], )"
        R"("capacity_interval": 0.3, "content_interval": 0.3, "history": [{"day": )" +
        third +
        R"(, "content": [130, 120, 110, 100]}], "leaching": [], "mad_changes": [], "efficiency_changes": [], )"
        R"("depletion_changes": [], "rain": [{"day": )" +
        third +
        R"(, "amount": 12}], "irrigation": [{"day": {"julian": 731645, "date": "2003-05-04"}, "amount": 25}], )"
        R"("cuttings": [{"day": {"julian": 731692, "date": "2003-06-20"}, "amount": 1}], )"
        R"("rain_total": 12, "irrigation_total": 25})";
    const std::string july14 = R"({"julian": 731716, "date": "2003-07-14"})";
    for (
        const auto& [command, start] : std::vector<std::pair<std::string, std::string>>{
            {"field show 2", hay + "\n"},
            // On its first day hay has no Kc: 1.2 m of roots hold 168 mm.
            {"field days 2", R"([{"day": )" + first +
                                 R"(, "available": 168, "gdd_sum": 0, "kc": 0, "etr_sum": 0, "days_since_wet": 4}])"},
            {"weather show 06 2003",
             R"([{"day_of_year": 1, "temp_max": 30, "temp_min": 12, "humidity_max": 80, "humidity_min": 30, )"
             R"("wind_run": 173, "day_night_ratio": 2, "solar_radiation": 600, "reference_et": 6, "source": "kesta"}, )"},
            {"weather show 06 1999", "[]\n"},
            {"stations", R"([{"code": "01", "name": "Arvendale", "region": "TELMORAN"}, {"code": "02", )"},
            {"weather check 06 2003", R"({"last_day": {"julian": 731715, "date": "2003-07-13"}, "need_from": )" +
                                          july14 + R"(, "need_to": )" + july14 + "}\n"},
            {"weather default 06 7-14-2003 7/14/2003",
             R"({"from": )" + july14 + R"(, "to": )" + july14 + R"(, "days": 1})"},
            {"weather check 06 2003", R"({"last_day": )" + july14 + R"(, "need_from": null, "need_to": null})"}})
        EXPECT_THAT(Run(command, {"--json"}).Out, StartsWith(start)) << command;
    EXPECT_EQ(Run("field show 2", {"--json", "--units", "metric"}).Out, hay + "\n");
    EXPECT_THAT(Run("stations", {"--json"}).Out, HasSubstr(R"("Ostrand", "region": null})"));
}

TEST_F(Commands, CountInTheUnitsOfTheUser) {
    // 30 and 12 degrees C; 173 km a day are 173 * 0.6214 / 24 = 4.48 mph; 600 langleys / 23.89 = 25.1 MJ; 6 mm / 25.4.
    EXPECT_THAT(Run("weather show 06 2003").Out,
                testing::ContainsRegex("Wind mph.*\n.*\n +1 +86.0 +53.6 +80.0 +30.0 +4.5 +2.0 +600.0 +0.24"));
    EXPECT_THAT(Run("weather show 06 2003", {"--units", "metric"}).Out,
                testing::ContainsRegex("Wind km/h.*\n.*\n +1 +30.0 +12.0 +80.0 +30.0 +7.2 +2.0 +25.1 +6.0"));
    EXPECT_THAT(Run("field show 2").Out, HasSubstr("0.47 in\n"));  // 12 mm of rain
    EXPECT_THAT(Run("field show 2", {"--units", "metric"}).Out, HasSubstr("12.0 mm\n"));
}

TEST_F(Commands, RefuseWithAMessageALineEach) {
    const std::string upToDate =
        "Weather Info: Your weather data is already up-to-date   Do you want to overwrite it? ";
    Directory.Put("text", NetworkDays(1, 195));
    const std::string import = "weather import 06 " + Directory.Path() + "text";
    struct Refusal {
        std::string Command;
        std::string Err;
        int Status = 1;
        const char* Answer = "no";
    };
    for (const Refusal& row : std::vector<Refusal>{
             {"field show 3", "Veraqua: There is no field in row 3.\n"},
             {"field days 101", "Veraqua: There is no field in row 101.\n"},
             {"weather default 06 1-1-2003 2-29-2003", "Date input error: February only has 28 days.\n"},
             {"weather default 00 1-1-2003 1-2-2003", "Veraqua: Please select your KESTA weather location first.\n"},
             {"weather default 06 1-1-1990 1-1-2090", "Veraqua: A range of weather must be shorter than 100 years.\n"},
             {"weather fetch 00", "Missing KESTA Station: Please select your KESTA weather station first.\n"},
             {"weather show 6x 2003", "Veraqua: \"6x\" is no station code: two digits, such as 06.\n"},
             {"weather import 08 " + Directory.Path() + "text",
              "Download Error: Wrong KESTA station downloaded.  Try again\n"},
             {import + " --from 12-30-2003 --to 1-3-2004",
              "Weather Info: KESTA data is missing 173 days worth of data. Do you wish to continue and use default "
              "data for the missing days? [no]\n"},
             {import, "", 0},  // appends 14 July
             {import, upToDate + "[no]\n"},
             {import, upToDate + "[yes]\n", 0, "yes"}}) {
        const Ran ran = Run(row.Command, {"--answer", row.Answer});
        EXPECT_EQ(ran.Err, row.Err) << row.Command;
        EXPECT_EQ(ran.Status, row.Status) << row.Command;
    }
    EXPECT_EQ(RunCli({"--today", "13-1-2003", "fields"}).Status, 1);
    // Typed but empty is not absent: no other directory or day stands in.
    EXPECT_EQ(RunCli({"--today", "", "--data", Directory.Path(), "fields"}).Status, 1);
    EXPECT_EQ(RunCli({"--data", "", "fields"}).Status, 1);
    EXPECT_EQ(RunCli({"--data", Directory.Path(), "schedule", "-o", ""}).Err,
              "Missing File Name: Please enter a file name\n");
}

TEST_F(Commands, RefuseBadUsage) {
    const auto before = Everything();
    for (const char* command :
         {"", "bogus", "field", "weather", "field show", "field show x", "field show 1 2", "fields --bogus",
          "weather check 06", "weather check 06 03", "weather import 06", "weather import 06 text --from 1-1-2003",
          "weather eto --tmax 30", "weather eto --tmax nan --tmin 1 --rhmax 2 --rhmin 1 --wind 1 --ratio 1 --solar 1",
          "weather fetch 06 --units metric", "report", "schedule -o"}) {
        const Ran ran = Run(command);
        EXPECT_EQ(ran.Status, 2) << command;
        EXPECT_EQ(ran.Out, "") << command;
        EXPECT_NE(ran.Err, "") << command;
    }
    EXPECT_EQ(RunCli({"--units", "furlongs", "fields"}).Status, 2);
    EXPECT_EQ(RunCli({"--answer", "perhaps", "fields"}).Status, 2);
    EXPECT_EQ(Everything(), before);
}

TEST_F(Commands, ExplainThemselves) {
    EXPECT_EQ(RunCli({"--version"}).Out, "veraqua-cli Ver 1.17\n");
    for (const char* command : {"", "init", "field update", "weather fetch", "weather eto", "schedule", "report"}) {
        const Ran ran = Run(command + std::string(" --help"));
        EXPECT_EQ(ran.Status, 0) << command;
        EXPECT_EQ(ran.Err, "") << command;
        EXPECT_THAT(ran.Out, testing::AllOf(HasSubstr("Usage: "), HasSubstr("--help"))) << command;
    }
}

TEST_F(Commands, WriteTheSameTextsThatTheyPrint) {
    for (const std::string command : {"schedule", "report 1"}) {
        const Ran printed = Run(command);
        const Ran saved = Run(command + " -o " + Directory.Path() + "saved.txt");
        EXPECT_EQ(saved.Status, 0);
        EXPECT_EQ(saved.Out, "");
        EXPECT_THAT(saved.Err, testing::EndsWith("was saved to: " + Directory.Path() + "saved.txt\n"));
        EXPECT_EQ(Directory.Raw("saved.txt"), printed.Out);
        EXPECT_GT(printed.Out.size(), 100U);
    }
    EXPECT_EQ(Run("schedule -o " + Directory.Path() + "stat.dat").Status, 1);
    EXPECT_EQ(Directory.Raw("stat.dat").size(), 4100U);
}

TEST_F(Commands, TellThatTheirOutputIsLost) {
    const Ran ran = RunCli({"--data", Directory.Path(), "weather", "show", "06", "2003"}, {}, "/dev/full");
    EXPECT_EQ(ran.Err, "Veraqua: The output can't be written: No space left on device.\n");
    EXPECT_EQ(ran.Status, 1);
}

}  // namespace
}  // namespace veraqua
