#include "reports/forms/field_history.h"

#include <fmt/format.h>

#include "core/directory.h"
#include "core/field_file.h"
#include "core/state.h"
#include "reports/field_report_print.h"
#include "reports/history_table.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"

namespace veraqua {

namespace {

void ShowHeadings(FieldHistory& form, bool isHay) {
    const std::vector<std::string> headings = HistoryHeadings(isHay, State.EnglishUnits);
    for (std::size_t i = 0; i < form.lblHd.size(); ++i) form.lblHd[i].Caption = headings[i];
}

void FillHistory(FieldHistory& form, FormName name, bool isHay) {
    if (State.CurrentField == 0) {
        TheScreen().Tell("Please select or initialize a field before choosing this option", "Information Message");
        return Unload(name);
    }
    const std::optional<FieldFile> file = OpenField(TheScreen(), State.CurrentField);
    if (!file) return Unload(name);
    ShowHeadings(form, isHay);
    form.Lines = InFile(FieldFileTitle(State.CurrentField), [&] { return HistoryLines(*file, State.EnglishUnits); });
    form.txtData.Text = fmt::format("{}", fmt::join(form.Lines, "\n"));
    form.txtID.Text = IdInWork();
    form.txtCropName.Text = CropInWork();
    form.txtPDate.Text = PlantingDateInWork();
    ShowPrediction(PlainPrediction(State.Stat[State.CurrentField], State.EnglishUnits), form.txtIDate, form.txtIrrAmnt);
    form.Caption = FieldTitle();
    form.Shown = FieldShownNow();
}

void PrintHistory(const FieldHistory& form, bool isHay) {
    PrintDocument(PrintedHistory(form.Lines, form.txtID.Text, form.Caption, isHay, form.Shown.English),
                  FieldReportSent);
}

template <class F, FormName Name>
FormTable HistoryTable(F& form, std::string_view text) {
    constexpr bool isHay = Name == FormName::frmHayFieldHistory;
    const auto exit = [](F&) { Unload(Name); };
    FormFor table(form, Name, text);
    table.Add("lblHd", form.lblHd);
    table.Add("txtData", form.txtData);
    table.Add("lblID", form.lblID);
    table.Add("txtID", form.txtID);
    table.Add("lblCropName", form.lblCropName);
    table.Add("txtCropName", form.txtCropName);
    table.Add("lblPDate", form.lblPDate);
    table.Add("txtPDate", form.txtPDate);
    table.Add("lblIDate", form.lblIDate);
    table.Add("txtIDate", form.txtIDate);
    table.Add("lblIrrAmnt", form.lblIrrAmnt);
    table.Add("txtIrrAmnt", form.txtIrrAmnt);
    table.Add("Label4", form.Label4);
    table.Add("cmdPrint", form.cmdPrint).Click([](F&) { PrintForm(Name); });
    table.Add("cmdPrintAll", form.cmdPrintAll).Click([](F& shown) { PrintHistory(shown, isHay); });
    table.Add("Cmd_Exit", form.Cmd_Exit).Click(exit).Exit();
    table.Load([](F& shown) { ShowHeadings(shown, isHay); });
    table.Fill([](F& shown) { FillHistory(shown, Name, isHay); });
    table.Follow([](F& shown) { FollowField(Name, shown.Shown); }).Close(exit);
    return table.Done();
}

}  // namespace

FormTable TableOf(frmFieldHistory& form) {
    return HistoryTable<frmFieldHistory, FormName::frmFieldHistory>(form, "frmFieldHistory");
}

FormTable TableOf(frmHayFieldHistory& form) {
    return HistoryTable<frmHayFieldHistory, FormName::frmHayFieldHistory>(form, "frmHayFieldHistory");
}

}  // namespace veraqua
