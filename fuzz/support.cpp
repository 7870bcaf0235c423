#include "fuzz/support.h"

#include <unistd.h>

#include <cfenv>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>

#include "core/base/failure.h"
#include "core/directory.h"
#include "core/field_in_work.h"
#include "core/state.h"
#include "data/embedded.h"
#include "engine/season_run.h"
#include "weather/default_weather.h"

namespace veraqua {

namespace {

/// The empty directory on the disk that all inputs share.
class SharedDirectory {
  public:
    SharedDirectory() : path_((std::filesystem::temp_directory_path() / "veraqua-fuzz-XXXXXX").string()) {
        Require(mkdtemp(path_.data()) != nullptr, "no room for a temporary directory");
        files::Open(path_, files::Access::Write);
    }
    ~SharedDirectory() {
        files::Close();
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    SharedDirectory(const SharedDirectory&) = delete;
    SharedDirectory& operator=(const SharedDirectory&) = delete;

  private:
    std::string path_;
};

}  // namespace

MemoryDirectory::MemoryDirectory() {
    static const SharedDirectory shared;
    changes_.emplace();
    State = ApplicationState{};
}

void Require(bool holds, std::string_view what) {
    if (holds) return;
    std::cerr << "A find: " << what << ".\n";
    std::abort();
}

bool EndsWell(const std::function<void()>& deed) {
    try {
        deed();
        return true;
    } catch (const RunTimeFailure&) {
        return false;
    } catch (const ProgramEnded&) {
        return false;
    }
}

const WeatherCoefficients& ShippedWeather() {
    static const WeatherCoefficients shipped = [] {
        const MemoryDirectory directory;
        ScriptAsk user;
        files::Write("weathdef.dat", std::string(EmbeddedFile("weathdef.dat")));
        Require(LoadWeatherCoefficients(user, RegionOfStation("06")), "the shipped default weather lacks a region");
        return State.WeatherCoeff;
    }();
    return shipped;
}

void RunFirstField(ScriptAsk& user) {
    if (!EndsWell([&user] { SelectField(user, 1); })) return;
    constexpr int faults = FE_DIVBYZERO | FE_INVALID;
    std::feclearexcept(faults);
    if (!EndsWell([&user] { UpdateField(user); })) return;
    Require(std::fetestexcept(faults) == 0, "a season with an arithmetic fault counts as good");
    Require(EndsWell([] { LoadFieldFile(1); }), "a season has left a field file that can't be read");
    Require(EndsWell([] { LoadFieldDirectory(); }), "a season has left a directory that can't be read");
}

}  // namespace veraqua
