#include "engine/season_run.h"

#include "core/base/numbers.h"
#include "core/directory.h"
#include "core/field_in_work.h"
#include "core/files/files.h"
#include "core/state.h"
#include "engine/season.h"
#include "engine/soil_water.h"
#include "weather/weather_file.h"

namespace veraqua {

namespace {

/// A season and its harvest may lie in the next years: their weather files are made by looking.
void MakeWeatherFiles(int firstYear) {
    for (int year = firstYear; year < firstYear + SeasonWeather::Years; ++year)
        MakeWeatherFile(State.StationCode, year);
}

/// The rows and lists of a run, ready for the file: what the run has made follows the start day, and nothing of an
/// older run stays behind it.
FieldChanges ChangesOf(const FieldFile& file, Season& season) {
    FieldChanges changes;
    changes.StartDay = season.StartDay;
    changes.Days.reserve(season.Days.size() + 1);
    changes.Days.push_back(file.Days[static_cast<std::size_t>(season.StartDay - file.Header().PlantDay)]);
    changes.Days.insert(changes.Days.end(), season.Days.begin(), season.Days.end());
    changes.Merge = true;
    changes.SeamDay = season.StartDay;
    changes.Lists.Leaching = std::move(season.Leaching);
    changes.Lists.History = std::move(season.History);
    return changes;
}

void StopRow(const Season& season, StatRecord& row) {
    row.LastDay = season.LastDay;
    row.Depletion = ToInteger16(season.End.Depletion, "the depletion");
    row.MadNow = season.End.Mad;
    row.NextIrrDay = 0;
    row.NextIrrAmount = 0;
}

void TakeResults(Season& season, FieldInHand& field) {
    FieldFile& file = field.File;
    if (season.Ending == SeasonEnding::StoppedByUser) StopRow(season, season.Result.Row);
    if (file.IsHay) file.Hay.NextCutDay = season.Result.HayNextCutDay;
    WriteField(file, ChangesOf(file, season));
    file.Soil = season.Soil;
    field.Row = season.Result.Row;
}

/// Whether the weather reaches planting; if not, the user is told.
bool WeatherReachesPlanting(Ask& ask, JulianValue plantDay) {
    const JulianValue dayAfterPlanting = plantDay + 1;
    if (State.WeatherLastJulian + 2 >= dayAfterPlanting) return true;
    ask.Tell("No new predictions-weather data needs updating:  Planting date = " + JulianToLongText(dayAfterPlanting) +
                 ".  Latest weather = " + JulianToLongText(State.WeatherLastJulian),
             "Veraqua Update Warning");
    return false;
}

}  // namespace

std::optional<FieldInHand> TakeInHand(Ask& ask) {
    const int row = State.CurrentField;
    std::optional<FieldFile> file = OpenField(ask, row);
    if (!file) return std::nullopt;
    return FieldInHand{*std::move(file), State.Stat[row], State.Updates[row]};
}

FieldRun RunField(Ask& ask, FieldInHand& field, JulianValue today) {
    FieldFile& file = field.File;
    if (!WeatherReachesPlanting(ask, file.Header().PlantDay)) return {RunOutcome::NothingToUpdate, {}, 0};
    const bool wasReset = field.DepletionDay > 0;
    const JulianValue firstWanted = (wasReset ? field.DepletionDay : file.Header().PlantDay) + 1;

    files::ChangeSet weatherFiles;
    MakeWeatherFiles(YearOf(firstWanted));
    const SeasonStart start{firstWanted - 1, wasReset, today, field.Row};
    const JulianValue startDay = AsOf(file, start.Day).Day;
    const SeasonWeather weather(State.StationCode, startDay + 1, State.WeatherLastJulian, State.WeatherCoeff);
    Season season = InFile(FieldFileTitle(State.CurrentField), [&] { return RunSeason(file, start, weather, ask); });
    if (season.Ending == SeasonEnding::WeatherDamaged) return {RunOutcome::WeatherDamaged, {}, 0};
    const bool stopped = season.Ending == SeasonEnding::StoppedByUser;
    if (stopped && !file.IsHay) ask.Tell("Writing updated Field History", "Veraqua Info");
    TakeResults(season, field);
    weatherFiles.Commit();
    return {stopped ? RunOutcome::StoppedByUser : RunOutcome::Done, season.Result, weather.LastReal()};
}

void StoreField(Ask& ask, const FieldInHand& field) {
    const int row = State.CurrentField;
    files::ChangeSet fileAndRow;
    StoreFieldFile(row, field.File);
    WriteFieldRow(ask, row, field.Row, field.DepletionDay);
    fileAndRow.Commit();
}

void LeaveInState(const FieldInHand& field, const FieldRun& run) {
    State.Stat[State.CurrentField] = field.Row;
    State.Updates[State.CurrentField] = field.DepletionDay;
    TakeInWork(field.File);
    if (!run.HasRun()) return;
    State.LastWeatherDay = run.LastWeatherDay;
    State.MadExceededDay = run.Result.MadExceededDay;
    State.DriedOutDay = run.Result.DriedOutDay;
    State.SeasonEndDay = run.Result.SeasonEndDay;
    if (run.Outcome == RunOutcome::StoppedByUser) State.WeatherNeedFrom = -1;  // there is no range to be brought in
}

FieldRun UpdateField(Ask& ask) { return UpdateField(ask, State.TodayJulian); }

FieldRun UpdateField(Ask& ask, JulianValue today) {
    if (!WeatherReachesPlanting(ask, State.Header().PlantDay)) return {RunOutcome::NothingToUpdate, {}, 0};
    files::ChangeSet changes;
    std::optional<FieldInHand> field = TakeInHand(ask);
    if (!field) return {RunOutcome::FieldFileMissing, {}, 0};
    FieldRun run = RunField(ask, *field, today);
    if (!run.HasRun()) return run;
    StoreField(ask, *field);
    changes.Commit();
    LeaveInState(*field, run);
    return run;
}

FieldInHand NewField(const FieldFile& headerAndSoil) {
    FieldInHand field{headerAndSoil, {}, 0};
    FieldFile& file = field.File;
    const HeaderCommon& header = file.Header();
    const float rootDepth = file.IsHay ? file.Hay.RootMax : file.Field.RootStart;
    const float water = SoilWaterBetween(0, rootDepth, ContentGrid(header, file.Soil.Bounds), file.Soil.Content);
    const float capacity = SoilWaterBetween(0, rootDepth, CapacityGrid(header, file.Soil.Bounds), file.Soil.Capacity);
    constexpr std::int16_t daysSinceWetAtStart = 4;
    file.Days = {{water, 0, rootDepth, 0, daysSinceWetAtStart}};
    file.Lists = {};

    StatRecord& row = field.Row;
    row.FieldId = header.FieldId;
    row.CropName = header.CropName;
    row.LastDay = header.PlantDay;
    row.Depletion = ToInteger16((1 - static_cast<double>(water) / capacity) * 100,
                                "the depletion (by the capacity of the root zone)");
    row.MadNow = header.MAD;
    if (row.Depletion >= row.MadNow) {
        row.NextIrrDay = header.PlantDay;
        row.NextIrrAmount = IrrigationAmount(static_cast<double>(row.Depletion) * capacity / 100 / header.IrrEff);
    }
    return field;
}

void CreateField(Ask& ask, const SoilProfile& soil) {
    FieldFile file;
    file.IsHay = State.IsHay;
    file.Field = State.Field;
    file.Hay = State.Hay;
    file.Soil = soil;
    const FieldInHand field = NewField(file);
    StoreField(ask, field);
    LeaveInState(field, {});
    State.FieldCount = static_cast<std::int16_t>(RowsInUse().size());
}

}  // namespace veraqua
