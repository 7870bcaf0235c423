#pragma once

#include <string>
#include <string_view>

#include "core/shown/printed.h"
#include "core/shown/table.h"

/// What is to be done today: every field of the directory in one list.
namespace veraqua {

/// Fills `table` with a row for each field, worst first: those that need water now or are well over their MAD (red),
/// those that soon will (yellow), those with time by the day of their irrigation (green), then those that need no water
/// any more, the harvests, and last those of which nothing is known. `Data` is the field's row of the directory. A
/// field that was selected stays so, and a column that was hidden.
///   filter  words that must all be found in a row, whatever their case; empty: all rows
void FillTodayList(TableContent& table, std::string_view filter = {});

/// How many fields there are, how many of them need water, and how far their weather is behind.
std::string TodaySummary();

/// The columns shown of `table`, for a spreadsheet.
std::string TodayListCsv(const TableContent& table);

/// The columns shown of `table` and the summary, on one page.
PrintedDocument PrintedTodayList(const TableContent& table);

}  // namespace veraqua
