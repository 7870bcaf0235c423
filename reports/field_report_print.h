#pragma once

#include "reports/field_report.h"
#include "screen/screen.h"

namespace veraqua {

/// The field report as it is printed. `today` is the day that it shows as its own.
PrintedDocument PrintedFieldReport(const FieldReport& report, JulianValue today);

/// Prints the report and tells so.
void PrintFieldReport(const FieldReport& report);

}  // namespace veraqua
