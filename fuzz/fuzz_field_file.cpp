// A field file of either kind: reading, writing back, its days, its report, and its season on default weather.

#include <optional>

#include "core/directory.h"
#include "core/field_file.h"
#include "core/state.h"
#include "fuzz/fuzz_target.h"
#include "fuzz/support.h"
#include "reports/field_report.h"

namespace veraqua {

namespace {

/// Longest season that is run: beyond it nothing new comes but waiting.
constexpr std::int16_t LongestRun = 400;

StatRecord RowOf(const FieldFile& file) {
    StatRecord row;
    row.FieldId = file.Header().FieldId;
    row.CropName = file.Header().CropName;
    row.LastDay = file.Header().PlantDay;
    return row;
}

JulianValue LastRow(const FieldFile& file) {
    return file.Header().PlantDay + static_cast<JulianValue>(file.Days.size()) - 1;
}

void LookAtDays(const FieldFile& file) {
    const JulianValue first = file.Header().PlantDay;
    const JulianValue last = LastRow(file);
    for (const JulianValue day : {JulianValue{0}, first - 1, first, first + 1, last - 1, last, last + 1}) {
        const DayView view = AsOf(file, day);
        Require(view.Row < file.Days.size() && view.Day == first + static_cast<JulianValue>(view.Row),
                "a day without a row");
    }
}

/// The weather ends with `startDay`; with `isReset` the depletion was set by hand on that day.
void RunOnDefaultWeather(const FieldFile& file, JulianValue startDay, bool isReset) {
    if (file.Header().SeasonDays > LongestRun) return;
    const WeatherCoefficients& weather = ShippedWeather();
    const MemoryDirectory directory;
    ScriptAsk user;
    StartDirectory();
    State.Stat[1] = RowOf(file);
    State.Updates[1] = isReset ? startDay : 0;
    State.TodayJulian = startDay + 1;
    State.WeatherLastJulian = startDay;
    State.WeatherCoeff = weather;
    StoreFieldFile(1, file);
    SaveFieldRow(user, 1);
    RunFirstField(user);
}

void TakeField(std::string_view bytes, bool isHay) {
    std::optional<FieldFile> file;
    if (!EndsWell([&] { file = ParseFieldFile(bytes, isHay, "field1.dat"); })) return;
    const files::Bytes written = FieldFileBytes(*file);
    Require(bytes.starts_with(written), "a field file comes back as another");
    LookAtDays(*file);
    for (const bool english : {false, true})
        EndsWell([&] { FieldReportText(GatherFieldReport(*file, RowOf(*file), english), LastRow(*file)); });
    RunOnDefaultWeather(*file, file->Header().PlantDay, false);
    RunOnDefaultWeather(*file, LastRow(*file), true);
}

}  // namespace

}  // namespace veraqua

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (const bool isHay : {false, true}) veraqua::TakeField(veraqua::TextOf(data, size), isHay);
    return 0;
}
