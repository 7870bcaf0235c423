#include "shell/farm.h"

#include <fmt/format.h>

#include "core/directory.h"
#include "core/files/files.h"
#include "core/state.h"
#include "shell/data_search.h"
#include "shell/first_start.h"
#include "weather/network_address.h"

namespace veraqua {

namespace {

/// The state without a farm, while another one is tried. It comes back, and so does the farm's directory, unless the
/// other one is kept.
class Change {
  public:
    Change() {
        State = {};
        State.StartDate = before_.StartDate;
    }
    ~Change() {
        if (!kept_) State = before_;
    }
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;

    void Keep() {
        TakeNetworkOfUser();
        State.EnglishUnits = before_.EnglishUnits;
        State.DisplayDays = before_.DisplayDays;
        State.TodayJulian = before_.TodayJulian;
        directory_.Keep();
        kept_ = true;
    }

  private:
    ApplicationState before_ = State;
    files::SetAside directory_;
    bool kept_ = false;
};

void ExpectAnother(const std::string& path) {
    if (files::SameDirectory(files::DirectoryPath(), path)) throw Refusal(fmt::format("{} is open already.", path));
}

}  // namespace

void OpenFarm(Ask& ask, const std::string& path) {
    ExpectAnother(path);
    Change change;
    if (!OpenDataDirectory({path}, files::Access::Write))
        throw Refusal(fmt::format("There is no farm in {}: it has no file {}.", path, DataDirectoryMarker));
    StartUp(ask);
    change.Keep();
}

bool MakeFarm(Ask& ask, const std::string& path, bool sample) {
    ExpectAnother(path);
    Change change;
    if (IsDataDirectory(path)) throw Refusal(fmt::format("There is a farm in {} already. Open it.", path));
    if (MakeDataDirectoryAt(ask, path, sample).Refused) return false;
    change.Keep();
    return true;
}

}  // namespace veraqua
