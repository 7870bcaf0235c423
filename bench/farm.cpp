#include "bench/farm.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include <fmt/format.h>

#include "core/crop_table.h"
#include "core/directory.h"
#include "core/field_in_work.h"
#include "core/files/files.h"
#include "core/state.h"
#include "data/embedded.h"
#include "engine/season_run.h"
#include "weather/coverage.h"
#include "weather/default_weather.h"

namespace veraqua::bench {

namespace {

constexpr JulianValue Planting = JulianFromDate(4, 1, 2026);
constexpr JulianValue Today = JulianFromDate(7, 20, 2026);

// Rows of the shipped crop table.
constexpr int Maize = 1;
constexpr int Alfalfa = 25;

/// A season with rain each ninth day and, on the days between, irrigation each twelfth.
void AddWater(FieldChanges& changes) {
    for (JulianValue day = Planting + 9; day < Today; day += 9) changes.Lists.Rain.push_back({day, 8});
    for (JulianValue day = Planting + 12; day < Today; day += 12) changes.Lists.Irrigation.push_back({day, 35});
}

void AddField(Ask& ask, int row, bool hay, std::int16_t days) {
    State.CurrentField = static_cast<std::int16_t>(row);
    ReadCrop(ask, hay ? Alfalfa : Maize);
    HeaderCommon& header = State.Header();
    header.FieldId = fmt::format("FIELD {}", row);
    header.StationCode = "06";
    header.PlantDay = Planting;
    header.SeasonDays = days;
    header.MAD = 55;
    header.IrrEff = 0.8F;
    header.CapacityInterval = 0.3F;
    header.ContentInterval = 0.3F;
    header.CapacityTop = 4;
    header.ContentTop = 4;
    if (hay) State.Hay.MADCritical = 70;
    SoilProfile soil;
    soil.Capacity.fill(140);
    soil.Content.fill(120);
    CreateField(ask, soil);

    FieldChanges changes;
    AddWater(changes);
    if (hay)
        for (std::int16_t cut = 1; cut <= 3; ++cut) changes.Lists.Cuttings.push_back({Planting + 30 * cut, cut});
    FieldFile file = LoadFieldFile(row);
    WriteField(file, changes);
    StoreFieldFile(row, file);
}

}  // namespace

JulianValue QuietAsk::Now() const { return Today; }

void QuietAsk::EndProgram() { throw std::runtime_error("The program has ended."); }

Farm::Farm(int fields, std::int16_t days, bool withHay) {
    path_ = (std::filesystem::temp_directory_path() / "veraqua-bench-XXXXXX").string();
    if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("There is no room for " + path_);
    State = ApplicationState{};
    files::Open(path_, files::Access::Write);
    files::ChangeSet changes;
    for (const char* name : {"crop.dat", "weathdef.dat"}) files::Write(name, std::string(EmbeddedFile(name)));
    StartUp(ask_);
    State.StationCode = "06";
    LoadWeatherCoefficients(ask_, RegionOfStation(State.StationCode));
    WriteDefaultWeather({JulianFromDate(1, 1, 2026), Today - 1});
    for (int row = 1; row <= fields; ++row) AddField(ask_, row, withHay && row % 2 == 0, days);
    changes.Commit();
}

Farm::~Farm() {
    files::Close();
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

void Farm::Select(int row) {
    SelectField(ask_, row);
    FindCoverage(ask_, YearOf(Planting));
}

}  // namespace veraqua::bench
