#include "cli/session.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

#include <fmt/format.h>

#include "cli/field_text.h"
#include "core/base/text.h"
#include "core/directory.h"
#include "core/field_in_work.h"
#include "core/state.h"
#include "shell/data_search.h"
#include "weather/coverage.h"
#include "weather/network_address.h"

namespace veraqua {

bool Session::Prepare() {
    Outside.AllowProgress(!Options.JsonWanted);
    Outside.SetAnswer(Options.AnswerIsYes);
    if (!Options.Today) return true;
    const std::optional<JulianValue> today = DateFrom(*Options.Today);
    if (today) Outside.SetNow(*today);
    return today.has_value();
}

bool Session::OpenData(files::Access access) {
    const std::vector<std::string> candidates =
        Options.DataDirectory ? std::vector{*Options.DataDirectory} : DefaultDataDirectories();
    for (const std::string& path : candidates) {
        if (!IsDataDirectory(path)) continue;
        files::Open(path, access);
        StartSystem();
        return true;
    }
    Outside.Tell(fmt::format("There is no data directory (one with {}) at {}. \"veraqua-cli init\" makes one.",
                             DataDirectoryMarker, fmt::join(candidates, " or ")));
    return false;
}

std::string Session::DirectoryToMake() const {
    return Options.DataDirectory.value_or(DefaultDataDirectories().front());
}

void Session::StartSystem() {
    StartUp(Outside);
    State.StartDate = Outside.Now();
    State.EnglishUnits = Options.EnglishUnits;
    TakeNetworkOfUser();
    if (!Options.BaseUrl.empty()) UseNetwork(Options.BaseUrl);
}

std::optional<JulianValue> Session::DateFrom(std::string text) {
    text = std::string(Trimmed(text));
    const JulianValue day = ValidateDate(Outside, text);
    return day == 0 ? std::nullopt : std::optional(day);
}

void Session::Print(const Json& json, const std::string& text) {
    const std::string out = JsonWanted() ? DumpJson(json) + "\n" : text;
    if (std::fwrite(out.data(), 1, out.size(), stdout) == out.size() && std::fflush(stdout) == 0) return;
    Outside.Tell(fmt::format("The output can't be written: {}.", std::generic_category().message(errno)));
    outputLost_ = true;
}

bool IsField(Session& session, int row) {
    if (row >= 1 && row <= MaxFields && State.Stat[row].LastDay > 0) return true;
    session.Outside.Tell(fmt::format("There is no field in row {}.", row));
    return false;
}

bool TakeUpFieldToRun(Session& session, int row) {
    return IsField(session, row) && SelectField(session.Outside, row) &&
           FindCoverage(session.Outside, YearOf(State.Stat[row].LastDay)).IsKnown();
}

int PrintRow(Session& session, int row) {
    session.Print(JsonOfRow(row), TextOfRows({row}));
    return ExitDone;
}

}  // namespace veraqua
