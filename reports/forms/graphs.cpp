#include "reports/forms/graphs.h"

#include <algorithm>
#include <string>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/files/files.h"
#include "core/state.h"
#include "screen/forms.h"
#include "screen/screen.h"

namespace veraqua {

namespace {

void Draw(frmFieldGraph& panel, const GraphRow& row) {
    const GraphPanel shown = PanelOf(row);
    panel.Caption = shown.Caption;
    panel.PBar.Value = shown.Value;
    panel.lbl_WaterContent.Caption = shown.WaterContent;
    panel.lbl_MAD.Caption = shown.Mad;
    panel.lbl_depl.Caption = shown.Depletion;
    panel.lbl_k.Caption = std::to_string(row.Row);
    panel.lbl_k.Visible = false;
    panel.Background = shown.Warning;
    for (Label* label : {&panel.lbl_WaterContent, &panel.lbl_amount, &panel.lbl_MAD, &panel.lbl_depl})
        label->Background = shown.Warning;
}

/// Shows the rows from `FirstShown` to `LastShown` in panels, which are made as they are needed.
void DrawAll(frmGraphs& form) {
    const auto first = static_cast<std::size_t>(form.FirstShown) - 1;
    const std::size_t shown = static_cast<std::size_t>(form.LastShown) - first;
    while (form.Panels.size() < shown) {
        form.Panels.push_back(std::make_shared<frmFieldGraph>());
        form.Children.push_back(std::make_shared<FormTable>(TableOf(*form.Panels.back())));
    }
    for (std::size_t i = 0; i < form.Panels.size(); ++i) {
        form.Children[i]->Shown = form.Children[i]->Loaded = i < shown;
        if (i < shown) Draw(*form.Panels[i], form.Rows[first + i]);
    }
    TheScreen().Present(FormOf(FormName::frmGraphs));
}

/// As many fields from `first` on as one display holds.
void DrawFrom(frmGraphs& form, int first) {
    form.FirstShown = first;
    form.LastShown = std::min(first + State.DisplayDays - 1, static_cast<int>(form.Rows.size()));
    DrawAll(form);
}

void Sort(frmGraphs& form, GraphOrder order) {
    form.Order = order;
    SortGraphRows(form.Rows, order);
    DrawFrom(form, form.FirstShown);
}

void m_plant_Click(frmGraphs& form) { Sort(form, GraphOrder::PlantDate); }
void m_crop_Click(frmGraphs& form) { Sort(form, GraphOrder::CropName); }
void m_Field_Click(frmGraphs& form) { Sort(form, GraphOrder::FieldId); }
void m_irr_Click(frmGraphs& form) { Sort(form, GraphOrder::NextIrrDate); }

void m_next12_Click(frmGraphs& form) {
    const int count = static_cast<int>(form.Rows.size());
    if (form.LastShown == count)
        return TheScreen().Tell(fmt::format("You've displayed all your fields.  You have {} fields planted.", count));
    DrawFrom(form, form.LastShown + 1);
}

void m_prior12_Click(frmGraphs& form) {
    if (form.FirstShown == 1)
        return TheScreen().Tell(fmt::format("You're already displaying your first {} fields.", State.DisplayDays));
    DrawFrom(form, std::max(1, form.FirstShown - State.DisplayDays));
}

void Take(frmGraphs& form, std::vector<GraphRow> rows) {
    form.Rows = std::move(rows);
    form.Changes = files::ChangesMade();
    form.Today = State.TodayJulian;
}

/// The bars keep up with the fields; the user stays where they are.
void Follow(frmGraphs& form) {
    if (form.Rows.empty() || (form.Changes == files::ChangesMade() && form.Today == State.TodayJulian)) return;
    Take(form, GraphRows(TheScreen()));
    if (form.Rows.empty()) return Unload(FormName::frmGraphs);
    if (form.Order) SortGraphRows(form.Rows, *form.Order);
    DrawFrom(form, std::min(form.FirstShown, static_cast<int>(form.Rows.size())));
}

/// Back to the workbench with the field in work.
void m_exit_Click(frmGraphs&) {
    Show(FormName::frmField);
    Unload(FormName::frmGraphs);
    if (State.CurrentField > 0) Fill(FormName::frmField);
}

void cmd_Select_Click(frmFieldGraph& panel) {
    State.CurrentField = static_cast<std::int16_t>(WholeNumber(panel.lbl_k.Caption).value_or(0));
    m_exit_Click(The<frmGraphs>());
}

}  // namespace

void ShowFieldDisplays() {
    std::vector<GraphRow> rows = GraphRows(TheScreen());
    if (rows.empty())
        return TheScreen().Tell("No fields to display, please Initialize a field before choosing this option");
    Show(FormName::frmGraphs);
    frmGraphs& form = The<frmGraphs>();
    form.Caption = "Field Graphs";
    Take(form, std::move(rows));
    DrawFrom(form, 1);
    Hide(FormName::frmField);
}

FormTable TableOf(frmFieldGraph& form) {
    FormFor table(form, FormName::frmFieldGraph, "frmFieldGraph");
    table.Add("PBar", form.PBar);
    table.Add("lbl_WaterContent", form.lbl_WaterContent);
    table.Add("lbl_amount", form.lbl_amount);
    table.Add("lbl_MAD", form.lbl_MAD);
    table.Add("lbl_depl", form.lbl_depl);
    table.Add("lbl_k", form.lbl_k);
    table.Add("cmd_Select", form.cmd_Select).Click(cmd_Select_Click).Exit();
    return table.Done();
}

FormTable TableOf(frmGraphs& form) {
    FormFor table(form, FormName::frmGraphs, "frmGraphs");
    table.Add("m_sort", form.m_sort);
    table.Add("m_plant", form.m_plant).Click(m_plant_Click);
    table.Add("m_crop", form.m_crop).Click(m_crop_Click);
    table.Add("m_Field", form.m_Field).Click(m_Field_Click);
    table.Add("m_irr", form.m_irr).Click(m_irr_Click);
    table.Add("m_prior12", form.m_prior12).Click(m_prior12_Click);
    table.Add("m_next12", form.m_next12).Click(m_next12_Click);
    table.Add("m_exit", form.m_exit).Click(m_exit_Click);
    table.Follow(Follow).Close(m_exit_Click);
    return table.Done();
}

}  // namespace veraqua
