#include <algorithm>
#include <cmath>
#include <filesystem>
#include <set>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "catch_up/field_updates.h"
#include "core/directory.h"
#include "core/field_file.h"
#include "tests/support/bytes.h"
#include "tests/support/data_directory.h"

namespace veraqua {
namespace {

using nlohmann::json;

const std::string Seasons = VERAQUA_TEST_DATA "/seasons/";

/// The messages and the questions in the order in which they came: title, text.
struct Listener : ScriptAsk {
    json Said = json::array();

    void Tell(std::string_view text, std::string_view title, veraqua::Icon) override { Said.push_back({title, text}); }
    bool YesNo(std::string_view text, std::string_view title, veraqua::Icon, bool) override {
        Said.push_back({title, text});
        return OtherAnswer;
    }
};

json Named(const std::vector<EventRecord>& events) {
    json list = json::array();
    for (const auto& [day, amount] : events) list.push_back({{"Day", day}, {"Amount", amount}});
    return list;
}

json NamedRow(const std::string& bytes) {
    StatRecord row;
    Reader reader(bytes, "the row");
    Layout(reader, row);
    return {{"LastDay", row.LastDay},       {"Depletion", row.Depletion},   {"MadNow", row.MadNow},
            {"NextIrrDay", row.NextIrrDay}, {"NextCutDay", row.NextCutDay}, {"NextIrrAmount", row.NextIrrAmount}};
}

/// All that a run may change, so that a difference has a name: "/Days/12/Available".
json Named(const FieldFile& file) {
    json days = json::array();
    for (const DayRecord& row : file.Days)
        days.push_back({{"Available", row.Available},
                        {"GddSum", row.GddSum},
                        {"RootDepthOrKc", row.RootDepthOrKc},
                        {"EtrSum", row.EtrSum},
                        {"DaysSinceWet", row.DaysSinceWet}});
    json history = json::array();
    for (const ProfileRecord& record : file.Lists.History)
        history.push_back({{"Day", record.Day}, {"Content", record.Content}});
    json efficiencies = json::array();
    for (const auto& [day, value] : file.Lists.EfficiencyChanges)
        efficiencies.push_back({{"Day", day}, {"Value", value}});
    return {{"NextCutDay", file.Hay.NextCutDay},
            {"Content", file.Soil.Content},
            {"Days", days},
            {"History", history},
            {"EfficiencyChanges", efficiencies},
            {"Leaching", Named(file.Lists.Leaching)},
            {"MadChanges", Named(file.Lists.MadChanges)},
            {"DepletionChanges", Named(file.Lists.DepletionChanges)},
            {"Rain", Named(file.Lists.Rain)},
            {"Cuttings", Named(file.Lists.Cuttings)},
            {"Irrigation", Named(file.Lists.Irrigation)}};
}

/// Singles may differ in their last bits, and water that has dried down to almost nothing by 1e-6 mm.
bool Same(const std::string& name, const json& is, const json& expected) {
    if (!is.is_number_float() || !expected.is_number_float()) return is == expected;
    const double floor = name.ends_with("/Available") ? 1e-6 : 0;
    return std::abs(is.get<double>() - expected.get<double>()) <=
           std::max(floor, 2e-6 * std::abs(expected.get<double>()));
}

void ExpectSame(const FieldFile& is, const FieldFile& expected) {
    const json have = Named(is).flatten();
    const json want = Named(expected).flatten();
    for (const auto& [name, value] : want.items())
        EXPECT_TRUE(Same(name, have.value(name, json()), value))
            << name << " is " << have.value(name, json()) << ", expected " << value;
    for (const auto& [name, value] : have.items()) EXPECT_TRUE(want.contains(name)) << name << " is " << value;
    // What a run leaves alone
    HayHeader header = is.Hay;
    header.NextCutDay = expected.Hay.NextCutDay;
    EXPECT_EQ(header, expected.Hay);
    EXPECT_EQ(is.Field, expected.Field);
    EXPECT_EQ(is.Soil.Capacity, expected.Soil.Capacity);
    EXPECT_EQ(is.Soil.Bounds, expected.Soil.Bounds);
}

struct Season : testing::TestWithParam<std::string> {
    TestDirectory Directory;
    Listener User;
};

// An independent program worked the results out; see the data's README.
TEST_P(Season, ComesOutAsWorkedOutIndependently) {
    const std::string at = Seasons + GetParam() + "/";
    for (const auto& entry : std::filesystem::directory_iterator(at + "before"))
        Directory.Put(entry.path().filename().string(), TextOf(entry.path()));
    const json season = json::parse(TextOf(at + "case.json"));
    User.Today = season["today"];
    User.OtherAnswer = season["answer"] == "yes";
    StartUp(User);
    std::vector<int> rows;
    for (const json& field : season["fields"]) rows.push_back(field["row"]);
    UpdateRows(User, rows);

    json messages = json::array();
    for (const json& message : season["messages"]) messages.push_back({message[1], message[2]});
    EXPECT_EQ(User.Said, messages);
    const std::string stat = Directory.Raw("stat.dat");
    for (const json& field : season["fields"]) {
        const int row = field["row"];
        SCOPED_TRACE("field " + std::to_string(row) + ", " + field["name"].get<std::string>());
        const auto size = StoredSize<StatRecord>();
        const std::string have = stat.substr(size * static_cast<std::size_t>(row - 1), size);
        const std::string want = TextOf(at + "after/row" + std::to_string(row));
        EXPECT_TRUE(have == want) << "the row is " << NamedRow(have) << ", expected " << NamedRow(want);
        const std::string name = FieldFileName(row);
        const bool isHay = State.Stat[row].CropName.Text().starts_with(HayMark);
        ExpectSame(ParseFieldFile(Directory.Raw(name), isHay, name),
                   ParseFieldFile(TextOf(fmt::format("{}after/{}", at, name)), isHay, name));
    }
}

std::set<std::string> Names() {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Seasons))
        if (entry.is_directory()) names.insert(entry.path().filename());
    return names;
}

INSTANTIATE_TEST_SUITE_P(Of, Season, testing::ValuesIn(Names()),
                         [](const testing::TestParamInfo<std::string>& season) { return season.param; });

}  // namespace
}  // namespace veraqua
