#pragma once

#include "core/shown/printed.h"
#include "reports/field_report.h"

namespace veraqua {

/// The field report as it is printed. `today` is the day that it shows as its own.
PrintedDocument PrintedFieldReport(const FieldReport& report, JulianValue today);

}  // namespace veraqua
