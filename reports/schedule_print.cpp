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

std::string LastIrrigation(const std::vector<EventRecord>& irrigation, bool english) {
    if (!(TotalAmount(irrigation) > 0)) return "";
    const EventRecord& last = irrigation.back();
    return fmt::format("{}: {}", ReportDate(last.Day),
                       PrintedWater(last.Amount / MillimetresPerInch, last.Amount, english));
}

ScheduleEntry EntryOf(const StatRecord& row, const FieldFile& file, JulianValue today, bool english) {
    const FieldDay day = PresentDay(file, row, today);
    ScheduleEntry entry;
    entry.SortKey = SortKeyOf(row);
    entry.Lines = {Columns("  " + row.FieldId.Whole(), row.CropName.Whole(),
                           fmt::format("      {}: {}%", ReportDate(std::min(row.LastDay, today)),
                                       ToInteger16(day.Depletion, "the depletion")),
                           LastIrrigation(file.Lists.Irrigation, english), PrintedPrediction(row, english))};
    if (file.IsHay) entry.Lines.push_back(Columns("", "", "", "", "Next cut: " + NextCutting(row)));
    return entry;
}

/// Fields of one day stay in the order of the directory.
std::vector<ScheduleEntry> SortedEntries(Ask& ask) {
    std::vector<ScheduleEntry> entries;
    ForEachStoredField(ask, [&](int row, const FieldFile& file) {
        entries.push_back(EntryOf(State.Stat[row], file, State.TodayJulian, State.EnglishUnits));
    });
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
    for (const ScheduleEntry& entry : SortedEntries(ask)) AddLines(document, TableFont, entry.Lines);
    AddLines(document, TableFont, {""});
    return document;
}

}  // namespace veraqua
