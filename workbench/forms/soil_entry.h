#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "screen/controls.h"

/// What the two soil forms of a new field share. Water is entered in inches per foot or mm per m.
namespace veraqua {

/// The number in a box, 0 where none stands.
double EnteredValue(const TextBox& box);

/// Water in the unit of entry as the whole mm per m that a field file holds. RunTimeFailure beyond 16 bits.
std::int16_t StoredWater(double entered);

/// mm per m in the unit of entry.
double EnteredWater(double millimetresPerMetre);

/// The same as the text that a box of copied soil starts with.
std::string EnteredWaterText(std::int16_t millimetresPerMetre);

/// A capacity above this is asked about, in the unit of entry.
double CapacityLimit();

/// Tells the user what is wrong with the content of `box`, and selects it.
void RefuseEntry(TextBox& box, std::string_view text, std::string_view title);

/// The capacity in `box` in mm per m. Nothing, after the user has been told and with the box in focus, where it lies
/// above the limit and he doesn't want that, or where it is `tooLow`.
std::optional<std::int16_t> TakeCapacity(TextBox& box, std::string_view aboveLimitQuestion, bool tooLow,
                                         std::string_view tooLowText);

/// Names the new field on a soil form and in the title of the workbench.
void ShowNewField(StatusBar& bar);

}  // namespace veraqua
