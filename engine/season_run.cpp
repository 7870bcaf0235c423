#include "engine/season_run.h"

#include "core/base/numbers.h"
#include "core/directory.h"
#include "core/files/files.h"
#include "core/state.h"
#include "engine/season.h"
#include "engine/soil_water.h"
#include "weather/weather_file.h"

namespace veraqua {

namespace {

/// Puts the row of the field in work back if the run fails before its set of changes is true.
class RowGuard {
  public:
    explicit RowGuard(int row) : row_(row), before_(State.Stat[row]), updatesBefore_(State.Updates[row]) {}
    ~RowGuard() {
        if (kept_) return;
        State.Stat[row_] = before_;
        State.Updates[row_] = updatesBefore_;
    }
    RowGuard(const RowGuard&) = delete;
    RowGuard& operator=(const RowGuard&) = delete;

    void Keep() { kept_ = true; }

  private:
    int row_;
    StatRecord before_;
    JulianValue updatesBefore_;
    bool kept_ = false;
};

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

/// The season in memory. A fault of its arithmetic is told with the field's file.
Season RunFile(const FieldFile& file, const SeasonStart& start, const SeasonWeather& weather, Ask& ask) {
    try {
        return RunSeason(file, start, weather, ask);
    } catch (const RunTimeFailure& failure) {
        throw RunTimeFailure(FieldFileName(State.CurrentField) + ": " + failure.what());
    }
}

void StopRow(const Season& season, StatRecord& row) {
    row.LastDay = season.LastDay;
    row.Depletion = ToInteger16(season.End.Depletion, "the depletion");
    row.MadNow = season.End.Mad;
    row.NextIrrDay = 0;
    row.NextIrrAmount = 0;
}

void LeaveResults(Ask& ask, FieldFile& file, Season& season) {
    if (season.Ending == SeasonEnding::StoppedByUser) StopRow(season, season.Result.Row);
    if (file.IsHay) file.Hay.NextCutDay = season.Result.HayNextCutDay;
    ApplyChanges(file, ChangesOf(file, season));
    file.Soil = season.Soil;
    StoreFieldFile(State.CurrentField, file);
    State.Stat[State.CurrentField] = season.Result.Row;
    SaveFieldRow(ask, State.CurrentField);
}

/// The process-wide values for the screens.
void LeaveState(const FieldFile& file, const Season& season, JulianValue lastWeatherDay) {
    State.Hay.NextCutDay = file.Hay.NextCutDay;
    State.LastWeatherDay = lastWeatherDay;
    State.MadExceededDay = season.Result.MadExceededDay;
    State.DriedOutDay = season.Result.DriedOutDay;
    State.SeasonEndDay = season.Result.SeasonEndDay;
    if (season.Ending == SeasonEnding::StoppedByUser) State.WeatherNeedFrom = -1;
}

}  // namespace

RunOutcome UpdateField(Ask& ask) { return UpdateField(ask, State.TodayJulian); }

RunOutcome UpdateField(Ask& ask, JulianValue today) {
    const JulianValue dayAfterPlanting = State.Header().PlantDay + 1;
    if (State.WeatherLastJulian + 2 < dayAfterPlanting) {
        ask.Tell(
            "No new predictions-weather data needs updating:  Planting date = " + JulianToLongText(dayAfterPlanting) +
                ".  Latest weather = " + JulianToLongText(State.WeatherLastJulian),
            "Veraqua Update Warning");
        return RunOutcome::NothingToUpdate;
    }
    const JulianValue resetDay = State.Updates[State.CurrentField];
    const JulianValue firstWanted = resetDay > 0 ? resetDay + 1 : dayAfterPlanting;

    files::ChangeSet changes;
    RowGuard guard(State.CurrentField);
    MakeWeatherFiles(YearOf(firstWanted));
    std::optional<FieldFile> file = ReadField(ask);
    if (!file) return RunOutcome::FieldFileMissing;

    const SeasonStart start{firstWanted - 1, resetDay > 0, today, State.Stat[State.CurrentField]};
    const JulianValue startDay = AsOf(*file, start.Day).Day;
    const SeasonWeather weather(State.StationCode, startDay + 1, State.WeatherLastJulian, State.WeatherCoeff);
    Season season = RunFile(*file, start, weather, ask);
    if (season.Ending == SeasonEnding::WeatherDamaged) return RunOutcome::WeatherDamaged;
    const bool stopped = season.Ending == SeasonEnding::StoppedByUser;
    if (stopped && !file->IsHay) ask.Tell("Writing updated Field History", "Veraqua Info");

    LeaveResults(ask, *file, season);
    changes.Commit();
    guard.Keep();
    LeaveState(*file, season, weather.LastReal());
    return stopped ? RunOutcome::StoppedByUser : RunOutcome::Done;
}

void CreateField(Ask& ask, const SoilProfile& soil) {
    FieldFile file;
    file.IsHay = State.IsHay;
    file.Field = State.Field;
    file.Hay = State.Hay;
    file.Soil = soil;
    const HeaderCommon& header = file.Header();
    const float rootDepth = file.IsHay ? file.Hay.RootMax : file.Field.RootStart;
    const float water = SoilWaterBetween(0, rootDepth, ContentGrid(header, soil.Bounds), soil.Content);
    const float capacity = SoilWaterBetween(0, rootDepth, CapacityGrid(header, soil.Bounds), soil.Capacity);
    constexpr std::int16_t daysSinceWetAtStart = 4;
    file.Days = {{water, 0, rootDepth, 0, daysSinceWetAtStart}};

    StatRecord row;
    row.FieldId = header.FieldId;
    row.CropName = header.CropName;
    row.LastDay = header.PlantDay;
    row.Depletion = ToInteger16((1 - static_cast<double>(water) / capacity) * 100,
                                "the depletion (by the capacity of the root zone)");
    row.MadNow = header.MAD;
    if (row.Depletion >= row.MadNow) {
        row.NextIrrDay = header.PlantDay;
        row.NextIrrAmount = ToInteger16(static_cast<double>(row.Depletion) * capacity / 100 / header.IrrEff,
                                        "the irrigation needed, mm (by the irrigation efficiency)");
    }

    files::ChangeSet changes;
    RowGuard guard(State.CurrentField);
    State.Stat[State.CurrentField] = row;
    State.Updates[State.CurrentField] = 0;
    StoreFieldFile(State.CurrentField, file);
    SaveFieldRow(ask, State.CurrentField);
    changes.Commit();
    guard.Keep();
    State.VariableSoil = file.VariableSoil();
    State.FieldCount = static_cast<std::int16_t>(RowsInUse().size());
}

}  // namespace veraqua
