#include "reports/field_days.h"

#include <algorithm>
#include <span>

#include "engine/curves.h"
#include "engine/soil_water.h"

namespace veraqua {

namespace {

/// Amount of the first event of `day`.
std::optional<std::int16_t> AmountOn(std::span<const EventRecord> events, JulianValue day) {
    const auto event = std::find_if(events.begin(), events.end(), [day](const EventRecord& e) { return e.Day == day; });
    if (event == events.end()) return std::nullopt;
    return event->Amount;
}

/// A list of water that doesn't come to more than nothing isn't shown.
std::span<const EventRecord> Shown(const std::vector<EventRecord>& water) {
    if (TotalAmount(water) > 0) return water;
    return {};
}

/// Kc of row `row`. Hay keeps it, but its first row holds the root depth.
float KcOf(const FieldFile& file, std::size_t row) {
    if (!file.IsHay) return KcCrop(file.Field, file.Days[row].GddSum);
    return row == 0 ? 0 : file.Days[row].RootDepthOrKc;
}

}  // namespace

FieldDay StateOf(const FieldFile& file, std::size_t row) {
    const DayRecord& record = file.Days[row];
    FieldDay day;
    day.DaysAfterPlanting = static_cast<int>(row);
    day.Day = file.Header().PlantDay + day.DaysAfterPlanting;
    day.Available = record.Available;
    day.GddSum = record.GddSum;
    day.EtrSum = record.EtrSum;
    day.RootDepth = file.IsHay ? file.Hay.RootMax : record.RootDepthOrKc;
    day.Capacity =
        SoilWaterBetween(0, day.RootDepth, CapacityGrid(file.Header(), file.Soil.Bounds), file.Soil.Capacity);
    day.Kc = KcOf(file, row);
    day.Kd = DrynessCoefficient(day.Available, day.Capacity);
    day.Depletion = (1 - static_cast<double>(day.Available) / day.Capacity) * 100;
    return day;
}

FieldDay PresentDay(const FieldFile& file, const StatRecord& row, JulianValue today) {
    return StateOf(file, AsOf(file, StateDay(row, today)).Row);
}

std::vector<FieldDay> DaysSincePlanting(const FieldFile& file) {
    const auto irrigation = Shown(file.Lists.Irrigation);
    const auto rain = Shown(file.Lists.Rain);
    std::vector<FieldDay> days;
    days.reserve(file.Days.size());
    FieldDay before;
    for (std::size_t row = 0; row < file.Days.size(); ++row) {
        FieldDay day = StateOf(file, row);
        day.Gdd = static_cast<double>(day.GddSum) - before.GddSum;
        day.Etr = static_cast<double>(day.EtrSum) - before.EtrSum;
        day.Etc = day.Kc * day.Etr * day.Kd;
        day.EtcSum = before.EtcSum + day.Etc;
        day.Irrigation = AmountOn(irrigation, day.Day);
        day.Rain = AmountOn(rain, day.Day);
        day.Cutting = AmountOn(file.Lists.Cuttings, day.Day).value_or(0);
        days.push_back(day);
        before = day;
    }
    return days;
}

}  // namespace veraqua
