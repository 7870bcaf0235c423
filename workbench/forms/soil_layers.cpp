#include "workbench/forms/soil_layers.h"

#include <algorithm>
#include <optional>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/base/units.h"
#include "core/state.h"
#include "engine/refill.h"
#include "engine/soil_water.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "workbench/forms/new_field.h"
#include "workbench/forms/soil_column.h"
#include "workbench/forms/soil_entry.h"

namespace veraqua {

namespace {

constexpr std::size_t MostLayers = std::tuple_size_v<LayerBounds>;

std::string_view UnitText() { return State.EnglishUnits ? " in." : " mm."; }

bool SoilIsCopied() { return The<frmLoadField>().Copied.SoilCopied; }

// ---------------------------------------------------------------------------------------------------- the form's start

void SetLayerVisible(frmCapVar& form, std::size_t layer, bool visible) {
    form.txtRoot[layer].Visible = form.txtcap[layer].Visible = form.txtcon[layer].Visible = visible;
    form.lblRootDepth[layer].Visible = form.lblCapacity[layer].Visible = form.lblContent[layer].Visible = visible;
}

void EmptyLayer(frmCapVar& form, std::size_t layer) {
    for (TextBox* box : {&form.txtRoot[layer], &form.txtcap[layer], &form.txtcon[layer]}) box->Text.clear();
    SetLayerVisible(form, layer, false);
}

/// Takes the thicknesses and brings their sum and the drawing up to date.
void SetThicknesses(frmCapVar& form, const LayerBounds& thicknesses) {
    std::int16_t sum = 0;
    for (const float thickness : thicknesses)
        sum = ToInteger16(sum + static_cast<double>(thickness), "the sum of the soil layers");
    form.LayerDepth = thicknesses;
    form.CumDepth = sum;
    form.lblCumm.Caption = fmt::format("{}{}", sum, UnitText());
    DrawSoilColumn(form.sh_soil, thicknesses, form.MaxDepth);
}

void FillFrom(frmCapVar& form, const CopiedSoil& copied) {
    // In metric use a copied thickness is that in centimetres.
    const double perMetre = State.EnglishUnits ? InchesPerMetre : 100;
    LayerBounds thicknesses{};
    for (std::size_t layer = 0; layer <= static_cast<std::size_t>(copied.CopiedCapTop); ++layer) {
        SetLayerVisible(form, layer, true);
        const double thickness = static_cast<double>(copied.CopiedDepths[layer]) * perMetre;
        thicknesses[layer] = ToSingle(thickness, "the thickness of a soil layer");
        form.txtRoot[layer].Text = Masked(thickness, State.EnglishUnits ? "0.00" : "0.0");
        form.txtcap[layer].Text = EnteredWaterText(copied.CopiedCapacity[layer]);
        form.txtcon[layer].Text = EnteredWaterText(copied.CopiedContent[layer]);
    }
    SetThicknesses(form, thicknesses);
}

void Load(frmCapVar& form) {
    const bool english = State.EnglishUnits;
    form.Caption = "Water Capacity & Content, Veraqua " + State.VersionString;
    form.lblEnter.Caption =
        english ? "Please enter soil layer thickness in inches." : "Please enter soil layer depth in millimeters!";
    form.lblEnter2.Caption = english ? "Please enter capacity && content in inches per feet!"
                                     : "Please enter capacities and content in millimeters per meter!";
    // Metric: a tenth of the depth in millimetres, and called so all the same.
    const double rootMax = State.Header().RootMax;
    form.MaxDepth = ToInteger16(english ? rootMax * FeetPerMetre * InchesPerFoot : rootMax * 100, "the root depth");
    form.lblMaximum.Caption =
        fmt::format("Maximum rooting depth for {} is:  {}{}", CropInWork(), form.MaxDepth, UnitText());
    for (std::size_t layer = 0; layer < MostLayers; ++layer) {
        form.lblRootDepth[layer].Caption = fmt::format("Thickness of layer {}:", layer + 1);
        form.lblCapacity[layer].Caption = "Capacity:";
        form.lblContent[layer].Caption = "Content:";
        SetLayerVisible(form, layer, layer == 0);
    }
    ClearSoilColumn(form.sh_soil);
    if (SoilIsCopied()) FillFrom(form, The<frmLoadField>().Copied);
    ShowNewField(form.StatusBar1);
}

// ------------------------------------------------------------------------------------------------ checks while typing

/// Thickness `value` for `layer` as the depth allows it, after the user has been told where that is less.
double Clamped(const frmCapVar& form, std::size_t layer, double value) {
    const double above = form.CumDepth - static_cast<double>(form.LayerDepth[layer]);
    if (value + above <= form.MaxDepth) return value;
    TheScreen().Tell("You have entered soil data below the maximum root depth.", "For your information...");
    return std::max(form.MaxDepth - above, 0.0);
}

void SetThickness(frmCapVar& form, std::size_t layer, double thickness) {
    LayerBounds thicknesses = form.LayerDepth;
    thicknesses[layer] = ToSingle(thickness, "the thickness of a soil layer");
    SetThicknesses(form, thicknesses);
}

bool txtRoot_Leave(frmCapVar& form, int index) {
    const auto layer = static_cast<std::size_t>(index);
    TextBox& box = form.txtRoot[layer];
    const std::optional<double> typed = Numeric(box.Text);
    if (SoilIsCopied()) {
        // The text of an untouched box is rounded, its thickness is not.
        if (box.Typed) SetThickness(form, layer, std::max(typed.value_or(0), 0.0));
        return true;
    }
    if (box.Text.empty()) {
        SetThickness(form, layer, 0);
        return true;
    }
    if (!typed) {
        RefuseEntry(box, "Please enter a numeric value", "Input Error");
        return false;
    }
    const double value = RoundHalfEven(*typed);
    box.Text = Plain(value);
    if (value <= 0) {
        TheScreen().Tell("Please enter a value greater than 0", "Layer Interval Error");
        Focus(box);
        return false;
    }
    if (value == form.LayerDepth[layer]) return true;
    const double taken = Clamped(form, layer, value);
    SetThickness(form, layer, taken);
    box.Text = Plain(taken);
    return true;
}

bool IsNumericIfFilled(TextBox& box, std::string_view text, std::string_view title) {
    if (SoilIsCopied() || box.Text.empty() || Numeric(box.Text)) return true;
    TheScreen().Tell(text, title);
    Focus(box);
    return false;
}

bool txtcap_Leave(frmCapVar& form, int layer) {
    return IsNumericIfFilled(form.txtcap[static_cast<std::size_t>(layer)],
                             "Please enter a value between 0 and " + Plain(CapacityLimit()),
                             "Water Capacity Must Be NUMERIC");
}

bool txtcon_Leave(frmCapVar& form, int layer) {
    return IsNumericIfFilled(form.txtcon[static_cast<std::size_t>(layer)], "Please enter a numeric value!",
                             "Water Content Input Error");
}

// ------------------------------------------------------------------------------------------------------ keys, buttons

void cmdDepth_Click(frmCapVar& form) {
    if (form.CumDepth >= form.MaxDepth) {
        TheScreen().Tell("You have already reached your maximum root depth.", "For your information...");
        return;
    }
    for (std::size_t layer = 0; layer < MostLayers; ++layer) {
        TextBox& box = form.txtRoot[layer];
        const std::optional<double> depth = Numeric(box.Text);
        if (!box.Visible) {
            SetLayerVisible(form, layer, true);
            return Focus(box);
        }
        if (!depth || *depth <= 0) {
            TheScreen().Tell(depth ? "Please enter a positive root depth for the current layer"
                                   : "Please enter a root depth for the current layer",
                             depth ? "Invalid root depth" : "Missing root depth");
            return Focus(box);
        }
    }
    TheScreen().Tell("Maximum of six soil layers allowed", "Sorry...");
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
    form.LayerDepth = {};
    form.CumDepth = 0;
    // What stands in the first layer counts again on leaving.
    form.txtRoot[0].Typed = true;
    form.lblCumm.Caption.clear();
    ClearSoilColumn(form.sh_soil);
}

void cmdPrint_Click(frmCapVar&) { PrintForm(FormName::frmCapVar, CannotPrintForm); }

void cmdCancel_Click(frmCapVar&) {
    Unload(FormName::frmLoadField);
    Unload(FormName::frmCapVar);
}

// --------------------------------------------------------------------------------------------------------- the new
// soil

/// False where the user wants to go on with the entry.
bool DepthIsFilled(const frmCapVar& form) {
    if (form.CumDepth == 0) TheScreen().Tell("Please enter soils data or click Cancel", "Veraqua Warning");
    if (form.CumDepth >= form.MaxDepth) return true;
    if (TheScreen().YesNo("The soil layers you have identified do not add up to the maximum rooting depth.\n"
                          "Do you wish the program to automatically increase the final layer depth?",
                          "Soil Layer Warning", Icon::Question, false))
        return true;
    TheScreen().Tell("Please edit existing layers or add another one", "Veraqua Warning");
    return false;
}

/// Index of the last layer, 0 also where none has a thickness. Nothing, after the user has been told, where a layer
/// without thickness has others below it.
std::optional<std::size_t> TopLayer(frmCapVar& form) {
    const LayerBounds& depths = form.LayerDepth;
    const auto firstEmpty = std::ranges::find(depths, 0.0F);
    if (std::any_of(firstEmpty, depths.end(), [](float depth) { return depth != 0; })) {
        TheScreen().Tell("Please enter a root depth for the current layer", "Missing root depth");
        Focus(form.txtRoot[static_cast<std::size_t>(firstEmpty - depths.begin())]);
        return std::nullopt;
    }
    const auto layers = static_cast<std::size_t>(firstEmpty - depths.begin());
    return layers == 0 ? 0 : layers - 1;
}

/// The layers in metres, the last one down to the deepest root depth.
LayerBounds Thicknesses(const frmCapVar& form, std::size_t topLayer) {
    const double metresPerUnit = State.EnglishUnits ? MetresPerInch : 0.001;
    const auto metres = [](double value) { return ToSingle(value, "the thickness of a soil layer"); };
    LayerBounds bounds{};
    for (std::size_t layer = 0; layer <= topLayer; ++layer)
        bounds[layer] = metres(form.LayerDepth[layer] * metresPerUnit);
    if (form.CumDepth < form.MaxDepth)
        bounds[topLayer] = metres(bounds[topLayer] + (form.MaxDepth - form.CumDepth) * metresPerUnit);
    return bounds;
}

void StoreLayerCount(std::size_t topLayer) {
    for (HeaderCommon* header : {static_cast<HeaderCommon*>(&State.Field), static_cast<HeaderCommon*>(&State.Hay)}) {
        header->CapacityTop = header->ContentTop = static_cast<std::int16_t>(topLayer);
        header->CapacityInterval = header->ContentInterval = 0;
    }
}

bool TakeCapacities(frmCapVar& form, std::size_t topLayer, SoilProfile& soil) {
    for (std::size_t layer = 0; layer <= topLayer; ++layer) {
        TextBox& box = form.txtcap[layer];
        const std::optional<std::int16_t> capacity =
            TakeCapacity(box, "Your 'Capacity' value is greater than 3in/ft (250mm/m).  Do you want to proceed?.",
                         EnteredValue(box) <= 0, "Please enter a Capacity Value greater than 0.");
        if (!capacity) return false;
        soil.Capacity[layer] = *capacity;
    }
    return true;
}

/// The most water that `layer` may be entered with: a twentieth above its capacity.
double LayerMax(std::size_t layer, const SoilProfile& soil) {
    const LayerBottoms bottoms = BottomsOf(soil.Bounds);
    const float top = layer == 0 ? 0 : bottoms[layer - 1];
    const double water =
        SoilWaterBetween(top, bottoms[layer], CapacityGrid(State.Header(), soil.Bounds), soil.Capacity);
    return EnteredWater(water / soil.Bounds[layer]) * 1.05;
}

bool TakeContents(frmCapVar& form, std::size_t topLayer, SoilProfile& soil) {
    for (std::size_t layer = 0; layer <= topLayer; ++layer) {
        const double content = EnteredValue(form.txtcon[layer]);
        const double layerMax = LayerMax(layer, soil);
        if (content < 0 || content > layerMax + 0.01) {
            RefuseEntry(form.txtcon[layer], "Please enter a value between 0 and " + Masked(layerMax, "0.00"),
                        "Water Content Input Error - Out of Bounds");
            return false;
        }
        soil.Content[layer] = StoredWater(content);
    }
    return true;
}

void cmdOK_Click(frmCapVar& form) {
    if (!LeaveChecksPass(FormName::frmCapVar) || !DepthIsFilled(form)) return;
    const std::optional<std::size_t> topLayer = TopLayer(form);
    if (!topLayer) return;
    SoilProfile soil;
    soil.Bounds = Thicknesses(form, *topLayer);
    StoreLayerCount(*topLayer);
    if (TakeCapacities(form, *topLayer, soil) && TakeContents(form, *topLayer, soil))
        StartField(soil, FormName::frmCapVar);
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
