#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ask.h"
#include "workbench/soil_copy.h"
#include "workbench/soil_entry.h"

/// The soil of a new field as up to six layers of free thickness. Thicknesses are entered in inches or mm.
namespace veraqua {

constexpr std::size_t MostLayers = std::tuple_size_v<LayerBounds>;

/// What a layer of copied soil starts with.
struct StartingLayer {
    std::string Thickness;
    TypedWater Water;
};

/// The entry of the layers and the thicknesses that it has taken so far.
struct LayerEntry {
    std::int16_t MaxDepth = 0;  ///< deepest root depth: inches, or a tenth of the millimetres
    std::int16_t CumDepth = 0;  ///< sum of the thicknesses, in their unit
    LayerBounds LayerDepth{};   ///< thicknesses as entered; 0: none
    bool SoilCopied = false;    ///< thicknesses may have fractions and lie below the root depth

    LayerEntry() = default;

    /// For roots down to `rootMax` m.
    explicit LayerEntry(float rootMax);

    /// Takes the thicknesses of `copied` and returns the texts of its layers.
    std::vector<StartingLayer> StartFrom(const CopiedSoil& copied);

    /// Forgets the thicknesses.
    void Reset();

    /// Takes the thickness of `layer` as `typed`, whole and as the depth allows it, after the user has been told where
    /// that is less; `typed` becomes what was taken. An empty text takes the layer away.
    std::optional<Refused> TakeThickness(Ask& ask, std::size_t layer, std::string& typed);

    /// What stands for the water of `layer` has to be a number, if anything.
    std::optional<Refused> CheckCapacity(std::size_t layer, std::string_view typed) const;
    std::optional<Refused> CheckContent(std::size_t layer, std::string_view typed) const;

    /// Index of the layer that follows those begun, whose thicknesses are `typed`.
    OrRefused<std::size_t> NextLayer(const std::vector<std::string>& typed) const;

    /// The soil that was entered, its last layer down to the deepest root depth if the user agrees. Changes nothing.
    OrRefused<EnteredSoil> Soil(Ask& ask, const std::array<TypedWater, MostLayers>& typed) const;

  private:
    void SetThickness(std::size_t layer, double thickness);
    void SetThicknesses(const LayerBounds& thicknesses);
};

}  // namespace veraqua
