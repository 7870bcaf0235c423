#include "shell/forms/kept.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/state.h"
#include "screen/screen.h"
#include "shell/forms/configuration.h"

namespace veraqua {

namespace {

constexpr const char* Farms = "farms";
constexpr const char* Options = "options";  ///< the units, then the days of the bars
constexpr const char* English = "english";
constexpr const char* Metric = "metric";
constexpr std::size_t MostFarms = 6;  ///< that is open, and those that the menu has room for

}  // namespace

std::vector<std::string> KeptFarms() { return TheScreen().Kept(Farms); }

void KeepFarm(const std::string& left, const std::string& opened) {
    std::vector<std::string> farms = KeptFarms();
    for (const std::string& farm : {left, opened}) {
        std::erase(farms, farm);
        farms.insert(farms.begin(), farm);
    }
    farms.resize(std::min(farms.size(), MostFarms));
    TheScreen().Keep(Farms, farms);
}

void ForgetFarm(const std::string& farm) {
    std::vector<std::string> farms = KeptFarms();
    std::erase(farms, farm);
    TheScreen().Keep(Farms, farms);
}

bool OptionsAreKept() { return !TheScreen().Kept(Options).empty(); }

void KeepOptions() {
    TheScreen().Keep(Options, {State.EnglishUnits ? English : Metric, fmt::format("{}", State.DisplayDays)});
}

void ForgetOptions() { TheScreen().Keep(Options, {}); }

void TakeKeptOptions() {
    const std::vector<std::string> options = TheScreen().Kept(Options);
    if (options.size() != 2) return;
    State.EnglishUnits = options[0] != Metric;
    const std::optional<std::int32_t> days = WholeNumber(options[1]);
    if (days && *days >= FewestDisplays && *days <= MostDisplays) State.DisplayDays = static_cast<std::int16_t>(*days);
}

}  // namespace veraqua
