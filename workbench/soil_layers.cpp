#include "workbench/soil_layers.h"

#include <algorithm>

#include "core/base/numbers.h"
#include "core/base/units.h"
#include "core/state.h"
#include "engine/refill.h"
#include "engine/soil_water.h"

namespace veraqua {

namespace {

/// False where the user wants to go on with the entry.
bool DepthIsFilled(Ask& ask, const LayerEntry& entry) {
    if (entry.CumDepth == 0) ask.Tell("Please enter soils data or click Cancel", "Veraqua Warning");
    return entry.CumDepth >= entry.MaxDepth ||
           ask.YesNo(
               "The soil layers you have identified do not add up to the maximum rooting depth.\n"
               "Do you wish the program to automatically increase the final layer depth?",
               "Soil Layer Warning", Icon::Question, false);
}

/// Index of the last layer, 0 also where none has a thickness. Refused where a layer without thickness has others below
/// it.
OrRefused<std::size_t> TopLayer(const LayerBounds& depths) {
    const auto firstEmpty = std::ranges::find(depths, 0.0F);
    const auto layers = static_cast<std::size_t>(firstEmpty - depths.begin());
    if (std::any_of(firstEmpty, depths.end(), [](float depth) { return depth != 0; }))
        return Refused{"Please enter a root depth for the current layer", "Missing root depth", Given::Thickness,
                       layers};
    return layers == 0 ? 0 : layers - 1;
}

/// The layers in metres, the last one down to the deepest root depth.
LayerBounds Thicknesses(const LayerEntry& entry, std::size_t topLayer) {
    const double metresPerUnit = State.EnglishUnits ? MetresPerInch : 0.001;
    const auto metres = [](double value) { return ToSingle(value, "the thickness of a soil layer"); };
    LayerBounds bounds{};
    for (std::size_t layer = 0; layer <= topLayer; ++layer)
        bounds[layer] = metres(entry.LayerDepth[layer] * metresPerUnit);
    if (entry.CumDepth < entry.MaxDepth)
        bounds[topLayer] = metres(bounds[topLayer] + (entry.MaxDepth - entry.CumDepth) * metresPerUnit);
    return bounds;
}

/// The most water that `layer` may be entered with: a twentieth above its capacity.
double LayerMax(std::size_t layer, const EnteredSoil& soil) {
    const LayerBounds& bounds = soil.Profile.Bounds;
    const LayerBottoms bottoms = BottomsOf(bounds);
    const float top = layer == 0 ? 0 : bottoms[layer - 1];
    const double water =
        SoilWaterBetween(top, bottoms[layer], {soil.Interval, bounds, soil.Top}, soil.Profile.Capacity);
    return EnteredWater(water / bounds[layer]) * 1.05;
}

}  // namespace

LayerEntry::LayerEntry(float rootMax)
    // Metric: a tenth of the depth in millimetres, and called so all the same.
    : MaxDepth(ToInteger16(State.EnglishUnits ? rootMax * FeetPerMetre * InchesPerFoot : rootMax * 100.0,
                           "the root depth")) {}

std::vector<StartingLayer> LayerEntry::StartFrom(const CopiedSoil& copied) {
    // In metric use a copied thickness is that in centimetres.
    const double perMetre = State.EnglishUnits ? InchesPerMetre : 100;
    std::vector<StartingLayer> layers;
    LayerBounds thicknesses{};
    for (std::size_t layer = 0; layer <= static_cast<std::size_t>(copied.CopiedCapTop); ++layer) {
        const double thickness = static_cast<double>(copied.CopiedDepths[layer]) * perMetre;
        thicknesses[layer] = ToSingle(thickness, "the thickness of a soil layer");
        layers.push_back({Masked(thickness, State.EnglishUnits ? "0.00" : "0.0"),
                          StartingWater(copied.CopiedCapacity[layer], copied.CopiedContent[layer])});
    }
    SetThicknesses(thicknesses);
    SoilCopied = true;
    return layers;
}

void LayerEntry::SetThicknesses(const LayerBounds& thicknesses) {
    std::int16_t sum = 0;
    for (const float thickness : thicknesses)
        sum = ToInteger16(sum + static_cast<double>(thickness), "the sum of the soil layers");
    LayerDepth = thicknesses;
    CumDepth = sum;
}

void LayerEntry::SetThickness(std::size_t layer, double thickness) {
    LayerBounds thicknesses = LayerDepth;
    thicknesses[layer] = ToSingle(thickness, "the thickness of a soil layer");
    SetThicknesses(thicknesses);
}

void LayerEntry::Reset() {
    LayerDepth = {};
    CumDepth = 0;
}

std::optional<Refused> LayerEntry::TakeThickness(Ask& ask, std::size_t layer, std::string& typed) {
    const std::optional<double> number = Numeric(typed);
    if (SoilCopied || typed.empty()) {
        SetThickness(layer, std::max(number.value_or(0), 0.0));
        return std::nullopt;
    }
    if (!number) return Refused{"Please enter a numeric value", "Input Error", Given::Thickness, layer};
    double value = RoundHalfEven(*number);
    typed = Plain(value);
    if (value <= 0)
        return Refused{"Please enter a value greater than 0", "Layer Interval Error", Given::Thickness, layer};
    if (value == LayerDepth[layer]) return std::nullopt;
    const double above = CumDepth - static_cast<double>(LayerDepth[layer]);
    if (value + above > MaxDepth) {
        ask.Tell("You have entered soil data below the maximum root depth.", "For your information...");
        value = std::max(MaxDepth - above, 0.0);
    }
    SetThickness(layer, value);
    typed = Plain(value);
    return std::nullopt;
}

std::optional<Refused> LayerEntry::CheckCapacity(std::size_t layer, std::string_view typed) const {
    return SoilCopied ? std::nullopt : veraqua::CheckCapacity(typed, layer);
}

std::optional<Refused> LayerEntry::CheckContent(std::size_t layer, std::string_view typed) const {
    return SoilCopied ? std::nullopt : veraqua::CheckContent(typed, layer);
}

OrRefused<std::size_t> LayerEntry::NextLayer(const std::vector<std::string>& typed) const {
    if (CumDepth >= MaxDepth)
        return Refused{"You have already reached your maximum root depth.", "For your information..."};
    for (std::size_t layer = 0; layer < typed.size(); ++layer) {
        const std::optional<double> depth = Numeric(typed[layer]);
        if (!depth)
            return Refused{"Please enter a root depth for the current layer", "Missing root depth", Given::Thickness,
                           layer};
        if (*depth <= 0)
            return Refused{"Please enter a positive root depth for the current layer", "Invalid root depth",
                           Given::Thickness, layer};
    }
    if (typed.size() >= MostLayers) return Refused{"Maximum of six soil layers allowed", "Sorry..."};
    return typed.size();
}

OrRefused<EnteredSoil> LayerEntry::Soil(Ask& ask, const std::array<TypedWater, MostLayers>& typed) const {
    if (!DepthIsFilled(ask, *this)) return Refused{"Please edit existing layers or add another one", "Veraqua Warning"};
    const OrRefused<std::size_t> top = TopLayer(LayerDepth);
    if (!top.IsDone()) return top.Why();
    EnteredSoil soil{.Profile = {.Bounds = Thicknesses(*this, *top)}, .Top = static_cast<int>(*top)};
    for (std::size_t layer = 0; layer <= *top; ++layer) {
        const std::string& entered = typed[layer].Capacity;
        const OrRefused<std::int16_t> capacity =
            TakeCapacity(ask, entered, layer, EnteredValue(entered) <= 0,
                         {"Your 'Capacity' value is greater than 3in/ft (250mm/m).  Do you want to proceed?.",
                          "Please enter a Capacity Value greater than 0."});
        if (!capacity.IsDone()) return capacity.Why();
        soil.Profile.Capacity[layer] = *capacity;
    }
    for (std::size_t layer = 0; layer <= *top; ++layer) {
        const double content = EnteredValue(typed[layer].Content);
        const double layerMax = LayerMax(layer, soil);
        if (content < 0 || content > layerMax + 0.01)
            return Refused{"Please enter a value between 0 and " + Masked(layerMax, "0.00"),
                           "Water Content Input Error - Out of Bounds", Given::Content, layer};
        if (auto refused = RefusedOverflow(content, "Water Content Input Error - Out of Bounds", Given::Content, layer))
            return *refused;
        soil.Profile.Content[layer] = StoredWater(content);
    }
    return soil;
}

}  // namespace veraqua
