#include <benchmark/benchmark.h>

#include "bench/farm.h"
#include "core/field_file.h"
#include "core/state.h"
#include "engine/season.h"
#include "engine/season_run.h"
#include "reports/field_report.h"

namespace veraqua::bench {
namespace {

/// One whole season in memory: soil, weather and events in, rows and prediction out.
void RunInMemory(benchmark::State& run, int row) {
    constexpr std::int16_t days = 200;
    Farm farm(2, days, true);
    farm.Select(row);
    const FieldFile file = LoadFieldFile(row);
    const JulianValue planted = file.Header().PlantDay;
    const SeasonWeather weather("06", planted + 1, State.WeatherLastJulian, State.WeatherCoeff);
    const SeasonStart start{planted, false, State.TodayJulian, State.Stat[row]};
    std::size_t rows = 0;
    for (auto _ : run) {
        const Season season = RunSeason(file, start, weather, farm.Outside());
        rows = season.Days.size();
        benchmark::DoNotOptimize(season.End.Available);
    }
    run.counters["days"] = static_cast<double>(rows);
}

void SeasonOfOrdinaryCrop(benchmark::State& run) { RunInMemory(run, 1); }
BENCHMARK(SeasonOfOrdinaryCrop)->Unit(benchmark::kMicrosecond);

void SeasonOfHay(benchmark::State& run) { RunInMemory(run, 2); }
BENCHMARK(SeasonOfHay)->Unit(benchmark::kMicrosecond);

/// From the disk and back. The efficiency goes to and fro, so that every run has something to write.
void UpdateFieldFromDisk(benchmark::State& run) {
    Farm farm(1, 140, false);
    farm.Select(1);
    bool high = false;
    for (auto _ : run) {
        run.PauseTiming();
        FieldFile file = LoadFieldFile(1);
        high = !high;
        file.Field.IrrEff = high ? 0.9F : 0.7F;
        StoreFieldFile(1, file);
        run.ResumeTiming();
        UpdateField(farm.Outside());
    }
}
BENCHMARK(UpdateFieldFromDisk)->Unit(benchmark::kMillisecond);

void FieldReportOfASeason(benchmark::State& run) {
    Farm farm(1, 140, false);
    farm.Select(1);
    UpdateField(farm.Outside());
    for (auto _ : run) benchmark::DoNotOptimize(FieldReportText(farm.Outside(), 1));
}
BENCHMARK(FieldReportOfASeason)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace veraqua::bench
