#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/ask.h"
#include "workbench/soil_copy.h"
#include "workbench/soil_entry.h"

/// The soil of a new field as zones of one thickness, the depth interval, which is entered in inches or mm.
namespace veraqua {

constexpr int MostZones = 11;

/// The water of each zone, as typed; texts below the last zone don't count.
using TypedZones = std::array<TypedWater, MostZones>;

/// What the entry starts with where a soil is copied.
struct StartingZones {
    double Interval = 0;  ///< as entered, but exact
    std::string IntervalText;
    int Top = -1;      ///< index of the last zone that is offered
    TypedZones Water;  ///< of the zones that are both offered and copied
};

/// The entry of the zones and the interval that it has taken.
struct ZoneEntry {
    float RootMax = 0;       ///< m
    double IntervalMin = 0;  ///< bounds of the interval, as entered
    double IntervalMax = 0;
    float Interval = 0;  ///< m
    int ZoneTop = -1;    ///< index of the last zone; -1: no interval has been accepted

    ZoneEntry() = default;

    /// For roots down to `rootMax` m.
    explicit ZoneEntry(float rootMax);

    /// Takes the interval, as entered, unless it lies out of bounds or gives more zones than there is room for. Nothing
    /// is no number.
    std::optional<Refused> TakeInterval(std::optional<double> interval);

    /// Takes the interval of `copied` if it can be taken, and tells the user that copied data are used.
    StartingZones StartFrom(Ask& ask, const CopiedSoil& copied);

    /// The soil that was entered. Without an accepted interval `interval`, as typed, is refused. Changes nothing.
    OrRefused<EnteredSoil> Soil(Ask& ask, std::string_view interval, const TypedZones& typed) const;

  private:
    /// Index of the last zone that the soil has in zones of `interval`, as entered.
    int ZoneTopFor(double interval) const;
    double SmallestInterval() const;
    std::optional<Refused> RefusedInterval(std::optional<double> interval) const;
};

}  // namespace veraqua
