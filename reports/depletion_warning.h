#pragma once

#include <optional>

#include "core/shown/colour.h"

namespace veraqua {

/// A depletion above this multiple of the MAD is an alarm.
constexpr double AlarmFactor = 1.2;

/// What backs a depletion, both in percent: red is an alarm, yellow is above the MAD, and nothing warns below it.
inline std::optional<Colour> DepletionWarning(double depletion, double mad) {
    if (depletion > AlarmFactor * mad) return colours::Red;
    if (depletion > mad) return colours::Yellow;
    return std::nullopt;
}

}  // namespace veraqua
