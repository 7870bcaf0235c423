#include <fmt/format.h>

#include "cli/commands.h"
#include "core/base/characters.h"
#include "core/base/text_table.h"
#include "core/crop_table.h"
#include "core/state.h"
#include "shell/first_start.h"
#include "weather/default_weather.h"

namespace veraqua {

namespace {

using Side = TextTable::Side;

std::string CodeOf(std::size_t number) { return fmt::format("{:02}", number); }

}  // namespace

int RunInit(Session& session, bool sample) {
    const std::string path = session.DirectoryToMake();
    if (HasControlCharacter(path)) return session.Refuse({"A directory's name can't have control characters."});
    const InitOutcome outcome = MakeDataDirectoryAt(session.Outside, path, sample);
    if (outcome.Refused) return ExitRefused;
    session.Print({{"data", path}, {"created", outcome.Created}},
                  outcome.Created.empty() ? fmt::format("{}: everything is there already.\n", path)
                                          : fmt::format("{}: made {}.\n", path, fmt::join(outcome.Created, ", ")));
    return ExitDone;
}

int RunCrops(Session& session) {
    if (!session.OpenData(files::Access::Read)) return ExitRefused;
    LoadCropList(session.Outside);
    Json json = Json::array();
    TextTable table({{"Number", Side::Right}, {"Crop"}, {"Kind"}});
    for (std::size_t i = 0; i < State.CropNames.size(); ++i) {
        const std::string& name = State.CropNames[i];
        const bool hay = name.starts_with(HayMark);
        json.push_back({{"number", i + 1}, {"name", name}, {"hay", hay}});
        table.Add({fmt::format("{}", i + 1), name, hay ? "hay" : ""});
    }
    session.Print(json, table.Text());
    return ExitDone;
}

int RunStations(Session& session) {
    if (!session.OpenData(files::Access::Read)) return ExitRefused;
    Json json = Json::array();
    TextTable table({{"Code"}, {"Station"}, {"Default weather of"}});
    for (std::size_t i = 0; i < State.DefaultStations.size(); ++i) {
        const std::string code = CodeOf(i + 1);
        const std::string region(RegionOfStation(code));
        json.push_back({{"code", code},
                        {"name", State.DefaultStations[i]},
                        {"region", region.empty() ? Json(nullptr) : Json(region)}});
        table.Add({code, State.DefaultStations[i], region});
    }
    session.Print(json, table.Text());
    return ExitDone;
}

}  // namespace veraqua
