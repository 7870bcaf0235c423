#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "tests/cli/program.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
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
    EXPECT_FALSE(Directory.Has("field3.dat"));
    const Ran made = Do(NewField("maize grain", "EAST 5"), layers, "yes");
    EXPECT_EQ(made.Status, 0) << made.Err;
    const Json row = Json::parse(made.Out);
    EXPECT_EQ(row["row"], 3);
    EXPECT_EQ(row["last_day"]["date"], "2003-07-14");
    const Json field = Show(3);
    EXPECT_EQ(field["mad"], 40);
    EXPECT_EQ(field["irr_eff"], 0.8);
    // 1.7 and 1.6 inches per foot; 12 and 27 inches, in metres.
    EXPECT_EQ(field["capacity"], Json::parse("[142, 133]"));
    EXPECT_EQ(field["history"][0]["content"], Json::parse("[125, 117]"));
    EXPECT_EQ(field["bounds"], Json::parse("[0.3048, 0.6858, 0, 0, 0, 0]"));

    const Ran copied = Do(NewField("@ALFALFA", "WEST"), {"--mad-critical", "65", "--copy-soil", "3"}, "yes");
    EXPECT_EQ(copied.Status, 0) << copied.Err;
    EXPECT_EQ(Show(4)["capacity"], field["capacity"]);
    EXPECT_EQ(Show(4)["mad_critical"], 65);
    EXPECT_EQ(Do(NewField("POTATO", "BACK"), {"--interval", "12", "--zone", "2:1", "--zone", "1.5:1"}).Status, 0);
    EXPECT_EQ(Show(5)["capacity_interval"], 0.3048);
    EXPECT_EQ(Show(5)["capacity"], Json::parse("[167, 125]"));
}

TEST_F(Entry, OfANewFieldThatIsRefusedNothingStays) {
    Run("fields");  // stat.dat and updates.dat are there
    struct Case {
        Words Described;  ///< crop, ID, planting date, station
        Words Options;
        std::string Says;
    };
    const Words zones{"--interval", "12", "--zone", "2:1", "--zone", "1.5:1"};
    const std::vector<Case> cases{
        {{"RICE", "A", "5/1/2003", "06"}, zones, "There is no crop \"RICE\""},
        {{"POTATO", "", "5/1/2003", "06"}, zones, "Missing Field ID: "},
        {{"POTATO", "north 40", "5/1/2003", "06"}, zones, "Duplicate Field ID: "},
        {{"POTATO", "A", "2/30/2003", "06"}, zones, "INVALID DATE: "},
        {{"POTATO", "A", "5/1/1903", "06"}, zones, "Date input error: "},
        {{"POTATO", "A", "5/1/2003", "18"}, zones, "Bad selection: "},
        {{"POTATO", "A", "5/1/2003", "66"}, zones, "is no station"},
        {{"POTATO", "A", "5/1/2003", "06"}, {"--mad", "0", "--copy-soil", "1"}, "Input Error: "},
        {{"POTATO", "A", "5/1/2003", "06"}, {"--dry-days", "5", "--copy-soil", "1"}, "for hay only"},
        {{"POTATO", "A", "5/1/2003", "06"}, {"--copy-soil", "9"}, "There is no field in row 9."},
        {{"POTATO", "A", "5/1/2003", "06"},
         {"--interval", "12", "--zone", "2:3", "--zone", "2:1"},
         "Water Content Input"},
        {{"POTATO", "A", "5/1/2003", "06"}, {"--interval", "12", "--zone", "2:1"}, "Water Capacity Input"},
        {{"@ALFALFA", "A", "5/1/2003", "06"}, zones, "Input Error: "},  // without a critical MAD
    };
    Run("weather default 06 7/14/2003 7/14/2003");
    const auto before = Everything();
    for (const Case& c : cases) {
        const Words words{"field",        "new",     "--crop",       c.Described[0], "--id",
                          c.Described[1], "--plant", c.Described[2], "--station",    c.Described[3]};
        const Ran ran = Do(words, c.Options);
        EXPECT_EQ(ran.Status, 1) << c.Says;
        EXPECT_THAT(ran.Err, HasSubstr(c.Says));
        EXPECT_EQ(ran.Out, "");
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
    EXPECT_EQ(Show(1)["last_day"]["date"], "2003-07-13");  // as far as the weather reaches

    const Ran kept = Run("water delete 1 rain 5/10/2003");
    EXPECT_EQ(kept.Status, 1);
    EXPECT_THAT(kept.Err, HasSubstr("delete rainfall data on: 05-10-03? [no]"));
    EXPECT_EQ(Run("--answer yes water delete 1 rain 5/10/2003").Status, 0);
    EXPECT_EQ(Run("--answer yes water delete 1 rain 5/10/2003").Status, 1);  // there is none any more
    EXPECT_EQ(Run("--answer yes cut delete 2 7/1/2003").Status, 0);
    EXPECT_EQ(Show(1)["rain"].size(), 0);
    EXPECT_EQ(Run("water add 1 rain 7/16/2003 1").Status, 1);
    EXPECT_EQ(Run("water add 1 snow 5/10/2003 1").Status, 2);
    EXPECT_EQ(Run("cut add 1 7/1/2003 1").Status, 1);  // maize
    EXPECT_EQ(Run("water add 9 rain 5/10/2003 1").Status, 1);
}

TEST_F(Entry, AdjustmentsResetHarvestAndItsUndo) {
    Run("field update");
    EXPECT_EQ(Run("field set 1 mad 62.5").Status, 0);
    EXPECT_EQ(Show(1)["mad"], 62);
    EXPECT_EQ(Run("field set 2 mad 40").Status, 0);
    EXPECT_EQ(Show(2)["mad_critical"], 65);
    EXPECT_EQ(Run("field set 1 mad 60 --critical 70").Status, 1);
    EXPECT_EQ(Run("field set 1 efficiency 101").Status, 1);
    const Ran depleted = Do({"field", "set", "1", "depletion", "20"});
    EXPECT_EQ(depleted.Status, 0) << depleted.Err;
    EXPECT_EQ(Json::parse(depleted.Out)["depletion_day"]["date"], "2003-07-13");
    EXPECT_EQ(Run("field reset 2").Status, 1);
    EXPECT_EQ(Run("--answer yes field reset 2").Status, 0);
    EXPECT_EQ(Show(2)["rain"].size(), 0);

    const auto before = Everything();
    EXPECT_EQ(Run("field harvest 2").Status, 1);
    EXPECT_EQ(Everything(), before);
    const Ran harvested = Do({"field", "harvest", "2"}, {}, "yes");
    EXPECT_EQ(harvested.Status, 0);
    const std::string backup = Json::parse(harvested.Out)["backup"];
    EXPECT_EQ(backup, "CREEK     _150703_ 1.dat");
    EXPECT_EQ(Json::parse(harvested.Out)["fields"].size(), 1);
    EXPECT_EQ(Do({"field", "restore", "CREEK.dat"}).Status, 1);
    EXPECT_EQ(Do({"field", "restore", backup}).Status, 0);
    EXPECT_EQ(Directory.Raw("field2.dat"), before.at("field2.dat"));
    EXPECT_EQ(Directory.Raw("stat.dat"), before.at("stat.dat").substr(0, 82));
    EXPECT_FALSE(Directory.Has(backup));
}

TEST_F(Entry, ChartAndTableOfASeason) {
    const Json chart = Json::parse(Do({"field", "chart", "2"}).Out);
    EXPECT_EQ(chart["series"][0]["unit"], "mm");
    EXPECT_EQ(chart["series"][0]["points"].dump(), "[[731642,168]]");  // the planting day: 140 mm/m in 1.2 m
    EXPECT_EQ(chart["marks"].dump(), R"([{"name":"Today","day":{"julian":731717,"date":"2003-07-15"}}])");
    EXPECT_EQ(Run("--units metric field days 2 --csv").Out,
              "date,day,available_mm,depletion_percent,gdd_c,gdd_sum_c,etr_mm,etr_sum_mm,kc,kd,etc_mm,etc_sum_mm,"
              "irrigation_mm,rain_mm,cutting\n2003-05-01,0,168,0,0,0,0,0,0,1,0,0,0,0,0\n");
}

}  // namespace
}  // namespace veraqua
