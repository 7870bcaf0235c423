#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include "bench/farm.h"
#include "catch_up/weather_commands.h"
#include "core/files/files.h"

namespace veraqua::bench {
namespace {

/// A text of the network for a whole year of mild weather.
std::string TextOfYear(int year) {
    std::string text;
    for (int day = 1; day <= DaysInYear(year); ++day)
        text +=
            fmt::format("{},{},6,{}.51,{}.25,14.0,91.0,4{}.0,60.0,0.9,1{}.42,0,0,0,0,0,0,0,2.{},0,0,0,0,4.1,0,0,0,0\n",
                        year, day, 20 + day % 9, 5 + day % 7, day % 10, day % 10, day % 10);
    return text;
}

/// A year's text into the weather file, in a change set that never reaches the disk: the flush is measured with the
/// fields.
void ImportOfAYear(benchmark::State& run) {
    Farm farm(0, 140, false);

    const std::string text = TextOfYear(2025);
    for (auto _ : run) {
        files::ChangeSet changes;
        files::Write("kesta.25", text);
        ImportRange(farm.Outside(), WeatherCommand::Append, {JulianFromDate(1, 1, 2025), JulianFromDate(12, 31, 2025)});
    }
}
BENCHMARK(ImportOfAYear)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veraqua::bench
