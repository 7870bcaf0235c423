#include "sample/sample_season.h"

#include <algorithm>
#include <deque>
#include <optional>

#include <fmt/format.h>

#include "core/backup_name.h"
#include "core/base/numbers.h"
#include "core/base/units.h"
#include "core/crop_table.h"
#include "core/directory.h"
#include "core/field_in_work.h"
#include "core/files/files.h"
#include "core/state.h"
#include "engine/season_run.h"
#include "sample/sample_grower.h"
#include "sample/sample_plantings.h"
#include "sample/sample_weather.h"
#include "weather/coverage.h"

namespace veraqua {

namespace {

constexpr std::int16_t CriticalMad = 80;  ///< percent

// Depths are stored as the entry forms store what is typed in inches; the form of hay shows its roots in tenths.
float FromInches(double inches) { return ToSingle(inches / InchesPerFoot * MetresPerFoot, "a depth"); }

float AsTypedInInches(float metres) { return FromInches(RoundedTo(metres / MetresPerFoot * InchesPerFoot, 10)); }

int CropNumber(Ask& ask, std::string_view name) {
    LoadCropList(ask);
    const auto crop = std::ranges::find(State.CropNames, name);
    if (crop == State.CropNames.end())
        throw RunTimeFailure(fmt::format("crop.dat: the sample season needs the crop {}, which it lacks.", name));
    return static_cast<int>(crop - State.CropNames.begin()) + 1;
}

HeaderCommon& FillHeader(const CropSeason& season) {
    const SamplePlanting& planting = *season.Planting;
    HeaderCommon& header = State.Header();
    header.FieldId = planting.Parcel;
    header.StationCode = planting.Farm->Station;
    header.PlantDay = season.PlantDay;
    header.MAD = ToInteger16(planting.MAD, "the MAD");
    header.IrrEff = ToSingle(planting.Efficiency / 100.0, "the efficiency");
    if (State.IsHay) {
        State.Hay.RootMax = AsTypedInInches(State.Hay.RootMax);
        State.Hay.MADCritical = CriticalMad;
    }
    return header;
}

/// The layer of `soil` at a depth of `inches`; the last one goes on downwards.
std::size_t IndexOfLayer(const SampleSoil& soil, int inches) {
    std::size_t layer = 0;
    for (int bottom = soil.Layers[0].Inches; bottom <= inches && layer + 1 < soil.Layers.size();)
        bottom += soil.Layers[++layer].Inches;
    return layer;
}

/// The soil of `planting`, with its zones counted in `header`.
SoilProfile SoilOf(const SamplePlanting& planting, HeaderCommon& header) {
    const SampleSoil& soil = *planting.Soil;
    SoilProfile profile;
    std::size_t top = soil.Layers.size() - 1;
    if (soil.ZoneInches > 0) {
        header.CapacityInterval = header.ContentInterval = FromInches(soil.ZoneInches);
        top = static_cast<std::size_t>(ZoneAt(header.RootMax, header.CapacityInterval));
    } else {
        for (std::size_t i = 0; i <= top; ++i) profile.Bounds[i] = FromInches(soil.Layers[i].Inches);
    }
    header.CapacityTop = header.ContentTop = static_cast<std::int16_t>(top);
    for (std::size_t zone = 0; zone <= top; ++zone) {
        const std::size_t layer =
            soil.ZoneInches > 0 ? IndexOfLayer(soil, static_cast<int>(zone) * soil.ZoneInches) : zone;
        const int capacity = soil.Layers[layer].Capacity;
        const int share = zone == 0 ? planting.WaterAbove : planting.WaterBelow;
        profile.Capacity[zone] = static_cast<std::int16_t>(capacity);
        profile.Content[zone] = ToInteger16(capacity * share / 100.0, "the water content");
    }
    return profile;
}

/// Takes the weather of the station in work from the year of `plantDay` through the day before `asOf`.
void TakeWeather(Ask& ask, JulianValue plantDay, JulianValue asOf) {
    FindCoverage(ask, YearOf(plantDay));
    State.WeatherLastJulian = std::min(State.WeatherLastJulian, asOf - 1);
}

/// A field of the sample while it is being made.
struct SampleField {
    int Row;
    SampleGrower Grower;
};

/// Makes the field with its rain and lets the grower work it up to the day before `asOf`. Nothing if the default
/// weather of its station is missing; the user has been told.
std::optional<SampleField> WorkedField(Ask& ask, const CropSeason& season, JulianValue asOf, JulianValue today) {
    const SamplePlanting& planting = *season.Planting;
    const int row = LowestFreeRow();
    State.CurrentField = static_cast<std::int16_t>(row);
    State.StationCode = planting.Farm->Station;
    ReadCrop(ask, CropNumber(ask, planting.Crop));
    HeaderCommon& header = FillHeader(season);
    CreateField(ask, SoilOf(planting, header));

    if (!ImportSampleWeather(ask, YearOf(season.PlantDay), today - 1)) return std::nullopt;
    TakeWeather(ask, season.PlantDay, asOf);
    FieldFile file = LoadFieldFile(row);
    file.Lists.Rain = SampleRain(State.StationCode, season.PlantDay + 1, asOf - 1);
    const SeasonStart start{season.PlantDay, false, asOf, State.Stat[row]};
    SampleField field{row, SampleGrower(ask, std::move(file), start, *planting.Farm)};
    field.Grower.Work();
    return field;
}

/// Writes what the grower did and runs the season as of that day. False if the weather that was there before won't do;
/// the user has been told.
bool BringUpToDate(Ask& ask, const SampleField& field, JulianValue asOf) {
    StoreFieldFile(field.Row, field.Grower.File());
    SelectField(ask, field.Row);
    TakeWeather(ask, State.Header().PlantDay, asOf);
    return UpdateField(ask, asOf).Outcome == RunOutcome::Done;
}

/// One grower comes too late, unless a field stands over its MAD anyway.
void NeglectOne(std::deque<SampleField>& fields) {
    for (const SampleField& field : fields)
        if (field.Grower.IsOverMad()) return;
    for (SampleField& field : fields)
        if (field.Grower.Neglect()) return;
}

/// The field that was harvested last: its file is a backup, its row is free again.
bool MakeHarvested(Ask& ask, JulianValue today) {
    const CropSeason season = LastHarvest(today);
    const std::optional<SampleField> field = WorkedField(ask, season, season.HarvestDay, today);
    if (!field || !BringUpToDate(ask, *field, season.HarvestDay)) return false;
    files::Rename(FieldFileName(field->Row), FreeBackupName(State.Header().FieldId, season.HarvestDay));
    State.Stat[field->Row] = {};
    SaveFieldRow(ask, field->Row);
    return true;
}

}  // namespace

bool MakeSampleSeason(Ask& ask, JulianValue today) {
    if (!MakeHarvested(ask, today)) return false;
    std::deque<SampleField> fields;
    for (const CropSeason& season : SeasonsInTheGround(today)) {
        std::optional<SampleField> field = WorkedField(ask, season, today, today);
        if (!field) return false;
        fields.push_back(std::move(*field));
    }
    NeglectOne(fields);
    return std::ranges::all_of(fields, [&](const SampleField& field) { return BringUpToDate(ask, field, today); });
}

}  // namespace veraqua
