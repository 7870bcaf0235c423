#include <fmt/format.h>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "tests/cli/program.h"
#include "tests/support/network_line.h"

namespace veraqua {
namespace {

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
const std::string HayField = Row +
                             " station plant_day root_max gdd_lower gdd_upper gdd_cut season_days mad mad_critical "
                             "dry_days irr_eff" +
                             Soil + " cuttings rain_total irrigation_total";

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
             {"field show 2", HayField},
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

// Worked out by hand from the records of the fixture; the Julian Values count from 731522, 1 January 2003.
TEST_F(Commands, PrintStoredNumbersInTheirShortestFormAndDatesAsObjects) {
    const std::string july14 = R"({"julian": 731716, "date": "2003-07-14"})";
    for (
        const auto& [command, part] : std::vector<std::pair<std::string, std::string>>{
            {"field show 2",
             R"("plant_day": {"julian": 731642, "date": "2003-05-01"}, "root_max": 1.2, "gdd_lower": 5)"},
            {"field show 2", R"("rain": [{"day": {"julian": 731644, "date": "2003-05-03"}, "amount": 12}])"},
            {"weather show 06 2003",
             R"([{"day_of_year": 1, "temp_max": 30, "temp_min": 12, "humidity_max": 80, "humidity_min": 30, )"
             R"("wind_run": 173, "day_night_ratio": 2, "solar_radiation": 600, "reference_et": 6, "source": "kesta"}, )"},
            {"weather default 06 7-14-2003 7/14/2003", fmt::format(R"({{"from": {0}, "to": {0}, "days": 1}})", july14)},
            {"weather check 06 2003", R"({"last_day": )" + july14 + R"(, "need_from": null, "need_to": null})"}})
        EXPECT_THAT(Run(command, {"--json"}).Out, testing::HasSubstr(part)) << command;
    // 30 and 12 degrees C; 173 km a day are 173 * 0.6214 / 24 = 4.48 mph; 6 mm / 25.4.
    EXPECT_THAT(Run("weather show 06 2003").Out,
                testing::ContainsRegex("\n +1 +86.0 +53.6 +80.0 +30.0 +4.5 +2.0 +600.0 +0.24"));
}

TEST_F(Commands, RefuseWithAMessageALineEach) {
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
             {"weather default 06 1-1-2003 2-29-2003", "Date input error: February only has 28 days.\n"},
             {"weather fetch 00", "Missing KESTA Station: Please select your KESTA weather station first.\n"},
             {import + " --from 12-30-2003 --to 1-3-2004",
              "Weather Info: KESTA data is missing 173 days worth of data. Do you wish to continue and use default "
              "data for the missing days? [no]\n"},
             {import, "", 0},  // appends 14 July
             {import, "Weather Info: Your weather data is already up-to-date   Do you want to overwrite it? [yes]\n", 0,
              "yes"}}) {
        const Ran ran = Run(row.Command, {"--answer", row.Answer});
        EXPECT_EQ(ran.Err, row.Err) << row.Command;
        EXPECT_EQ(ran.Status, row.Status) << row.Command;
    }
    // Typed but empty is not absent: no other directory stands in.
    EXPECT_EQ(RunCli({"--data", "", "fields"}).Status, 1);
    for (const char* command :
         {"", "bogus", "field show x", "fields --bogus", "weather import 06 text --from 1-1-2003",
          "weather eto --tmax nan --tmin 1 --rhmax 2 --rhmin 1 --wind 1 --ratio 1 --solar 1", "schedule -o"})
        EXPECT_EQ(Run(command).Status, 2) << command;
}

TEST_F(Commands, WriteTheSameTextsThatTheyPrint) {
    for (const std::string command : {"schedule", "report 1"}) {
        const Ran printed = Run(command);
        const Ran saved = Run(command + " -o " + Directory.Path() + "saved.txt");
        EXPECT_THAT(saved.Err, testing::EndsWith("was saved to: " + Directory.Path() + "saved.txt\n"));
        EXPECT_EQ(Directory.Raw("saved.txt"), printed.Out);
    }
    EXPECT_EQ(Run("schedule -o " + Directory.Path() + "stat.dat").Status, 1);
    EXPECT_EQ(Directory.Raw("stat.dat").size(), 4100U);
}

}  // namespace
}  // namespace veraqua
