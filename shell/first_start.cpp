#include "shell/first_start.h"

#include <algorithm>
#include <iterator>

#include "core/directory.h"
#include "core/files/files.h"
#include "core/state.h"
#include "data/embedded.h"
#include "sample/sample_season.h"
#include "sample/sample_weather.h"

namespace veraqua {

namespace {

void WriteShippedFiles(bool sample) {
    for (const std::string_view name : EmbeddedNames()) {
        const bool isInFolder = name.find('/') != std::string_view::npos;
        if (isInFolder || files::Exists(name)) continue;
        const std::string_view bytes = EmbeddedFile(name);
        files::Write(name, sample && name == "weathdef.dat" ? StationsOfSample(bytes) : std::string(bytes));
    }
}

bool FillWithSample(Ask& ask) {
    if (State.FieldCount > 0) {
        ask.Tell("There are fields in this directory. The sample season needs one without fields.");
        return false;
    }
    return MakeSampleSeason(ask, State.TodayJulian);
}

std::vector<std::string> NewNames(const std::vector<std::string>& before) {
    const std::vector<std::string> now = files::Names();
    std::vector<std::string> made;
    std::ranges::set_difference(now, before, std::back_inserter(made));
    return made;
}

InitOutcome MakeFiles(Ask& ask, bool sample) {
    const std::vector<std::string> before = files::Names();
    files::ChangeSet changes;
    WriteShippedFiles(sample);
    StartUp(ask);
    if (sample && !FillWithSample(ask)) return {true, {}};
    InitOutcome outcome{false, NewNames(before)};
    changes.Commit();
    return outcome;
}

/// The directory, open until it is clear that nothing comes of it.
class OpenedForMaking {
  public:
    explicit OpenedForMaking(const std::string& path) {
        files::MakeDirectory(path);
        files::Open(path, files::Access::Write);
    }
    ~OpenedForMaking() {
        if (!kept_) files::Close();
    }
    OpenedForMaking(const OpenedForMaking&) = delete;
    OpenedForMaking& operator=(const OpenedForMaking&) = delete;

    void Keep() { kept_ = true; }

  private:
    bool kept_ = false;
};

}  // namespace

InitOutcome MakeDataDirectory(Ask& ask, bool sample) {
    InitOutcome outcome = MakeFiles(ask, sample);
    if (!outcome.Refused) StartUp(ask);
    return outcome;
}

InitOutcome MakeDataDirectoryAt(Ask& ask, const std::string& path, bool sample) {
    OpenedForMaking directory(path);
    InitOutcome outcome = MakeDataDirectory(ask, sample);
    if (!outcome.Refused) directory.Keep();
    return outcome;
}

}  // namespace veraqua
