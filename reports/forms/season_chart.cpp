#include "reports/forms/season_chart.h"

#include "core/state.h"
#include "reports/season_chart.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "weather/default_days.h"

namespace veraqua {

namespace {

void Load(frmSeasonChart& form) { form.Caption = "Season Chart, Veraqua " + State.VersionString; }

void FillForm(frmSeasonChart& form) {
    if (State.CurrentField == 0) return Unload(FormName::frmSeasonChart);
    const std::optional<FieldFile> file = OpenField(TheScreen(), State.CurrentField);
    if (!file) return Unload(FormName::frmSeasonChart);
    form.Chart1.Show(SeasonChartNow(*file, State.Stat[State.CurrentField]));
    ShowFieldIn(form.StatusBar1);
    form.Caption = FieldTitle();
    form.Shown = FieldShownNow();
}

void Follow(frmSeasonChart& form) { FollowField(FormName::frmSeasonChart, form.Shown); }

void cmdPrint_Click(frmSeasonChart&) { PrintForm(FormName::frmSeasonChart); }
void cmdExit_Click(frmSeasonChart&) { Unload(FormName::frmSeasonChart); }

}  // namespace

ChartContent SeasonChartNow(const FieldFile& file, const StatRecord& row) {
    ChartContent chart = SeasonChart(file, row, State.TodayJulian, State.EnglishUnits);
    MarkDefaultWeather(chart, row.LastDay, DefaultDaysBefore(file.Header(), row.LastDay));
    return chart;
}

FormTable TableOf(frmSeasonChart& form) {
    FormFor table(form, FormName::frmSeasonChart, "frmSeasonChart");
    table.Add("Chart1", form.Chart1);
    table.Add("cmdPrint", form.cmdPrint).Click(cmdPrint_Click);
    table.Add("cmdExit", form.cmdExit).Click(cmdExit_Click).Exit();
    table.Add("StatusBar1", form.StatusBar1);
    table.Load(Load).Fill(FillForm).Follow(Follow).Close(cmdExit_Click);
    return table.Done();
}

}  // namespace veraqua
