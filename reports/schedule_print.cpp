#include "reports/schedule_print.h"

#include <algorithm>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/base/units.h"
#include "core/state.h"
#include "reports/field_days.h"
#include "reports/prediction_text.h"
#include "reports/printed_lines.h"
#include "reports/report_text.h"
#include "reports/stored_field.h"

namespace veraqua {

namespace {

/// What is to be done at a field stands on a line, and for hay on a second one.
struct ScheduleEntry {
    int Row = 0;
    std::int16_t Depletion = 0;  ///< percent
    JulianValue SortKey = 0;
    std::vector<std::string> Lines;
};

/// Dates first, then fields without data, those that need no water, and those to be harvested.
JulianValue SortKeyOf(const StatRecord& row) {
    if (row.NextIrrAmount > 0) return row.NextIrrDay;
    if (row.NextIrrAmount == AmountHarvest) return 999'999;
    return row.NextIrrAmount == AmountNotRequired ? 888'888 : 777'777;
}

std::string Columns(std::string_view field, std::string_view crop, std::string_view state, std::string_view last,
                    std::string_view next) {
    return fmt::format("{:<16}{:<16}{:<28}{:<22}{}", field, crop, state, last, next);
}

/// In inches, or in `millimetres`.
std::string AmountText(double inches, std::int16_t millimetres) {
    return State.EnglishUnits ? Masked(inches, "00.00") + " in."
                              : Masked(static_cast<double>(millimetres), "000.00") + " mm";
}

std::string LastIrrigation(const std::vector<EventRecord>& irrigation) {
    if (!(TotalAmount(irrigation) > 0)) return "";
    const EventRecord& last = irrigation.back();
    return ReportDate(last.Day) + ": " + AmountText(last.Amount / MillimetresPerInch, last.Amount);
}

std::string NextIrrigation(const StatRecord& row) {
    if (row.NextIrrAmount <= 0) return std::string(PrintedMark(row.NextIrrAmount));
    return ReportDate(row.NextIrrDay) + " : " + AmountText(HundredthsOfInches(row.NextIrrAmount), row.NextIrrAmount);
}

ScheduleEntry EntryOf(int row, const FieldFile& file) {
    const StatRecord& stat = State.Stat[row];
    const FieldDay day = StateOf(file, AsOf(file, StateDay(stat, State.TodayJulian)).Row);
    ScheduleEntry entry;
    entry.Row = row;
    entry.Depletion = ToInteger16(day.Depletion, "the depletion");
    entry.SortKey = SortKeyOf(stat);
    const JulianValue shown = std::min(stat.LastDay, State.TodayJulian);
    entry.Lines = {Columns("  " + stat.FieldId.Whole(), stat.CropName.Whole(),
                           fmt::format("      {}: {}%", ReportDate(shown), entry.Depletion),
                           LastIrrigation(file.Lists.Irrigation), NextIrrigation(stat))};
    if (file.IsHay) entry.Lines.push_back(Columns("", "", "", "", "Next cut: " + NextCutting(stat)));
    return entry;
}

/// Fields of one day stay in the order of the directory.
std::vector<ScheduleEntry> SortedEntries(Ask& ask) {
    std::vector<ScheduleEntry> entries;
    ForEachStoredField(ask, [&](int row, const FieldFile& file) { entries.push_back(EntryOf(row, file)); });
    std::stable_sort(entries.begin(), entries.end(),
                     [](const ScheduleEntry& a, const ScheduleEntry& b) { return a.SortKey < b.SortKey; });
    return entries;
}

}  // namespace

PrintedDocument PrintedSchedule(Ask& ask) {
    PrintedDocument document;
    document.Title = "Irrigation Schedule";
    AddLines(document, TitleFont,
             {"", "", "    IRRIGATION PREDICTIONS as of " + JulianToLongText(ask.Now()),
              "    - Also includes cutting predictions for hay", ""});
    AddTable(document, TableFont,
             {Columns("  FIELD ID     ", "CROP NAME", "      LAST WEATHER/DEPL. ", "LAST IRR.", "NEXT IRR."),
              "  " + std::string(104, '=')},
             2);
    for (const ScheduleEntry& entry : SortedEntries(ask)) {
        State.Stat[entry.Row].Depletion = entry.Depletion;
        AddLines(document, TableFont, entry.Lines);
    }
    AddLines(document, TableFont, {""});
    return document;
}

}  // namespace veraqua
