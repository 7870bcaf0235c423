#include "reports/field_report_print.h"

#include "core/base/text.h"
#include "reports/printed_lines.h"
#include "reports/report_text.h"

namespace veraqua {

namespace {

const Font TextFont{"Courier New", 12};

constexpr FieldReportLabels CropLabels{" FIELD ID:        ",  " CROP Name:       ",  " CROP Planted On: ",
                                       " Total Irrigation: ", " Total Rainfall:   ", " Total Leaching:   "};

FieldReportLabels LabelsOf(const FieldReport& report) {
    FieldReportLabels labels = CropLabels;
    if (report.IsHay) labels.PlantDay = " CROP Planted On:  ";
    return labels;
}

}  // namespace

PrintedDocument PrintedFieldReport(const FieldReport& report, JulianValue today) {
    PrintedDocument document;
    document.Title = "Field Report " + std::string(Trimmed(report.FieldId));
    AddLines(document, TextFont, {"", ""});
    AddLines(document, TextFont, FieldLines(report, LabelsOf(report), today));
    AddLines(document, TextFont, report.Division);
    AddLines(document, TextFont, {""});
    for (const std::string& line : SoilAndPredictionLines(report)) AddLines(document, TextFont, {WithoutTabs(line)});
    AddLines(document, TableFont, {"", " FIELD HISTORY"});
    AddTable(document, TableFont, report.History, DayTableHeadings);
    return document;
}

}  // namespace veraqua
