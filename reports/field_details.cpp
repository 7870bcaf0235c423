#include "reports/field_details.h"

#include <algorithm>
#include <span>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "reports/field_days.h"
#include "reports/report_text.h"
#include "reports/soil_lines.h"

namespace veraqua {

namespace {

/// Water as the details show it: hundredths of inches, or plain millimetres.
std::string WaterText(double millimetres, const DayUnits& units) {
    return units.English ? Masked(units.Water(millimetres), "0.00") + " in" : Plain(millimetres) + " mm";
}

std::string TotalText(double millimetres, const DayUnits& units) {
    return millimetres == 0 ? "None" : WaterText(millimetres, units);
}

/// What leached from planting through `day`.
double LeachedThrough(JulianValue day, const std::vector<EventRecord>& leaching) {
    double sum = 0;
    for (const EventRecord& event : leaching) sum += event.Day <= day ? event.Amount : 0;
    return sum;
}

/// None of a list that comes to nothing.
std::vector<std::string> LatestOf(const std::vector<EventRecord>& water, const DayUnits& units) {
    std::vector<std::string> texts;
    const std::size_t shown = TotalAmount(water) == 0 ? 0 : std::min(LatestWaterShown, water.size());
    for (const EventRecord& event : std::span(water).last(shown))
        texts.push_back(fmt::format("{}     {} {}", JulianToShortText(event.Day),
                                    Masked(units.Water(event.Amount), "0.0"), units.English ? "in" : "mm"));
    return texts;
}

std::string SoilText(const SoilZone& zone, bool english) {
    return fmt::format("{} to {} {}:  {}{}", Masked(SoilDepth(zone.Top, english), "00"),
                       Masked(SoilDepth(zone.Bottom, english), "00"), english ? "in" : "mm",
                       Masked(WaterPerDepth(zone.Water, english), english ? "0.00" : "0.0"),
                       english ? "in/ft" : "mm/m");
}

/// The profile of the planting day.
std::vector<std::string> SoilTexts(const FieldFile& file, bool english) {
    const HeaderCommon& header = file.Header();
    std::vector<std::string> texts;
    for (const SoilZone& zone : SoilZones(ContentGrid(header, file.Soil.Bounds), AsOf(file, header.PlantDay).Content))
        texts.push_back(SoilText(zone, english));
    return texts;
}

}  // namespace

FieldDetails DetailsOf(const FieldFile& file, const StatRecord& row, JulianValue today, bool english) {
    const FieldDay day = PresentDay(file, row, today);
    const DayUnits units{english};
    FieldDetails details;
    details.Day = ReportDate(day.Day);
    details.Kc = Masked(day.Kc, "0.00");
    details.Kd = Masked(day.Kd, "0.00");
    details.Gdd = Masked(units.Heat(day.GddSum), "0") + (english ? " (F)" : " (C)");
    details.RootDepth = Masked(units.Root(day.RootDepth), "0.00") + (english ? " ft" : " m");
    details.Deficit = WaterText(static_cast<double>(day.Capacity) - day.Available, units);
    details.TotalIrrigation = TotalText(TotalAmount(file.Lists.Irrigation), units);
    details.TotalRain = TotalText(TotalAmount(file.Lists.Rain), units);
    details.TotalLeaching = TotalText(LeachedThrough(day.Day, file.Lists.Leaching), units);
    details.Irrigation = LatestOf(file.Lists.Irrigation, units);
    details.Rain = LatestOf(file.Lists.Rain, units);
    details.Soil = SoilTexts(file, english);
    return details;
}

}  // namespace veraqua
