#include "reports/history_table.h"

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "reports/field_days.h"
#include "reports/printed_lines.h"
#include "reports/report_text.h"

namespace veraqua {

namespace {

constexpr std::size_t DateWidth = 8;
constexpr std::size_t CellWidth = 7;
constexpr std::size_t Columns = 15;

/// An ordinary crop has its roots' depth before the last two of the common columns, hay its cutting behind them.
std::vector<std::string> Headings(std::vector<std::string> common, bool isHay, const std::string& root,
                                  const std::string& cut) {
    if (isHay)
        common.push_back(cut);
    else
        common.insert(common.end() - 2, root);
    return common;
}

std::string MaskedWater(const DayUnits& units, double mm, double perUnit, std::string_view mask) {
    return RoundedCell(units.Water(mm), perUnit, mask);
}

std::vector<std::string> CellsOf(const FieldDay& day, bool isHay, const DayUnits& units) {
    const bool english = units.English;
    const auto evaporated = [&](double mm) {
        return english ? MaskedWater(units, mm, 1000, "0.000") : MaskedWater(units, mm, 10, "00.0");
    };
    const auto sum = [&](double mm) {
        return english ? MaskedWater(units, mm, 100, "00.00") : MaskedWater(units, mm, 10, "000.0");
    };
    std::vector<std::string> cells{
        JulianToShortText(day.Day),
        Masked(static_cast<double>(day.DaysAfterPlanting), "000"),
        english ? MaskedWater(units, day.Available, 100, "0.00") : RoundedCell(day.Available / 10.0, 100, "00.00"),
        day.Depletion < 0 ? "FULL" : RoundedCell(day.Depletion, 1, "00"),
        RoundedCell(units.Heat(day.Gdd), 10, "00.0"),
        RoundedCell(units.Heat(day.GddSum), 10, "000.0"),
        MaskedWater(units, day.Etr, 100, "0.00"),
        sum(day.EtrSum),
        RoundedCell(day.Kc, 100, "0.00"),
        RoundedCell(day.Kd, 100, "0.00"),
        evaporated(day.Etc),
        sum(day.EtcSum)};
    if (!isHay) cells.push_back(RoundedCell(units.Root(day.RootDepth), 100, "0.00"));
    cells.push_back(MaskedWater(units, day.Irrigation.value_or(0), 10, "00.0"));
    cells.push_back(MaskedWater(units, day.Rain.value_or(0), 10, "00.0"));
    if (isHay) cells.push_back(Masked(static_cast<double>(day.Cutting), "0"));
    return cells;
}

/// With the unit, where there is one, behind the last blank.
std::vector<std::string> PrintedHeadings(bool isHay, bool english) {
    const std::string water = english ? "(in)" : "(mm)";
    return Headings({"Date", "DAP", english ? "AWC   (in)" : "AWC   (cm)", "Depl.     %",
                     english ? "GDD    (F)" : "GDD    (C)", "Cum. GDD", "ETR    " + water, "Cum. ETR", "kc", "kd",
                     "ETC    " + water, "Cum. ETC", "Irrig.  " + water, "Rain   " + water},
                    isHay, english ? "Root   (ft)" : "Root   (m)", "Cut No.");
}

std::string LineOf(const std::vector<std::string>& cells) {
    std::string line;
    for (const std::string& cell : cells)
        line += line.empty() ? fmt::format("{:<{}}", cell, DateWidth) : fmt::format("{:>{}}", cell, CellWidth);
    return line;
}

std::vector<std::string> HeadingLines(bool isHay, bool english) {
    std::vector<std::string> names;
    std::vector<std::string> units;
    for (const std::string& heading : PrintedHeadings(isHay, english)) {
        const std::size_t blank = heading.find(' ');
        names.push_back(heading.substr(0, blank));
        units.push_back(blank == std::string::npos ? "" : heading.substr(heading.find_last_of(' ') + 1));
    }
    return {LineOf(names), LineOf(units), std::string(DateWidth + (Columns - 1) * CellWidth, '-')};
}

}  // namespace

std::vector<std::string> HistoryHeadings(bool isHay, bool english) {
    return Headings({"Date", "DAP", english ? "AWC (in.)" : "AWC (cm)", "Depl.     %", "GDD", "Cum. GDD", "ETR",
                     "Cum. ETR", "kc", "kd", "ETC", "Cum. ETC", "Irrig.", english ? "Rain (in.)" : "Rain (mm)"},
                    isHay, english ? "Root (ft.)" : "Root (m)", "Cut No.");
}

std::vector<std::string> HistoryLines(const FieldFile& file, bool english) {
    std::vector<std::string> lines;
    for (const FieldDay& day : DaysSincePlanting(file))
        lines.push_back(LineOf(CellsOf(day, file.IsHay, DayUnits{english})));
    return lines;
}

PrintedDocument PrintedHistory(const std::vector<std::string>& lines, std::string_view fieldId, std::string_view title,
                               bool isHay, bool english) {
    std::vector<std::string> table = HeadingLines(isHay, english);
    table.insert(table.end(), lines.begin(), lines.end());
    PrintedDocument document;
    document.Title = fmt::format("Field History {}", fieldId);
    AddLines(document, TableFont, {"", " FIELD HISTORY", fmt::format(" {}", title), ""});
    AddTable(document, TableFont, table, DayTableHeadings);
    return document;
}

}  // namespace veraqua
