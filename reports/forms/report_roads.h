#pragma once

#include <string_view>

#include "reports/field_report.h"

/// The reports as the menus start them: from the state, through the dialogs, to the printer or the disk.
namespace veraqua {

/// The irrigation schedule of all fields, sorted by what is to be done first, to the printer. `CurrentField` and the
/// header in work are afterwards as before.
void PrintSchedule();

/// Prints the report of a field, in use or harvested, and tells so.
void PrintFieldReport(const FieldReport& report);

/// The irrigation schedule as a text file, whose name the user gives.
void SaveScheduleByDialog();

/// The report of the field in work. `destination` is "printer" or "disk"; any other is told as a fault.
void RunFieldReport(std::string_view destination);

}  // namespace veraqua
