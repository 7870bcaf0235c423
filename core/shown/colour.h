#pragma once

#include <cstdint>

namespace veraqua {

struct Colour {
    std::uint8_t Red = 0;
    std::uint8_t Green = 0;
    std::uint8_t Blue = 0;

    bool operator==(const Colour&) const = default;
};

/// Backgrounds that warn or reassure, and inks. Text on them is black, in a dark theme too.
namespace colours {
constexpr Colour Red{255, 0, 0};
constexpr Colour Orange{255, 128, 0};
constexpr Colour Yellow{255, 255, 0};
constexpr Colour Green{128, 255, 128};
constexpr Colour Blue{0, 0, 255};

/// The same in quiet, for the cells of a table: many of them stand side by side.
constexpr Colour PaleRed{255, 150, 140};
constexpr Colour PaleYellow{255, 226, 110};
constexpr Colour PaleGreen{178, 228, 178};
}  // namespace colours

}  // namespace veraqua
