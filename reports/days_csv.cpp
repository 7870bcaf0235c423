#include "reports/days_csv.h"

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "reports/field_days.h"
#include "reports/report_text.h"

namespace veraqua {

namespace {

/// Parts of a unit that a column shows: more than any screen does, but none that single precision doesn't hold.
constexpr double Parts = 10000;

std::string Cell(double value) { return Plain(static_cast<float>(RoundedTo(value, Parts))); }

std::string Heading(bool isHay, bool english) {
    const char* water = english ? "in" : "mm";
    const char* heat = english ? "f" : "c";
    std::string line = fmt::format(
        "date,day,available_{0},depletion_percent,gdd_{1},gdd_sum_{1},etr_{0},etr_sum_{0},kc,kd,etc_{0},etc_sum_{0}",
        water, heat);
    if (!isHay) line += english ? ",root_ft" : ",root_m";
    line += fmt::format(",irrigation_{0},rain_{0}", water);
    return line + (isHay ? ",cutting\n" : "\n");
}

}  // namespace

std::string DaysCsv(const FieldFile& file, bool english) {
    const DayUnits in{english};
    std::string text = Heading(file.IsHay, english);
    for (const FieldDay& day : DaysSincePlanting(file)) {
        text += fmt::format("{},{}", IsoDate(day.Day), day.DaysAfterPlanting);
        for (const double value : {in.Water(day.Available), day.Depletion, in.Heat(day.Gdd), in.Heat(day.GddSum),
                                   in.Water(day.Etr), in.Water(day.EtrSum), static_cast<double>(day.Kc),
                                   static_cast<double>(day.Kd), in.Water(day.Etc), in.Water(day.EtcSum)})
            text += ',' + Cell(value);
        if (!file.IsHay) text += ',' + Cell(in.Root(day.RootDepth));
        text += ',' + Cell(in.Water(day.Irrigation.value_or(0))) + ',' + Cell(in.Water(day.Rain.value_or(0)));
        text += file.IsHay ? fmt::format(",{}\n", day.Cutting) : "\n";
    }
    return text;
}

}  // namespace veraqua
