#include "workbench/forms/soil_layers.h"

#include <optional>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/state.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "workbench/forms/new_field.h"
#include "workbench/forms/soil_column.h"
#include "workbench/forms/soil_entry.h"

namespace veraqua {

namespace {

std::string_view UnitText() { return State.EnglishUnits ? " in." : " mm."; }

// ---------------------------------------------------------------------------------------------------- the form's start

void SetLayerVisible(frmCapVar& form, std::size_t layer, bool visible) {
    form.txtRoot[layer].Visible = form.txtcap[layer].Visible = form.txtcon[layer].Visible = visible;
    form.lblRootDepth[layer].Visible = form.lblCapacity[layer].Visible = form.lblContent[layer].Visible = visible;
}

void EmptyLayer(frmCapVar& form, std::size_t layer) {
    for (TextBox* box : {&form.txtRoot[layer], &form.txtcap[layer], &form.txtcon[layer]}) box->Text.clear();
    SetLayerVisible(form, layer, false);
}

/// Brings the sum of the thicknesses and the drawing up to date.
void ShowThicknesses(frmCapVar& form) {
    form.lblCumm.Caption = fmt::format("{}{}", form.Entry.CumDepth, UnitText());
    DrawSoilColumn(form.sh_soil, form.Entry.LayerDepth, form.Entry.MaxDepth);
}

void FillFrom(frmCapVar& form, const CopiedSoil& copied) {
    std::size_t layer = 0;
    for (const StartingLayer& start : form.Entry.StartFrom(copied)) {
        SetLayerVisible(form, layer, true);
        form.txtRoot[layer].Text = start.Thickness;
        form.txtcap[layer].Text = start.Water.Capacity;
        form.txtcon[layer].Text = start.Water.Content;
        ++layer;
    }
    ShowThicknesses(form);
}

void Load(frmCapVar& form) {
    const bool english = State.EnglishUnits;
    form.Caption = "Water Capacity & Content, Veraqua " + State.VersionString;
    form.lblEnter.Caption =
        english ? "Please enter soil layer thickness in inches." : "Please enter soil layer depth in millimeters!";
    form.lblEnter2.Caption = english ? "Please enter capacity && content in inches per feet!"
                                     : "Please enter capacities and content in millimeters per meter!";
    form.Entry = LayerEntry(State.Header().RootMax);
    form.lblMaximum.Caption =
        fmt::format("Maximum rooting depth for {} is:  {}{}", CropInWork(), form.Entry.MaxDepth, UnitText());
    for (std::size_t layer = 0; layer < MostLayers; ++layer) {
        form.lblRootDepth[layer].Caption = fmt::format("Thickness of layer {}:", layer + 1);
        form.lblCapacity[layer].Caption = "Capacity:";
        form.lblContent[layer].Caption = "Content:";
        SetLayerVisible(form, layer, layer == 0);
    }
    ClearSoilColumn(form.sh_soil);
    const CopiedSoil& copied = The<frmLoadField>().Copied;
    if (copied.SoilCopied) FillFrom(form, copied);
    ShowNewField(form.StatusBar1);
}

// ------------------------------------------------------------------------------------------------ checks while typing

bool txtRoot_Leave(frmCapVar& form, int index) {
    const auto layer = static_cast<std::size_t>(index);
    TextBox& box = form.txtRoot[layer];
    // The text of an untouched box of copied soil is rounded, its thickness is not.
    if (form.Entry.SoilCopied && !box.Typed) return true;
    const std::optional<Refused> refused = form.Entry.TakeThickness(TheScreen(), layer, box.Text);
    if (!refused) {
        ShowThicknesses(form);
        return true;
    }
    Tell(TheScreen(), *refused);
    if (Numeric(box.Text))
        Focus(box);
    else
        SelectText(box);
    return false;
}

bool txtcap_Leave(frmCapVar& form, int index) {
    const auto layer = static_cast<std::size_t>(index);
    return MayLeave(form.txtcap[layer], form.Entry.CheckCapacity(layer, form.txtcap[layer].Text));
}

bool txtcon_Leave(frmCapVar& form, int index) {
    const auto layer = static_cast<std::size_t>(index);
    return MayLeave(form.txtcon[layer], form.Entry.CheckContent(layer, form.txtcon[layer].Text));
}

// ------------------------------------------------------------------------------------------------------ keys, buttons

void cmdDepth_Click(frmCapVar& form) {
    std::vector<std::string> begun;
    for (const TextBox& box : form.txtRoot)
        if (box.Visible) begun.push_back(box.Text);
    const OrRefused<std::size_t> next = form.Entry.NextLayer(begun);
    if (next.IsDone()) {
        SetLayerVisible(form, *next, true);
        return Focus(form.txtRoot[*next]);
    }
    Tell(TheScreen(), next.Why());
    if (next.Why().Where == Given::Thickness) Focus(form.txtRoot[next.Why().Index]);
}

void txtRoot_Enter(frmCapVar& form, int layer) {
    if (txtRoot_Leave(form, layer)) Focus(form.txtcap[static_cast<std::size_t>(layer)]);
}

void txtcap_Enter(frmCapVar& form, int layer) {
    if (txtcap_Leave(form, layer)) Focus(form.txtcon[static_cast<std::size_t>(layer)]);
}

void txtcon_Enter(frmCapVar& form, int index) {
    const auto layer = static_cast<std::size_t>(index);
    if (form.txtRoot[layer].Text.empty() || form.txtcap[layer].Text.empty()) return;
    if (txtcon_Leave(form, index)) cmdDepth_Click(form);
}

void cmdReset_Click(frmCapVar& form) {
    for (std::size_t layer = 1; layer < MostLayers; ++layer) EmptyLayer(form, layer);
    form.Entry.Reset();
    // What stands in the first layer counts again on leaving.
    form.txtRoot[0].Typed = true;
    form.lblCumm.Caption.clear();
    ClearSoilColumn(form.sh_soil);
}

void cmdPrint_Click(frmCapVar&) { PrintForm(FormName::frmCapVar, CannotPrintForm); }

void cmdCancel_Click(frmCapVar& form) {
    if (KeepsEntries(AnyEntered(form.txtRoot) || AnyEntered(form.txtcap) || AnyEntered(form.txtcon))) return;
    Unload(FormName::frmLoadField);
    Unload(FormName::frmCapVar);
}

void Refuse(frmCapVar& form, const Refused& refused) {
    if (refused.Where == Given::Capacity) return RefuseEntry(form.txtcap[refused.Index], refused);
    if (refused.Where == Given::Content) return RefuseEntry(form.txtcon[refused.Index], refused);
    Tell(TheScreen(), refused);
    if (refused.Where == Given::Thickness) Focus(form.txtRoot[refused.Index]);
}

void cmdOK_Click(frmCapVar& form) {
    if (!LeaveChecksPass(FormName::frmCapVar)) return;
    std::array<TypedWater, MostLayers> typed;
    for (std::size_t layer = 0; layer < MostLayers; ++layer)
        typed[layer] = {form.txtcap[layer].Text, form.txtcon[layer].Text};
    const OrRefused<EnteredSoil> soil = form.Entry.Soil(TheScreen(), typed);
    if (soil.IsDone())
        FinishEntry(*soil, FormName::frmCapVar);
    else
        Refuse(form, soil.Why());
}

}  // namespace

FormTable TableOf(frmCapVar& form) {
    FormFor table(form, FormName::frmCapVar, "frmCapVar");
    table.Add("lblEnter", form.lblEnter);
    table.Add("lblEnter2", form.lblEnter2);
    table.Add("lblMaximum", form.lblMaximum);
    table.Add("lblRootDepth", form.lblRootDepth);
    table.Add("txtRoot", form.txtRoot).Leave(txtRoot_Leave).EnterKey(txtRoot_Enter);
    table.Add("lblCapacity", form.lblCapacity);
    table.Add("txtcap", form.txtcap).Leave(txtcap_Leave).EnterKey(txtcap_Enter);
    table.Add("lblContent", form.lblContent);
    table.Add("txtcon", form.txtcon).Leave(txtcon_Leave).EnterKey(txtcon_Enter);
    table.Add("sh_soil", form.sh_soil);
    table.Add("lblCumm", form.lblCumm);
    table.Add("cmdDepth", form.cmdDepth).Click(cmdDepth_Click);
    table.Add("cmdReset", form.cmdReset).Click(cmdReset_Click);
    table.Add("cmdOK", form.cmdOK).Click(cmdOK_Click);
    table.Add("cmdPrint", form.cmdPrint).Click(cmdPrint_Click);
    table.Add("cmdCancel", form.cmdCancel).Click(cmdCancel_Click).Exit();
    table.Add("StatusBar1", form.StatusBar1);
    table.Load(Load).Close(cmdCancel_Click);
    return table.Done();
}

}  // namespace veraqua
