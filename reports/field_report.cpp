#include "reports/field_report.h"

#include <algorithm>

#include <fmt/format.h>

#include "core/directory.h"
#include "core/failure.h"
#include "core/numbers.h"
#include "core/state.h"
#include "engine/soil_water.h"
#include "reports/field_table.h"
#include "reports/prediction_text.h"
#include "reports/report_file.h"
#include "reports/report_text.h"
#include "reports/soil_lines.h"

namespace veraqua {

namespace {

std::string TotalText(double millimetres, bool english) {
    return english ? Masked(HundredthsOfInches(millimetres), "00.00") + " in" : Plain(millimetres) + " mm";
}

/// How many leachings there were before `lastDay`. The total that the report gives of them is this count, shown as if
/// it were millimetres, and not the water that left the soil.
double LeachingCount(const std::vector<EventRecord>& leaching, JulianValue lastDay) {
    return static_cast<double>(std::count_if(leaching.begin(), leaching.end(),
                                             [lastDay](const EventRecord& event) { return event.Day < lastDay; }));
}

std::string NextIrrigation(const StatRecord& row, bool english) {
    if (row.NextIrrAmount > 0)
        return fmt::format("\t Next Irrigation Date & Amnt:\t{}, {}.", ReportDate(row.NextIrrDay),
                           IrrigationAmount(row.NextIrrAmount, english));
    return row.NextIrrAmount == AmountNoDataYet ? "\t No Data Yet!" : "\t Harvest as soon as possible!";
}

std::vector<std::string> PredictionLines(const FieldFile& file, const StatRecord& row, bool english) {
    std::vector<std::string> lines{" PREDICTIONS:", NextIrrigation(row, english)};
    if (file.IsHay) {
        const auto& cuttings = file.Lists.Cuttings;
        const JulianValue growthOnset = cuttings.empty() ? file.Hay.PlantDay : cuttings.back().Day;
        lines.push_back(" Growth Onset Date:      " + ReportDate(growthOnset));
        lines.push_back(" Next Predicted Cutting: " + NextCutting(row));
    }
    return lines;
}

std::string Joined(const std::vector<std::string>& lines) { return fmt::format("{}\n", fmt::join(lines, "\n")); }

}  // namespace

FieldReport GatherFieldReport(const FieldFile& file, const StatRecord& row, bool english) {
    const HeaderCommon& header = file.Header();
    const DayView planting = AsOf(file, header.PlantDay);
    FieldReport report;
    report.FieldId = row.FieldId.Whole();
    report.CropName = row.CropName.Whole();
    report.PlantDay = ReportDate(header.PlantDay);
    report.Mad = Plain(header.MAD);
    report.Efficiency = Plain(ToSingle(header.IrrEff * 100.0, "the irrigation efficiency"));
    report.TotalIrrigation = TotalText(TotalAmount(file.Lists.Irrigation), english);
    report.TotalRainfall = TotalText(TotalAmount(file.Lists.Rain), english);
    report.TotalLeaching = TotalText(LeachingCount(file.Lists.Leaching, row.LastDay), english);
    report.Capacity = SoilLines(CapacityGrid(header, file.Soil.Bounds), file.Soil.Capacity, file.IsHay, english);
    report.InitialContent = SoilLines(ContentGrid(header, file.Soil.Bounds), planting.Content, file.IsHay, english);
    report.Predictions = PredictionLines(file, row, english);
    report.History = FieldTable(file, english);
    return report;
}

std::string FieldReportText(const FieldReport& report, JulianValue today) {
    return fmt::format(
        " FIELD DATA as of {}\n"
        "\n"
        " FIELD ID:  {}\n"
        " CROP Name:  {}\n"
        " CROP Planted On:  {}\n"
        "\n"
        " Management Allowed Deficiency (MAD):  {}%\n"
        " Irrigation Efficiency:  {}%\n"
        "\n"
        " Total Irrigation:  {}\n"
        " Total Rainfall:  {}\n"
        " Total Leaching:  {}\n"
        "\n"
        "\n"
        " Soil Water Capacity\n"
        "{}"
        "\n"
        " Initial Soil Water Content\n"
        "{}"
        "\n"
        "{}"
        " FIELD HISTORY\n"
        "{}",
        ReportDate(today), report.FieldId, report.CropName, report.PlantDay, report.Mad, report.Efficiency,
        report.TotalIrrigation, report.TotalRainfall, report.TotalLeaching, Joined(report.Capacity),
        Joined(report.InitialContent), Joined(report.Predictions), Joined(report.History));
}

std::optional<std::string> FieldReportText(Ask& ask, int row) {
    const auto bytes = OpenField(ask, row);
    if (!bytes) return std::nullopt;
    const std::string name = FieldFileName(row);
    const StatRecord& stat = State.Stat[row];
    const FieldFile file = ParseFieldFile(*bytes, stat.CropName.First() == HayMark, name);
    try {
        return FieldReportText(GatherFieldReport(file, stat, State.EnglishUnits), State.TodayJulian);
    } catch (const RunTimeFailure& failure) {
        throw RunTimeFailure(name + ": " + failure.what());
    }
}

bool SaveFieldReport(Ask& ask, int row) {
    const std::optional<std::string> report = FieldReportText(ask, row);
    if (report) SaveReport(ask, "Your Field Report", "Field.txt", *report);
    return report.has_value();
}

}  // namespace veraqua
