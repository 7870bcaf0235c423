#include "cli/field_text.h"

#include <map>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/base/text_table.h"
#include "core/base/units.h"
#include "core/directory.h"
#include "core/state.h"
#include "reports/prediction_text.h"

namespace veraqua {

namespace {

using Side = TextTable::Side;

std::string DateText(JulianValue day) { return day == 0 ? "" : JulianToShortText(day); }

/// Water as the user counts it, with its unit.
std::string Water(double millimetres) {
    return State.EnglishUnits ? Masked(millimetres / MillimetresPerInch, "0.00") + " in"
                              : Masked(millimetres, "0.0") + " mm";
}

std::string Depth(double metres) {
    return State.EnglishUnits ? Masked(metres / MetresPerFoot, "0.00") + " ft" : Masked(metres, "0.00") + " m";
}

/// A water content of soil, mm per m.
std::string WaterPerDepth(double millimetresPerMetre) {
    return State.EnglishUnits ? Masked(millimetresPerMetre * MetresPerFoot / MillimetresPerInch, "0.00") + " in/ft"
                              : Masked(millimetresPerMetre, "0") + " mm/m";
}

double DegreeDays(float gdd) { return State.EnglishUnits ? static_cast<double>(gdd) * 1.8 : static_cast<double>(gdd); }

std::string Percent(double value) { return Plain(value) + "%"; }

std::string NextWater(const StatRecord& row) { return BriefPrediction(row, State.EnglishUnits); }

std::string Line(std::string_view label, std::string_view value) { return fmt::format("{:<26}{}\n", label, value); }

std::string Heading(const StatRecord& row, int number) {
    return fmt::format("Field {}: {} ({})\n\n", number, row.FieldId.Text(), row.CropName.Text());
}

std::string TextOfHeader(const StatRecord& row, const FieldFile& file) {
    const HeaderCommon& header = file.Header();
    const std::string station = header.StationCode.Text();
    std::string text = Line(file.IsHay ? "Onset of growth" : "Planted", JulianToLongText(header.PlantDay));
    text += Line("Weather station", station + " " + StationNameOf(station));
    text += Line("MAD", Percent(header.MAD));
    if (file.IsHay) {
        text += Line("Critical MAD", Percent(file.Hay.MADCritical));
        text += Line("Drying time", fmt::format("{} days", file.Hay.DryDays));
    }
    text += Line("Irrigation efficiency", Percent(RoundedTo(static_cast<double>(header.IrrEff), 1e7) * 100));
    text += Line("Deepest roots", Depth(header.RootMax));
    text += "\n" + Line("Computed through", DateText(row.LastDay));
    text += Line("Depletion", fmt::format("{} of MAD {}", Percent(row.Depletion), Percent(row.MadNow)));
    text += Line("Next irrigation",
                 row.NextIrrAmount > 0 ? DateText(row.NextIrrDay) + ", " + NextWater(row) : NextWater(row));
    if (file.IsHay) text += Line("Next cutting", row.NextCutDay == 0 ? "no data yet" : DateText(row.NextCutDay));
    return text;
}

std::string TextOfSoil(const FieldFile& file) {
    const HeaderCommon& header = file.Header();
    TextTable table(
        {{"Soil from", Side::Right}, {"to", Side::Right}, {"capacity", Side::Right}, {"content", Side::Right}});
    double top = 0;
    for (std::size_t zone = 0; zone <= static_cast<std::size_t>(header.CapacityTop); ++zone) {
        const bool layer = file.VariableSoil() && zone < file.Soil.Bounds.size();
        const double bottom = top + static_cast<double>(layer ? file.Soil.Bounds[zone] : header.CapacityInterval);
        const bool known = static_cast<int>(zone) <= header.ContentTop;
        table.Add({Depth(top), Depth(bottom), WaterPerDepth(file.Soil.Capacity[zone]),
                   known ? WaterPerDepth(file.Soil.Content[zone]) : ""});
        top = bottom;
    }
    return table.Text();
}

std::string TextOfWater(const FieldLists& lists) {
    TextTable table({{"Date"}, {"what"}, {"amount", Side::Right}});
    const auto add = [&table](const std::vector<EventRecord>& events, const char* what) {
        for (const EventRecord& event : events) table.Add({JulianToShortText(event.Day), what, Water(event.Amount)});
    };
    add(lists.Rain, "rain");
    add(lists.Irrigation, "irrigation");
    for (const EventRecord& cut : lists.Cuttings)
        table.Add({JulianToShortText(cut.Day), "cutting", fmt::format("No. {}", cut.Amount)});
    return table.Text();
}

}  // namespace

std::string TextOfRows(const std::vector<int>& rows) {
    if (rows.empty()) return "No fields.\n";
    TextTable table({{"Row", Side::Right},
                     {"Field ID"},
                     {"Crop"},
                     {"Through"},
                     {"Depletion", Side::Right},
                     {"MAD", Side::Right},
                     {"Irrigate on"},
                     {"Amount", Side::Right},
                     {"Next cutting"}});
    for (const int number : rows) {
        const StatRecord& row = State.Stat[number];
        table.Add({fmt::format("{}", number), row.FieldId.Text(), row.CropName.Text(), DateText(row.LastDay),
                   Percent(row.Depletion), Percent(row.MadNow), row.NextIrrAmount > 0 ? DateText(row.NextIrrDay) : "",
                   NextWater(row), DateText(row.NextCutDay)});
    }
    return table.Text();
}

std::string TextOfField(int row, const FieldFile& file) {
    const StatRecord& stat = State.Stat[row];
    std::string text = Heading(stat, row) + TextOfHeader(stat, file) + "\n" + TextOfSoil(file) + "\n";
    text += Line("Rain", Water(static_cast<double>(TotalAmount(file.Lists.Rain))));
    text += Line("Irrigation", Water(static_cast<double>(TotalAmount(file.Lists.Irrigation))));
    return text + "\n" + TextOfWater(file.Lists);
}

std::string TextOfDays(const FieldFile& file) {
    TextTable table({{"Date"},
                     {"Available", Side::Right},
                     {State.EnglishUnits ? "GDD (F)" : "GDD (C)", Side::Right},
                     {file.IsHay ? "Kc" : "Roots", Side::Right},
                     {"ETR sum", Side::Right},
                     {"Days since wet", Side::Right}});
    JulianValue day = file.Header().PlantDay;
    bool first = true;
    for (const DayRecord& row : file.Days) {
        // Hay has no Kc yet on its first day: the row holds the root depth there.
        const auto third = static_cast<double>(file.IsHay && first ? 0 : row.RootDepthOrKc);
        table.Add({JulianToShortText(day++), Water(static_cast<double>(row.Available)),
                   Masked(DegreeDays(row.GddSum), "0.0"), file.IsHay ? Masked(third, "0.00") : Depth(third),
                   Water(static_cast<double>(row.EtrSum)), fmt::format("{}", row.DaysSinceWet)});
        first = false;
    }
    return table.Text();
}

std::string TextOf(const ChartContent& chart) {
    std::vector<TextTable::Column> columns{{"Day", TextTable::Side::Left}};
    std::map<JulianValue, std::vector<std::string>> lines;
    for (const ChartSeries& series : chart.Series) {
        columns.push_back({fmt::format("{} ({})", series.Name, series.Unit), TextTable::Side::Right});
        for (const ChartSeries::Point& point : series.Points) {
            std::vector<std::string>& cells = lines[point.Day];
            cells.resize(columns.size() - 1);
            cells.back() = Masked(point.Value, State.EnglishUnits ? "0.00" : "0.0");
        }
    }
    TextTable table(columns);
    for (auto& [day, cells] : lines) {
        cells.resize(columns.size() - 1);
        cells.insert(cells.begin(), JulianToLongText(day));
        table.Add(std::move(cells));
    }
    std::string text = chart.Title + "\n\n" + table.Text() + "\n";
    for (const ChartMark& mark : chart.Marks) text += fmt::format("{}: {}\n", mark.Name, JulianToLongText(mark.Day));
    return text;
}

}  // namespace veraqua
