#pragma once

#include <string>

#include "core/shown/printed.h"
#include "core/shown/table.h"

/// What is to be done today: every field of the directory in one list, from `Stat` and `Updates` alone. No field file
/// is read, so that the list stands at once.
namespace veraqua {

/// Fills `table` with a row for each field, worst first: those that need water now or are well over their MAD (red),
/// those that soon will (yellow), those with time by the day of their irrigation (green), then those that need no water
/// any more, the harvests, and last those of which nothing is known. `Data` is the field's row of the directory. A
/// field that was selected stays so.
void FillTodayList(TableContent& table);

/// How many fields there are, how many of them need water, and how far their weather is behind.
std::string TodaySummary();

/// `table` as filled and the summary, on one page.
PrintedDocument PrintedTodayList(const TableContent& table);

}  // namespace veraqua
