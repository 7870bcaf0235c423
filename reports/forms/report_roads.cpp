#include "reports/forms/report_roads.h"

#include "core/state.h"
#include "reports/field_report_print.h"
#include "reports/report_file.h"
#include "reports/schedule.h"
#include "reports/schedule_print.h"
#include "screen/screen.h"

namespace veraqua {

namespace {

void PrintFieldInWork() {
    if (const auto report = StoredFieldReport(TheScreen(), State.CurrentField)) PrintFieldReport(*report);
}

void SaveFieldInWork() {
    if (ChooseDestination(SavedReport::Field, SavedFieldReport.DefaultName) == ReportDestination::Disk)
        SaveFieldReport(TheScreen(), State.CurrentField);
}

}  // namespace

void PrintSchedule() {
    PrintDocument(PrintedSchedule(TheScreen()),
                  "Irrigation & Cutting Predictions Report was sent to your default printer");
}

void PrintFieldReport(const FieldReport& report) {
    PrintDocument(PrintedFieldReport(report, State.TodayJulian), FieldReportSent);
}

void SaveScheduleByDialog() {
    if (ChooseDestination(SavedReport::Schedule, SavedSchedule.DefaultName) == ReportDestination::Disk)
        SaveSchedule(TheScreen());
}

void RunFieldReport(ReportDestination destination) {
    switch (destination) {
        case ReportDestination::Printer: return PrintFieldInWork();
        case ReportDestination::Disk: return SaveFieldInWork();
        case ReportDestination::None: break;
    }
    TheScreen().Tell("Error - No choice to save or print report. Contact OLK.", "Error");
}

}  // namespace veraqua
