#include "reports/forms/field_details.h"

#include <algorithm>
#include <span>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/directory.h"
#include "core/field_file.h"
#include "core/state.h"
#include "reports/field_days.h"
#include "reports/forms/field_summary.h"
#include "reports/report_text.h"
#include "reports/soil_lines.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"

namespace veraqua {

namespace {

/// Water as this form shows it: inches in `mask`, or plain millimetres.
std::string WaterText(double millimetres, std::string_view mask) {
    const DayUnits units{State.EnglishUnits};
    return units.English ? Masked(units.Water(millimetres), mask) + " in" : Plain(millimetres) + " mm";
}

std::string TotalText(double millimetres) { return millimetres == 0 ? "None" : WaterText(millimetres, "0.00"); }

/// What leached from planting through `day`.
double LeachedThrough(JulianValue day, const std::vector<EventRecord>& leaching) {
    double sum = 0;
    for (const EventRecord& event : leaching) sum += event.Day <= day ? event.Amount : 0;
    return sum;
}

/// Puts texts into rows of labels; those that are left over are empty.
void ShowRows(std::span<Label> rows, const std::vector<std::string>& texts) {
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i].Caption = i < texts.size() ? texts[i] : "";
}

/// The latest entries of a list of water, as many as there are `rows`; none of a list that comes to nothing.
void ShowLatest(std::span<Label> rows, const std::vector<EventRecord>& water) {
    std::vector<std::string> texts;
    const std::size_t shown = TotalAmount(water) == 0 ? 0 : std::min(rows.size(), water.size());
    for (const EventRecord& event : std::span(water).last(shown)) {
        const double amount = DayUnits{State.EnglishUnits}.Water(event.Amount);
        texts.push_back(fmt::format("{}     {} {}", JulianToShortText(event.Day), Masked(amount, "0.0"),
                                    State.EnglishUnits ? "in" : "mm"));
    }
    ShowRows(rows, texts);
}

std::string SoilText(const SoilZone& zone) {
    const bool english = State.EnglishUnits;
    return fmt::format("{} to {} {}:  {}{}", Masked(SoilDepth(zone.Top, english), "00"),
                       Masked(SoilDepth(zone.Bottom, english), "00"), english ? "in" : "mm",
                       Masked(WaterPerDepth(zone.Water, english), english ? "0.00" : "0.0"),
                       english ? "in/ft" : "mm/m");
}

void ShowDirectoryRow(frmFieldDetails& form, const StatRecord& row) {
    const FieldState state = StateInWork();
    form.txtWeather.Text = state.Weather;
    form.txtDeplete.Text = state.Depletion;
    form.txtMAD.Text = state.Mad;
    form.txtIrrEffic.Text = state.Efficiency;
    ShowPrediction(DetailsPrediction(row, State.IsHay, State.TodayJulian, State.MadExceededDay, State.EnglishUnits),
                   form.txtIrrDate, form.txtIrrAmnt);
    form.txtHayCut.Text = CuttingAdvice(row, State.IsHay);
}

void ShowDay(frmFieldDetails& form, const FieldDay& day) {
    const DayUnits units{State.EnglishUnits};
    form.txtHistDate.Text = ReportDate(day.Day);
    form.txtKc.Text = Masked(day.Kc, "0.00");
    form.txtKd.Text = Masked(day.Kd, "0.00");
    form.txtGDD.Text = Masked(units.Heat(day.GddSum), "0") + (units.English ? " (F)" : " (C)");
    form.txtRootDepth.Text = Masked(units.Root(day.RootDepth), "0.00") + (units.English ? " ft" : " m");
    form.txtDeficit.Text = WaterText(static_cast<double>(day.Capacity) - day.Available, "0.00");
}

void ShowLists(frmFieldDetails& form, const FieldLists& lists, JulianValue day) {
    form.txtRAIN.Text = TotalText(TotalAmount(lists.Rain));
    form.txtIRR.Text = TotalText(TotalAmount(lists.Irrigation));
    form.txtLEACH.Text = TotalText(LeachedThrough(day, lists.Leaching));
    ShowLatest(form.lblRDate, lists.Rain);
    ShowLatest(form.lblIDate, lists.Irrigation);
}

/// The profile of the planting day.
void ShowSoil(frmFieldDetails& form, const FieldFile& file) {
    const HeaderCommon& header = file.Header();
    std::vector<std::string> texts;
    for (const SoilZone& zone : SoilZones(ContentGrid(header, file.Soil.Bounds), AsOf(file, header.PlantDay).Content))
        texts.push_back(SoilText(zone));
    ShowRows(form.lblCont, texts);
}

void Fill(frmFieldDetails& form) {
    const std::optional<FieldFile> file = OpenField(TheScreen(), State.CurrentField);
    if (!file) return;
    const StatRecord& row = State.Stat[State.CurrentField];
    InFile(FieldFileName(State.CurrentField), [&] {
        const FieldDay day = StateOf(*file, AsOf(*file, StateDay(row, State.TodayJulian)).Row);
        ShowDay(form, day);
        ShowLists(form, file->Lists, day.Day);
        ShowSoil(form, *file);
    });
    ShowDirectoryRow(form, row);
    ShowFieldIn(form.StatusBar1);
}

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
    table.Fill(Fill).Close(cmdExit_Click);
    return table.Done();
}

}  // namespace veraqua
