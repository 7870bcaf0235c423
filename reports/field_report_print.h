#pragma once

#include <string_view>

#include "core/shown/printed.h"
#include "reports/field_report.h"

namespace veraqua {

/// What the user is told when it, or the history of a field, has gone to the printer.
constexpr std::string_view FieldReportSent = "Field Histroy Report was sent to your default printer";

/// The field report as it is printed. `today` is the day that it shows as its own.
PrintedDocument PrintedFieldReport(const FieldReport& report, JulianValue today);

}  // namespace veraqua
