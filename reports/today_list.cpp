#include "reports/today_list.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string_view>
#include <tuple>
#include <vector>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/base/text_table.h"
#include "core/directory.h"
#include "core/state.h"
#include "reports/depletion_warning.h"
#include "reports/prediction_text.h"
#include "reports/printed_lines.h"
#include "reports/report_text.h"

namespace veraqua {

namespace {

/// Days that count as soon: so much notice a grower needs, and so late weather may come in.
constexpr int SoonDays = 2;

enum class Urgency { Now, Soon, Later };

struct FieldToday {
    int Row = 0;  ///< of the directory
    StatRecord Stat;
    NextDeed ToDo = NextDeed::Unknown;  ///< the later ones stand lower in the list
    Urgency Urge = Urgency::Later;
    bool HasDay = false;    ///< the next irrigation is predicted
    int DaysLeft = 0;       ///< until then, 0 if it is due or overdue
    JulianValue Known = 0;  ///< the last day whose state is known, by weather or by hand
    int DaysBehind = 0;     ///< of the weather
};

bool IsHay(const StatRecord& stat) { return stat.CropName.First() == HayMark; }

NextDeed DeedOf(const StatRecord& stat) {
    if (stat.NextIrrAmount == AmountHarvest) return NextDeed::Harvest;
    if (stat.NextIrrAmount > 0 || DepletionWarning(stat.Depletion, stat.MadNow)) return NextDeed::Water;
    return stat.NextIrrAmount == AmountNotRequired ? NextDeed::Nothing : NextDeed::Unknown;
}

Urgency UrgencyOf(const FieldToday& field) {
    if (field.HasDay && field.DaysLeft == 0) return Urgency::Now;
    const std::optional<Colour> warning = DepletionWarning(field.Stat.Depletion, field.Stat.MadNow);
    if (warning == colours::Red) return Urgency::Now;
    return warning || (field.HasDay && field.DaysLeft <= SoonDays) ? Urgency::Soon : Urgency::Later;
}

/// A field whose depletion was set by hand at or over its MAD isn't run on until it gets water, and one that is ripe
/// has no use for weather: neither waits for it.
int DaysBehind(const FieldToday& field, JulianValue setByHand) {
    const bool waitsForWater =
        setByHand >= field.Stat.LastDay && field.Stat.Depletion >= field.Stat.MadNow && field.HasDay;
    if (waitsForWater || field.ToDo == NextDeed::Harvest) return 0;
    return std::max(State.TodayJulian - 1 - field.Known, 0);
}

FieldToday FieldIn(int row) {
    FieldToday field;
    field.Row = row;
    field.Stat = State.Stat[row];
    field.ToDo = DeedOf(field.Stat);
    field.HasDay = field.Stat.NextIrrAmount > 0;
    if (field.HasDay) field.DaysLeft = std::max(field.Stat.NextIrrDay - State.TodayJulian, 0);
    field.Urge = UrgencyOf(field);
    field.Known = std::min(std::max(field.Stat.LastDay, State.Updates[row]), State.TodayJulian);
    field.DaysBehind = DaysBehind(field, State.Updates[row]);
    return field;
}

bool IsWorse(const FieldToday& a, const FieldToday& b) {
    const auto key = [](const FieldToday& field) {
        const double ofMad = field.Stat.Depletion / std::max<double>(field.Stat.MadNow, 1);
        return std::tuple(field.ToDo, field.Urge, field.DaysLeft, -ofMad, field.Row);
    };
    return key(a) < key(b);
}

std::vector<FieldToday> FieldsToday() {
    std::vector<FieldToday> fields;
    for (const int row : RowsInUse()) fields.push_back(FieldIn(row));
    std::sort(fields.begin(), fields.end(), IsWorse);
    return fields;
}

std::string WhatToDo(const FieldToday& field) {
    return ListedPrediction(field.ToDo, field.HasDay ? std::optional(field.DaysLeft) : std::nullopt);
}

/// Nothing is known of a field without data, so that nothing reassures either.
std::optional<Colour> ColourOf(const FieldToday& field) {
    if (field.ToDo == NextDeed::Unknown) return std::nullopt;
    switch (field.Urge) {
        case Urgency::Now: return colours::PaleRed;
        case Urgency::Soon: return colours::PaleYellow;
        case Urgency::Later: break;
    }
    return colours::PaleGreen;
}

std::string Days(int count) { return fmt::format("{} {}", count, count == 1 ? "day" : "days"); }

// The cells. One that is empty is sorted behind all others.

constexpr double Behind = std::numeric_limits<double>::infinity();

TableContent::Cell TextCell(std::string text, std::optional<Colour> background = {}) {
    return {std::move(text), std::nullopt, background};
}

TableContent::Cell SortedCell(std::string text, double key, std::optional<Colour> background = {}) {
    return {std::move(text), key, background};
}

TableContent::Cell WholeNumberCell(int value) { return SortedCell(Masked(static_cast<double>(value), "0"), value); }

TableContent::Cell DayCell(JulianValue day, std::string text) {
    return SortedCell(std::move(text), day > BeforeAnyRealDay ? day : Behind);
}

TableContent::Cell AmountCell(int millimetres) {
    return SortedCell(State.EnglishUnits ? Masked(HundredthsOfInches(millimetres), "0.00") : Plain(millimetres),
                      millimetres);
}

TableContent::Cell DepletionCell(const StatRecord& stat) {
    TableContent::Cell cell = stat.Depletion < 0 ? SortedCell("Full", stat.Depletion) : WholeNumberCell(stat.Depletion);
    if (const std::optional<Colour> warning = DepletionWarning(stat.Depletion, stat.MadNow))
        cell.Background = warning == colours::Red ? colours::PaleRed : colours::PaleYellow;
    return cell;
}

TableContent::Cell WeatherCell(int daysBehind) {
    const auto background = daysBehind > SoonDays ? std::optional(colours::PaleYellow) : std::nullopt;
    return SortedCell(daysBehind > 0 ? Days(daysBehind) : "", daysBehind > 0 ? -daysBehind : Behind, background);
}

constexpr std::string_view DaysLeftHeading = "Days left";

std::vector<TableContent::Column> Columns() {
    return {{"Field"},
            {"Crop"},
            {"What to do"},
            {"Depletion %", true},
            {"MAD %", true},
            {"Irrigate on"},
            {State.EnglishUnits ? "Amount (in.)" : "Amount (mm)", true},
            {std::string(DaysLeftHeading), true},
            {"Next cutting"},
            {"Computed through"},
            {"Weather behind"}};
}

/// `place` is that in the list.
std::vector<TableContent::Cell> CellsOf(const FieldToday& field, int place) {
    const StatRecord& stat = field.Stat;
    const TableContent::Cell none = SortedCell("", Behind);
    return {TextCell(stat.FieldId.Text()),
            TextCell(stat.CropName.Text()),
            SortedCell(WhatToDo(field), place, ColourOf(field)),
            DepletionCell(stat),
            WholeNumberCell(stat.MadNow),
            field.HasDay ? DayCell(stat.NextIrrDay, ReportDate(stat.NextIrrDay)) : none,
            field.HasDay ? AmountCell(stat.NextIrrAmount) : none,
            field.HasDay ? WholeNumberCell(field.DaysLeft) : none,
            IsHay(stat) ? DayCell(stat.NextCutDay, NextCutting(stat)) : none,
            DayCell(field.Known, ReportDate(field.Known)),
            WeatherCell(field.DaysBehind)};
}

// On paper

constexpr std::size_t PageWidth = 104;

/// A heading that is longer than all cells stands on two lines.
TextTable::Column OnPaper(const TableContent& table, std::size_t index) {
    std::string heading = table.Columns[index].Heading;
    const auto isLonger = [&](const TableContent::Row& row) { return heading.size() > row.Cells[index].Text.size(); };
    const std::size_t blank = heading.rfind(' ');
    if (blank != std::string::npos && std::all_of(table.Rows.begin(), table.Rows.end(), isLonger))
        heading[blank] = '\n';
    return {heading, table.Columns[index].IsNumeric ? TextTable::Side::Right : TextTable::Side::Left};
}

/// Without the days that are left, which the words in another column tell.
TextTable OnPaper(const TableContent& table) {
    const auto printed = [&](std::size_t column) { return table.Columns[column].Heading != DaysLeftHeading; };
    std::vector<TextTable::Column> columns;
    for (std::size_t i = 0; i < table.Columns.size(); ++i)
        if (printed(i)) columns.push_back(OnPaper(table, i));
    TextTable paper(columns);
    for (const TableContent::Row& row : table.Rows) {
        std::vector<std::string> cells;
        for (std::size_t i = 0; i < row.Cells.size(); ++i)
            if (printed(i)) cells.push_back(row.Cells[i].Text);
        paper.Add(cells);
    }
    return paper;
}

}  // namespace

void FillTodayList(TableContent& table) {
    const int selected = table.Selected() != nullptr ? table.Selected()->Data : 0;
    table.Columns = Columns();
    table.Rows.clear();
    table.Index = -1;
    for (const FieldToday& field : FieldsToday()) {
        const int place = static_cast<int>(table.Rows.size());
        if (field.Row == selected) table.Index = place;
        table.Rows.push_back({CellsOf(field, place), field.Row});
    }
}

std::string TodaySummary() {
    const std::vector<FieldToday> fields = FieldsToday();
    int thirsty = 0;
    int behind = 0;
    for (const FieldToday& field : fields) {
        if (field.ToDo == NextDeed::Water && field.Urge == Urgency::Now) ++thirsty;
        behind = std::max(behind, field.DaysBehind);
    }
    std::string text = fmt::format("{} {}, {} {} water.", fields.size(), fields.size() == 1 ? "field" : "fields",
                                   thirsty == 0 ? "none" : fmt::format("{}", thirsty), thirsty > 1 ? "need" : "needs");
    if (behind > 0) text += fmt::format(" Weather is up to {} behind.", Days(behind));
    return text;
}

PrintedDocument PrintedTodayList(const TableContent& table) {
    PrintedDocument document;
    document.Title = "Veraqua fields today " + JulianToLongText(State.TodayJulian);
    AddLines(document, TitleFont, {document.Title, ""});
    const TextTable paper = OnPaper(table);
    AddTable(document, TableFont, paper.Lines(PageWidth), paper.HeadingLines());
    AddLines(document, TableFont, {"", TodaySummary()});
    document.OnOnePage = true;
    return document;
}

}  // namespace veraqua
