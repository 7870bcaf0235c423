#include "reports/forms/field_details.h"

#include <span>

#include "core/directory.h"
#include "core/field_file.h"
#include "core/state.h"
#include "reports/field_summary.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"

namespace veraqua {

namespace {

/// Puts texts into rows of labels; those that are left over are empty.
void ShowRows(std::span<Label> rows, const std::vector<std::string>& texts) {
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i].Caption = i < texts.size() ? texts[i] : "";
}

void ShowDetails(frmFieldDetails& form, const FieldDetails& details) {
    form.txtHistDate.Text = details.Day;
    form.txtKc.Text = details.Kc;
    form.txtKd.Text = details.Kd;
    form.txtGDD.Text = details.Gdd;
    form.txtRootDepth.Text = details.RootDepth;
    form.txtDeficit.Text = details.Deficit;
    form.txtIRR.Text = details.TotalIrrigation;
    form.txtRAIN.Text = details.TotalRain;
    form.txtLEACH.Text = details.TotalLeaching;
    ShowRows(form.lblIDate, details.Irrigation);
    ShowRows(form.lblRDate, details.Rain);
    ShowRows(form.lblCont, details.Soil);
}

void ShowDirectoryRow(frmFieldDetails& form, const StatRecord& row) {
    const FieldSummary summary = SummaryOf(row, State.Header(), State.WeatherLastJulian, State.TodayJulian);
    form.txtWeather.Text = summary.Weather;
    form.txtDeplete.Text = summary.Depletion;
    form.txtMAD.Text = summary.Mad;
    form.txtIrrEffic.Text = summary.Efficiency;
    ShowPrediction(DetailsPrediction(row, State.IsHay, State.TodayJulian, State.MadExceededDay, State.EnglishUnits),
                   form.txtIrrDate, form.txtIrrAmnt);
    form.txtHayCut.Text = CuttingAdvice(row, State.IsHay);
}

void Fill(frmFieldDetails& form) {
    const std::optional<FieldFile> file = OpenField(TheScreen(), State.CurrentField);
    if (!file) return Unload(FormName::frmFieldDetails);
    const StatRecord& row = State.Stat[State.CurrentField];
    ShowDetails(form, InFile(FieldFileTitle(State.CurrentField),
                             [&] { return DetailsOf(*file, row, State.TodayJulian, State.EnglishUnits); }));
    ShowDirectoryRow(form, row);
    ShowFieldIn(form.StatusBar1);
    form.Shown = FieldShownNow();
}

void Follow(frmFieldDetails& form) { FollowField(FormName::frmFieldDetails, form.Shown); }

void cmdPrint_Click(frmFieldDetails&) { PrintForm(FormName::frmFieldDetails); }

void cmdExit_Click(frmFieldDetails&) { Unload(FormName::frmFieldDetails); }

void AddState(FormFor<frmFieldDetails>& table, frmFieldDetails& form) {
    table.Add("Label27", form.Label27);
    table.Add("txtHistDate", form.txtHistDate);
    table.Add("lblWeather", form.lblWeather);
    table.Add("txtWeather", form.txtWeather);
    table.Add("lblDeplete", form.lblDeplete);
    table.Add("txtDeplete", form.txtDeplete);
    table.Add("lblMAD", form.lblMAD);
    table.Add("txtMAD", form.txtMAD);
    table.Add("lblEffic", form.lblEffic);
    table.Add("txtIrrEffic", form.txtIrrEffic);
    table.Add("lbl_next", form.lbl_next);
    table.Add("txtIrrDate", form.txtIrrDate);
    table.Add("lbl_amount", form.lbl_amount);
    table.Add("txtIrrAmnt", form.txtIrrAmnt);
    table.Add("Label1", form.Label1);
    table.Add("txtHayCut", form.txtHayCut);
    table.Add("lblKc", form.lblKc);
    table.Add("txtKc", form.txtKc);
    table.Add("lblKd", form.lblKd);
    table.Add("txtKd", form.txtKd);
    table.Add("lblGDD", form.lblGDD);
    table.Add("txtGDD", form.txtGDD);
    table.Add("lblRootDepth", form.lblRootDepth);
    table.Add("txtRootDepth", form.txtRootDepth);
    table.Add("lblDeficit", form.lblDeficit);
    table.Add("txtDeficit", form.txtDeficit);
}

void AddWaterAndSoil(FormFor<frmFieldDetails>& table, frmFieldDetails& form) {
    table.Add("lblIRR", form.lblIRR);
    table.Add("txtIRR", form.txtIRR);
    table.Add("lblRAIN", form.lblRAIN);
    table.Add("txtRAIN", form.txtRAIN);
    table.Add("lblLEACH", form.lblLEACH);
    table.Add("txtLEACH", form.txtLEACH);
    table.Add("lblSoil", form.lblSoil);
    table.Add("lblCont", form.lblCont);
    table.Add("lblRain", form.lblRain);
    table.Add("lblRDate", form.lblRDate);
    table.Add("lblIrrigation", form.lblIrrigation);
    table.Add("lblIDate", form.lblIDate);
}

}  // namespace

FormTable TableOf(frmFieldDetails& form) {
    FormFor table(form, FormName::frmFieldDetails, "frmFieldDetails");
    AddState(table, form);
    AddWaterAndSoil(table, form);
    table.Add("cmdPrint", form.cmdPrint).Click(cmdPrint_Click);
    table.Add("cmdExit", form.cmdExit).Click(cmdExit_Click).Exit();
    table.Add("StatusBar1", form.StatusBar1);
    table.Fill(Fill).Follow(Follow).Close(cmdExit_Click);
    return table.Done();
}

}  // namespace veraqua
