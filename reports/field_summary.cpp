#include "reports/field_summary.h"

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "reports/report_text.h"

namespace veraqua {

namespace {

std::string Percent(double value) { return Masked(value, "0") + "%"; }

}  // namespace

std::string DefaultWeatherNote(int days) {
    if (days <= 0) return "";
    return days == 1 ? "The last day stands on default weather."
                     : fmt::format("The last {} days stand on default weather.", days);
}

FieldSummary SummaryOf(const StatRecord& row, const HeaderCommon& header, JulianValue lastWeather, JulianValue today) {
    const bool behind = row.LastDay < today - 1;
    return {ReportDate(lastWeather),
            fmt::format("Water Depletion as of  {}:", ReportDate(behind ? row.LastDay : today)), Percent(row.Depletion),
            Percent(row.MadNow), Percent(ToSingle(header.IrrEff * 100.0, "the irrigation efficiency"))};
}

}  // namespace veraqua
