// The weather file of one year: its records, the coverage that it gives, and seasons of a crop and of hay on it.

#include <string>

#include "core/directory.h"
#include "core/state.h"
#include "data/embedded.h"
#include "fuzz/fuzz_target.h"
#include "fuzz/support.h"
#include "tests/support/builders.h"
#include "weather/coverage.h"
#include "weather/weather_file.h"

namespace veraqua {

namespace {

constexpr int Year = 2003;

/// Records that can be read are the same when they are written again.
void RewriteRecords(std::string_view bytes) {
    WeatherFile file(State.StationCode, Year);
    for (int day = 1; day <= file.Days(); ++day) EndsWell([&] { file.Put(day, file.Day(day)); });
    file.Save();
    Require(*files::Read(file.Name()) == bytes, "a weather record comes back as another");
}

/// `acceptsDefault` is the user's answer for a day that was not measured.
void RunField(AField field, bool acceptsDefault) {
    ScriptAsk user;
    user.OtherAnswer = acceptsDefault;
    field.PlantedOn(JulianFromDate(1, 1, Year)).With([](FieldFile& file) { file.Header().SeasonDays = 60; }).StoreAt(1);
    RunFirstField(user);
}

void TakeYear(std::string_view bytes) {
    const MemoryDirectory directory;
    ScriptAsk user;
    files::Write("weathdef.dat", std::string(EmbeddedFile("weathdef.dat")));
    State.StationCode = "06";
    files::Write(WeatherFileName(State.StationCode, Year), std::string(bytes));
    RewriteRecords(bytes);
    State.TodayJulian = user.Now();
    if (!EndsWell([&user] { FindCoverage(user, Year); })) return;
    for (const bool acceptsDefault : {false, true}) {
        RunField(AField(), acceptsDefault);
        RunField(AField().Hay(), acceptsDefault);
    }
}

}  // namespace

}  // namespace veraqua

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    veraqua::TakeYear(veraqua::TextOf(data, size));
    return 0;
}
