#include "reports/today_list.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/base/text_table.h"
#include "core/state.h"
#include "reports/depletion_warning.h"
#include "reports/prediction_text.h"
#include "reports/printed_lines.h"
#include "reports/report_text.h"
#include "reports/today_fields.h"

namespace veraqua {

namespace {

bool IsHay(const StatRecord& stat) { return stat.CropName.First() == HayMark; }

/// The depletion of a day that is long past warns of nothing.
std::optional<Colour> WarningOf(const FieldToday& field) {
    if (field.ToDo == NextDeed::Weather || field.ToDo == NextDeed::NotPlanted) return std::nullopt;
    return DepletionWarning(field.Stat.Depletion, field.Stat.MadNow);
}

std::string OverMad(const FieldToday& field) {
    return fmt::format("the depletion of {} % is over the MAD of {} %{}", field.Stat.Depletion, field.Stat.MadNow,
                       WarningOf(field) == colours::Red ? " by more than a fifth" : "");
}

std::string WhatToDo(const FieldToday& field) {
    return ListedPrediction(field.ToDo, field.HasDay ? std::optional(field.DaysLeft) : std::nullopt);
}

/// Nothing is known of a field without data, so that nothing reassures either.
std::optional<Colour> ColourOf(const FieldToday& field) {
    if (field.ToDo >= NextDeed::LookBack) return std::nullopt;
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

TableContent::Cell TextCell(std::string text) { return {std::move(text), {}, {}, {}}; }

TableContent::Cell SortedCell(std::string text, double key) { return {std::move(text), key, {}, {}}; }

TableContent::Cell WholeNumberCell(int value) { return SortedCell(Masked(static_cast<double>(value), "0"), value); }

TableContent::Cell DayCell(JulianValue day, std::string text) {
    return SortedCell(std::move(text), day > BeforeAnyRealDay ? day : Behind);
}

TableContent::Cell AmountCell(int millimetres) {
    return SortedCell(State.EnglishUnits ? Masked(HundredthsOfInches(millimetres), "0.00") : Plain(millimetres),
                      millimetres);
}

/// Why a field has its colour.
std::string Reason(const FieldToday& field) {
    if (field.ToDo == NextDeed::Weather)
        return fmt::format("Yellow: the weather is {} behind, too long to say anything about today.",
                           Days(field.DaysBehind));
    if (field.ToDo == NextDeed::LookBack)
        return fmt::format("Today has been set back; the field is computed through {}.",
                           ReportDate(field.Stat.LastDay));
    if (!ColourOf(field)) return "";
    if (field.Urge == Urgency::Later)
        return field.HasDay ? fmt::format("Green: there is time until {}.", ReportDate(field.Stat.NextIrrDay))
                            : "Green: no water is needed.";
    const std::string why = field.HasDay && field.DaysLeft <= SoonDays
                                ? fmt::format("water is due on {}", ReportDate(field.Stat.NextIrrDay))
                                : OverMad(field);
    return fmt::format("{}: {}.", field.Urge == Urgency::Now ? "Red" : "Yellow", why);
}

TableContent::Cell ToDoCell(const FieldToday& field, int place) {
    return {WhatToDo(field), place, ColourOf(field), Reason(field)};
}

TableContent::Cell DepletionCell(const FieldToday& field) {
    const int depletion = field.Stat.Depletion;
    TableContent::Cell cell = depletion < 0 ? SortedCell("Full", depletion) : WholeNumberCell(depletion);
    if (const std::optional<Colour> warning = WarningOf(field)) {
        const bool isRed = warning == colours::Red;
        cell.Background = isRed ? colours::PaleRed : colours::PaleYellow;
        cell.ToolTip = fmt::format("{}: {}.", isRed ? "Red" : "Yellow", OverMad(field));
    }
    return cell;
}

/// What is missing, and of what is there what was not measured.
TableContent::Cell WeatherCell(const FieldToday& field) {
    if (field.DaysBehind == 0 && field.DefaultDays == 0) return SortedCell("", Behind);
    std::vector<std::string> texts;
    if (field.DaysBehind > 0) texts.push_back(fmt::format("{} behind", Days(field.DaysBehind)));
    if (field.DefaultDays > 0) texts.push_back(fmt::format("{} by default", Days(field.DefaultDays)));
    TableContent::Cell cell =
        SortedCell(fmt::format("{}", fmt::join(texts, ", ")), -(1000.0 * field.DaysBehind + field.DefaultDays));
    if (field.DaysBehind > SoonDays) {
        cell.Background = colours::PaleYellow;
        cell.ToolTip = fmt::format("Yellow: there is no weather after {}.", ReportDate(field.Known));
    }
    return cell;
}

constexpr std::string_view ComputedHeading = "Computed through";
constexpr std::array<std::string_view, 4> DayHeadings{"As of", "Irrigate on", "Next cutting", ComputedHeading};
constexpr std::string_view DaysLeftHeading = "Days left";

/// As they are before the user chooses: the day of the depletion tells how far a field is computed.
std::vector<TableContent::Column> Columns() {
    return {{"Field"},
            {"Crop"},
            {"What to do"},
            {"Depletion %", true},
            {std::string(DayHeadings[0])},
            {"MAD %", true},
            {std::string(DayHeadings[1])},
            {State.EnglishUnits ? "Amount (in.)" : "Amount (mm)", true},
            {std::string(DaysLeftHeading), true},
            {std::string(DayHeadings[2])},
            {std::string(ComputedHeading), false, true},
            {"Weather"}};
}

/// `place` is that in the list.
std::vector<TableContent::Cell> CellsOf(const FieldToday& field, int place) {
    const StatRecord& stat = field.Stat;
    const TableContent::Cell none = SortedCell("", Behind);
    const bool isPlanted = field.ToDo != NextDeed::NotPlanted;
    const bool isPast = field.ToDo == NextDeed::LookBack || !isPlanted;
    return {TextCell(stat.FieldId.Text()),
            TextCell(stat.CropName.Text()),
            ToDoCell(field, place),
            isPlanted ? DepletionCell(field) : none,
            isPlanted ? DayCell(field.DepletionDay, ReportDate(field.DepletionDay)) : none,
            WholeNumberCell(stat.MadNow),
            field.HasDay ? DayCell(stat.NextIrrDay, ReportDate(stat.NextIrrDay)) : none,
            field.HasDay ? AmountCell(stat.NextIrrAmount) : none,
            field.HasDay ? WholeNumberCell(field.DaysLeft) : none,
            IsHay(stat) && !isPast ? DayCell(stat.NextCutDay, NextCutting(stat)) : none,
            DayCell(field.Known, ReportDate(field.Known)),
            WeatherCell(field)};
}

// What the user looks for

/// In upper case, accented letters too.
std::string CapitalsOf(std::string_view text) {
    std::string capitals = Latin1FromUtf8(text).value_or(std::string(text));
    std::transform(capitals.begin(), capitals.end(), capitals.begin(), UpperCaseOfLatin1);
    return capitals;
}

std::vector<std::string> Words(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

bool HasAll(const std::vector<TableContent::Cell>& cells, const std::vector<std::string>& words) {
    return std::all_of(words.begin(), words.end(), [&](const std::string& word) {
        return std::any_of(cells.begin(), cells.end(), [&](const TableContent::Cell& cell) {
            return CapitalsOf(cell.Text).find(word) != std::string::npos;
        });
    });
}

/// Cells of days are sorted by them.
std::string ForSpreadsheet(const TableContent::Column& column, const TableContent::Cell& cell) {
    const bool isDay = std::ranges::find(DayHeadings, column.Heading) != DayHeadings.end();
    return isDay && cell.SortKey && *cell.SortKey < Behind ? IsoDate(static_cast<JulianValue>(*cell.SortKey))
                                                           : cell.Text;
}

/// A cell of a CSV file.
std::string Quoted(const std::string& text) {
    if (text.find_first_of(",\"\n") == std::string::npos) return text;
    std::string quoted = "\"";
    for (const char c : text) quoted.append(c == '"' ? 2 : 1, c);
    return quoted + '"';
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

/// Without what other columns tell as well: the days that are left, and through which day the field is computed.
TextTable OnPaper(const TableContent& table) {
    const auto printed = [&](std::size_t column) {
        const std::string& heading = table.Columns[column].Heading;
        return !table.Columns[column].IsHidden && heading != DaysLeftHeading && heading != ComputedHeading;
    };
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

void FillTodayList(TableContent& table, std::string_view filter) {
    const int selected = table.Selected() != nullptr ? table.Selected()->Data : 0;
    const std::vector<TableContent::Column> before = std::exchange(table.Columns, Columns());
    for (std::size_t i = 0; i < before.size(); ++i) table.Columns[i].IsHidden = before[i].IsHidden;
    table.Rows.clear();
    table.Index = -1;
    const std::vector<std::string> words = Words(CapitalsOf(filter));
    int place = 0;
    for (const FieldToday& field : FieldsToday()) {
        std::vector<TableContent::Cell> cells = CellsOf(field, place++);
        if (!HasAll(cells, words)) continue;
        if (field.Row == selected) table.Index = static_cast<int>(table.Rows.size());
        table.Rows.push_back({std::move(cells), field.Row});
    }
}

std::string TodayListCsv(const TableContent& table) {
    std::vector<std::string> line;
    for (const TableContent::Column& column : table.Columns)
        if (!column.IsHidden) line.push_back(Quoted(column.Heading));
    std::string text = fmt::format("{}\n", fmt::join(line, ","));
    for (const TableContent::Row& row : table.Rows) {
        line.clear();
        for (std::size_t i = 0; i < row.Cells.size(); ++i)
            if (!table.Columns[i].IsHidden) line.push_back(Quoted(ForSpreadsheet(table.Columns[i], row.Cells[i])));
        text += fmt::format("{}\n", fmt::join(line, ","));
    }
    return text;
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
