#pragma once

#include "reports/field_report.h"
#include "reports/forms/report_options.h"

/// The reports as the menus start them: from the state, through the dialogs, to the printer or the disk.
namespace veraqua {

/// The irrigation schedule of all fields, sorted by what is to be done first, to the printer. The rows of the
/// directory and the field in work stay.
void PrintSchedule();

/// Prints the report of a field, in use or harvested, and tells so.
void PrintFieldReport(const FieldReport& report);

/// The irrigation schedule as a text file, whose name the user gives.
void SaveScheduleByDialog();

/// The report of the field in work. That it has no destination is told as a fault.
void RunFieldReport(ReportDestination destination);

}  // namespace veraqua
