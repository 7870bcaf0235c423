#include "reports/field_report.h"

#include <algorithm>
#include <iterator>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/directory.h"
#include "core/field_file.h"
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

std::vector<std::string> PredictionLines(const FieldFile& file, const StatRecord& row, bool english) {
    std::vector<std::string> lines{" PREDICTIONS:", ReportedPrediction(row, english)};
    if (file.IsHay) {
        const auto& cuttings = file.Lists.Cuttings;
        const JulianValue growthOnset = cuttings.empty() ? file.Hay.PlantDay : cuttings.back().Day;
        lines.push_back(" Growth Onset Date:      " + ReportDate(growthOnset));
        lines.push_back(" Next Predicted Cutting: " + NextCutting(row));
    }
    return lines;
}

/// The total that the report gives of leachings is their count, shown as if it were millimetres, and not the water that
/// left the soil.
FieldReport Gather(const FieldFile& file, std::ptrdiff_t leachings, bool english) {
    const HeaderCommon& header = file.Header();
    const DayView planting = AsOf(file, header.PlantDay);
    const ZoneGrid capacityGrid = CapacityGrid(header, file.Soil.Bounds);
    FieldReport report;
    report.IsHay = file.IsHay;
    report.FieldId = header.FieldId.Whole();
    report.CropName = header.CropName.Whole();
    report.PlantDay = ReportDate(header.PlantDay);
    report.Mad = Plain(header.MAD);
    report.Efficiency = Plain(ToSingle(header.IrrEff * 100.0, "the irrigation efficiency"));
    report.TotalIrrigation = TotalText(TotalAmount(file.Lists.Irrigation), english);
    report.TotalRainfall = TotalText(TotalAmount(file.Lists.Rain), english);
    report.TotalLeaching = TotalText(static_cast<double>(leachings), english);
    report.Division = DivisionLines(capacityGrid, english);
    report.Capacity = SoilLines(capacityGrid, file.Soil.Capacity, file.IsHay, english);
    report.InitialContent = SoilLines(ContentGrid(header, file.Soil.Bounds), planting.Content, file.IsHay, english);
    report.History = FieldTable(file, english);
    return report;
}

void Append(std::vector<std::string>& lines, const std::vector<std::string>& more) {
    lines.insert(lines.end(), more.begin(), more.end());
}

constexpr FieldReportLabels SavedLabels{" FIELD ID:  ",         " CROP Name:  ",      " CROP Planted On:  ",
                                        " Total Irrigation:  ", " Total Rainfall:  ", " Total Leaching:  "};

}  // namespace

FieldReport GatherFieldReport(const FieldFile& file, const StatRecord& row, bool english) {
    const auto& leaching = file.Lists.Leaching;
    FieldReport report = Gather(
        file,
        std::count_if(leaching.begin(), leaching.end(), [&](const EventRecord& e) { return e.Day < row.LastDay; }),
        english);
    report.FieldId = row.FieldId.Whole();
    report.CropName = row.CropName.Whole();
    report.Predictions = PredictionLines(file, row, english);
    return report;
}

FieldReport GatherHarvestedReport(const FieldFile& file, bool english) {
    return Gather(file, std::ssize(file.Lists.Leaching), english);
}

std::vector<std::string> FieldLines(const FieldReport& report, const FieldReportLabels& labels, JulianValue today) {
    const auto line = [](std::string_view label, const std::string& value) { return std::string(label) + value; };
    return {" FIELD DATA as of " + ReportDate(today),
            "",
            line(labels.FieldId, report.FieldId),
            line(labels.CropName, report.CropName),
            line(labels.PlantDay, report.PlantDay),
            "",
            fmt::format(" Management Allowed Deficiency (MAD):  {}%", report.Mad),
            fmt::format(" Irrigation Efficiency:  {}%", report.Efficiency),
            "",
            line(labels.TotalIrrigation, report.TotalIrrigation),
            line(labels.TotalRainfall, report.TotalRainfall),
            line(labels.TotalLeaching, report.TotalLeaching),
            ""};
}

std::vector<std::string> SoilAndPredictionLines(const FieldReport& report) {
    std::vector<std::string> lines{" Soil Water Capacity"};
    Append(lines, report.Capacity);
    Append(lines, {"", " Initial Soil Water Content"});
    Append(lines, report.InitialContent);
    lines.emplace_back();
    Append(lines, report.Predictions);
    return lines;
}

std::string FieldReportText(const FieldReport& report, JulianValue today) {
    std::vector<std::string> lines = FieldLines(report, SavedLabels, today);
    lines.emplace_back();
    Append(lines, SoilAndPredictionLines(report));
    lines.emplace_back(" FIELD HISTORY");
    Append(lines, report.History);
    return fmt::format("{}\n", fmt::join(lines, "\n"));
}

std::optional<FieldReport> StoredFieldReport(Ask& ask, int row) {
    const std::optional<FieldFile> file = OpenField(ask, row);
    if (!file) return std::nullopt;
    return InFile(FieldFileTitle(row), [&] { return GatherFieldReport(*file, State.Stat[row], State.EnglishUnits); });
}

std::optional<std::string> FieldReportText(Ask& ask, int row) {
    const std::optional<FieldReport> report = StoredFieldReport(ask, row);
    if (!report) return std::nullopt;
    return FieldReportText(*report, State.TodayJulian);
}

void SaveFieldReport(Ask& ask, const FieldReport& report) {
    SaveReport(ask, SavedFieldReport, FieldReportText(report, State.TodayJulian));
}

bool SaveFieldReport(Ask& ask, int row) {
    const std::optional<FieldReport> report = StoredFieldReport(ask, row);
    if (report) SaveFieldReport(ask, *report);
    return report.has_value();
}

}  // namespace veraqua
