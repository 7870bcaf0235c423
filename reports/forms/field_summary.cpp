#include "reports/forms/field_summary.h"

#include <fmt/format.h>

#include "core/state.h"
#include "reports/field_summary.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "weather/default_days.h"

namespace veraqua {

namespace {

void Load(frmFieldData& form) { form.lblPrinted.Visible = form.lblDefault.Visible = false; }

void ShowDefaultWeather(Label& label, const HeaderCommon& header, JulianValue lastDay) {
    label.Caption = DefaultWeatherNote(DefaultDaysBefore(header, lastDay));
    label.Visible = !label.Caption.empty();
}

void Fill(frmFieldData& form) {
    const StatRecord& row = State.Stat[State.CurrentField];
    const FieldSummary summary = SummaryOf(row, State.Header(), State.WeatherLastJulian, State.TodayJulian);
    form.txtWeather.Text = summary.Weather;
    ShowDefaultWeather(form.lblDefault, State.Header(), row.LastDay);
    form.Label4.Caption = summary.DepletionOf;
    form.txtDeplete.Text = summary.Depletion;
    form.txtMAD.Text = summary.Mad;
    form.txtEffic.Text = summary.Efficiency;
    ShowPrediction(SummaryPrediction(row, State.TodayJulian, State.MadExceededDay, State.EnglishUnits), form.txtIrrDate,
                   form.txtIrrAmnt);
    ShowFieldIn(form.StatusBar1);
    form.StatusBar1.Panels[0] = fmt::format("Field={}  ID={}", State.CurrentField, IdInWork());
    form.Title = FieldTitle();
    form.Shown = FieldShownNow();
}

void Follow(frmFieldData& form) { FollowField(FormName::frmFieldData, form.Shown); }

void cmdPrint_Click(frmFieldData& form) {
    form.lblPrinted.Caption = form.Title;
    form.lblPrinted.Visible = true;
    PrintForm(FormName::frmFieldData);
    form.lblPrinted.Visible = false;
}

void cmdExit_Click(frmFieldData&) { Unload(FormName::frmFieldData); }

}  // namespace

FormTable TableOf(frmFieldData& form) {
    FormFor table(form, FormName::frmFieldData, "frmFieldData");
    table.Add("lblPrinted", form.lblPrinted);
    table.Add("Label3", form.Label3);
    table.Add("txtWeather", form.txtWeather);
    table.Add("lblDefault", form.lblDefault);
    table.Add("Label4", form.Label4);
    table.Add("txtDeplete", form.txtDeplete);
    table.Add("Label5", form.Label5);
    table.Add("txtMAD", form.txtMAD);
    table.Add("lblEffic", form.lblEffic);
    table.Add("txtEffic", form.txtEffic);
    table.Add("lbl_next", form.lbl_next);
    table.Add("txtIrrDate", form.txtIrrDate);
    table.Add("lbl_amount", form.lbl_amount);
    table.Add("txtIrrAmnt", form.txtIrrAmnt);
    table.Add("cmdPrint", form.cmdPrint).Click(cmdPrint_Click);
    table.Add("cmdExit", form.cmdExit).Click(cmdExit_Click).Exit();
    table.Add("StatusBar1", form.StatusBar1);
    table.Load(Load).Fill(Fill).Follow(Follow).Close(cmdExit_Click);
    return table.Done();
}

}  // namespace veraqua
