#include "reports/today_fields.h"

#include <algorithm>
#include <optional>
#include <tuple>

#include "core/base/numbers.h"
#include "core/directory.h"
#include "core/state.h"
#include "reports/depletion_warning.h"
#include "reports/field_days.h"
#include "weather/default_days.h"

namespace veraqua {

namespace {

/// What only the file tells.
struct FromFile {
    JulianValue PlantDay = 0;
    JulianValue DepletionDay = 0;
    std::int16_t Depletion = 0;
    int DefaultDays = 0;
};

std::optional<FromFile> ReadFile(int row) {
    try {
        const FieldFile file = LoadFieldFile(row);
        const HeaderCommon& header = file.Header();
        const FieldDay day = PresentDay(file, State.Stat[row], State.TodayJulian);
        return FromFile{header.PlantDay, day.Day, ToInteger16(day.Depletion, "the depletion"),
                        DefaultDaysBefore(header, std::min(State.Stat[row].LastDay, State.TodayJulian))};
    } catch (const RunTimeFailure&) {  // told where the field is opened
        return std::nullopt;
    }
}

NextDeed DeedOf(const FieldToday& field, JulianValue plantDay) {
    const StatRecord& stat = field.Stat;
    if (State.TodayJulian < plantDay) return NextDeed::NotPlanted;
    if (stat.LastDay > State.TodayJulian) return NextDeed::LookBack;
    if (stat.NextIrrAmount == AmountHarvest) return NextDeed::Harvest;
    if (field.DaysBehind > MostDaysBehind) return NextDeed::Weather;
    if (stat.NextIrrAmount > 0 || DepletionWarning(stat.Depletion, stat.MadNow)) return NextDeed::Water;
    return stat.NextIrrAmount == AmountNotRequired ? NextDeed::Nothing : NextDeed::Unknown;
}

Urgency UrgencyOf(const FieldToday& field) {
    if (field.ToDo == NextDeed::Weather) return Urgency::Soon;
    if (field.HasDay && field.DaysLeft == 0) return Urgency::Now;
    const std::optional<Colour> warning = DepletionWarning(field.Stat.Depletion, field.Stat.MadNow);
    if (warning == colours::Red) return Urgency::Now;
    return warning || (field.HasDay && field.DaysLeft <= SoonDays) ? Urgency::Soon : Urgency::Later;
}

/// A field whose depletion was set by hand at or over its MAD isn't run on until it gets water, and one that is ripe
/// has no use for weather: neither waits for it.
int DaysBehind(const FieldToday& field, JulianValue setByHand) {
    const StatRecord& stat = State.Stat[field.Row];
    const bool waitsForWater = setByHand >= stat.LastDay && stat.Depletion >= stat.MadNow && stat.NextIrrAmount > 0;
    if (waitsForWater || stat.NextIrrAmount == AmountHarvest) return 0;
    return std::max(State.TodayJulian - 1 - field.Known, 0);
}

FieldToday FieldIn(int row) {
    FieldToday field;
    field.Row = row;
    field.Stat = State.Stat[row];
    field.DepletionDay = field.Stat.LastDay;
    field.Known = std::min(std::max(field.Stat.LastDay, State.Updates[row]), State.TodayJulian);
    field.DaysBehind = DaysBehind(field, State.Updates[row]);
    const std::optional<FromFile> file = ReadFile(row);
    if (file) {
        field.DepletionDay = file->DepletionDay;
        field.Stat.Depletion = file->Depletion;
        field.DefaultDays = file->DefaultDays;
    }
    field.ToDo = DeedOf(field, file ? file->PlantDay : 0);
    field.HasDay = field.ToDo == NextDeed::Water && field.Stat.NextIrrAmount > 0;
    if (field.HasDay) field.DaysLeft = std::max(field.Stat.NextIrrDay - State.TodayJulian, 0);
    field.Urge = UrgencyOf(field);
    return field;
}

bool IsWorse(const FieldToday& a, const FieldToday& b) {
    const auto key = [](const FieldToday& field) {
        const double ofMad = field.Stat.Depletion / std::max<double>(field.Stat.MadNow, 1);
        const NextDeed group = field.ToDo == NextDeed::Weather ? NextDeed::Water : field.ToDo;
        return std::tuple(group, field.Urge, field.DaysLeft, -ofMad, field.Row);
    };
    return key(a) < key(b);
}

}  // namespace

std::vector<FieldToday> FieldsToday() {
    const std::vector<int> rows = RowsInUse();
    std::vector<FieldToday> fields;
    fields.reserve(rows.size());
    for (const int row : rows) fields.push_back(FieldIn(row));
    std::sort(fields.begin(), fields.end(), IsWorse);
    return fields;
}

}  // namespace veraqua
