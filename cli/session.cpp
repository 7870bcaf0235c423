#include "cli/session.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <system_error>

#include <fmt/format.h>

#include "core/directory.h"
#include "core/field_file.h"
#include "core/state.h"
#include "core/text.h"

namespace veraqua {

namespace {

constexpr std::string_view Marker = "weathdef.dat";
constexpr std::string_view NetworkFile = "network.txt";

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

/// Directory for the user's data of all programs, with a final "/".
std::string DataHome() {
    const std::string home = Environment("XDG_DATA_HOME");
    return (home.empty() ? Environment("HOME") + "/.local/share" : home) + "/";
}

std::string WithSlash(std::string url) {
    if (!url.ends_with('/')) url += '/';
    return url;
}

/// Looks without making anything, a lock neither: what was typed may be any directory.
bool IsDataDirectory(const std::string& path) {
    if (!files::DirectoryExists(path)) return false;
    files::Open(path, files::Access::Read);
    const bool hasMarker = files::Exists(Marker);
    files::Close();
    return hasMarker;
}

/// The first line of network.txt, empty where there is none.
std::string NetworkFromFile() {
    const auto bytes = files::Read(NetworkFile);
    if (!bytes) return {};
    const std::string_view line = std::string_view(*bytes).substr(0, bytes->find_first_of("\r\n"));
    return Utf8FromLatin1(Trimmed(line));
}

}  // namespace

bool Session::Prepare() {
    Outside.AllowProgress(!Options.JsonWanted);
    Outside.SetAnswer(Options.Answer == "yes");
    if (!Options.Today) return true;
    const std::optional<JulianValue> today = DateFrom(*Options.Today);
    if (today) Outside.SetNow(*today);
    return today.has_value();
}

bool Session::OpenData(files::Access access) {
    std::vector<std::string> candidates{DataHome() + "veraqua", DataHome() + "Veraqua"};
    if (Options.DataDirectory) candidates = {*Options.DataDirectory};
    for (const std::string& path : candidates) {
        if (!IsDataDirectory(path)) continue;
        files::Open(path, access);
        StartSystem();
        return true;
    }
    Outside.Tell(fmt::format("There is no data directory (one with {}) at {}. \"veraqua-cli init\" makes one.", Marker,
                             fmt::join(candidates, " or ")));
    return false;
}

std::string Session::DirectoryToMake() const { return Options.DataDirectory.value_or(DataHome() + "veraqua"); }

void Session::StartSystem() {
    StartUp(Outside);
    State.StartDate = Outside.Now();
    State.EnglishUnits = Options.Units == "english";
    const std::string fromFile = NetworkFromFile();
    if (!fromFile.empty()) State.BaseUrl = WithSlash(fromFile);
    if (!Options.BaseUrl.empty()) State.BaseUrl = WithSlash(Options.BaseUrl);
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

}  // namespace veraqua
