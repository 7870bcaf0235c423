#include "reports/forms/graphs.h"

#include <algorithm>
#include <functional>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/directory.h"
#include "core/state.h"
#include "reports/depletion_warning.h"
#include "reports/field_days.h"
#include "reports/stored_field.h"
#include "screen/forms.h"
#include "screen/screen.h"

namespace veraqua {

namespace {

JulianValue SortDateOf(const StatRecord& row) {
    if (row.NextIrrAmount < 0) return HarvestDueDate;
    return row.NextIrrAmount > 0 ? row.NextIrrDay : NoDataDate;
}

GraphRow GraphRowOf(int number, const FieldFile& file) {
    StatRecord& row = State.Stat[number];
    const FieldDay day = StateOf(file, AsOf(file, StateDay(row, State.TodayJulian)).Row);
    row.Depletion = ToInteger16(day.Depletion, "Depletion");
    return {static_cast<std::int16_t>(number),
            row.FieldId.Text(),
            row.CropName.Text(),
            static_cast<float>(row.Depletion),
            static_cast<float>(row.MadNow),
            ToSingle(100.0 * day.Available / day.Capacity, "Water content"),
            file.Header().PlantDay,
            SortDateOf(row),
            row.LastDay};
}

/// The rows of all fields that can be read.
std::vector<GraphRow> GraphRows() {
    std::vector<GraphRow> rows;
    ForEachStoredField(TheScreen(), [&rows](int row, const FieldFile& file) { rows.push_back(GraphRowOf(row, file)); });
    return rows;
}

void Colour(frmFieldGraph& panel, const GraphRow& row) {
    const std::optional<veraqua::Colour> warning = DepletionWarning(row.Depletion, row.MadNow);
    panel.Background = warning;
    for (Label* label : {&panel.lbl_WaterContent, &panel.lbl_amount, &panel.lbl_MAD, &panel.lbl_depl})
        label->Background = warning;
}

void Draw(frmFieldGraph& panel, const GraphRow& row) {
    panel.Caption = fmt::format("{} -- ID: {}", row.CropName, row.FieldId);
    const float value = row.WaterContent > 99 ? 100 : std::max(row.WaterContent, 0.0F);
    panel.PBar.Value = value;
    panel.lbl_WaterContent.Caption = Masked(value, "0.0") + "%";
    panel.lbl_MAD.Caption = "MAD:  " + Masked(row.MadNow, "0.0") + "%";
    panel.lbl_depl.Caption = "Depletion:  " + Masked(row.Depletion, "0.0") + "%";
    panel.lbl_k.Caption = std::to_string(row.Row);
    panel.lbl_k.Visible = false;
    Colour(panel, row);
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

void Sort(frmGraphs& form, std::string_view key) {
    SortGraphRows(form.Rows, key);
    DrawFrom(form, form.FirstShown);
}

void m_plant_Click(frmGraphs& form) { Sort(form, "Date"); }
void m_crop_Click(frmGraphs& form) { Sort(form, "Crop"); }
void m_Field_Click(frmGraphs& form) { Sort(form, "Field"); }
void m_irr_Click(frmGraphs& form) { Sort(form, "IrrDate"); }

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

void SortGraphRows(std::vector<GraphRow>& rows, std::string_view key) {
    const auto later = [key](const GraphRow& a, const GraphRow& b) {
        if (key == "Date") return a.PlantDate > b.PlantDate;
        if (key == "Crop") return a.CropName > b.CropName;
        if (key == "Field") return a.FieldId > b.FieldId;
        return a.NextIrrDate > b.NextIrrDate;
    };
    const auto half = [](std::size_t whole) {
        return static_cast<std::size_t>(RoundHalfEven(static_cast<double>(whole) / 2));
    };
    for (std::size_t gap = half(rows.size() + 1); gap >= 1; gap = half(gap)) {
        bool swapped = true;
        while (swapped) {
            swapped = false;
            for (std::size_t i = 0; i + gap < rows.size(); ++i) {
                if (!later(rows[i], rows[i + gap])) continue;
                std::swap(rows[i], rows[i + gap]);
                swapped = true;
            }
        }
    }
}

void ShowFieldDisplays() {
    std::vector<GraphRow> rows = GraphRows();
    if (rows.empty())
        return TheScreen().Tell("No fields to display, please Initialize a field before choosing this option");
    Show(FormName::frmGraphs);
    frmGraphs& form = The<frmGraphs>();
    form.Caption = "Field Graphs";
    form.Rows = std::move(rows);
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
    table.Close(m_exit_Click);
    return table.Done();
}

}  // namespace veraqua
