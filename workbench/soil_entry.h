#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/ask.h"
#include "core/field_file.h"
#include "workbench/refused.h"

/// What the two ways to enter the soil of a new field share. Water is entered in inches per foot or mm per m.
namespace veraqua {

/// The water of one layer or zone, as typed.
struct TypedWater {
    std::string Capacity;
    std::string Content;
};

/// The soil of a new field as its file will hold it.
struct EnteredSoil {
    SoilProfile Profile;
    int Top = 0;         ///< index of the last layer or zone
    float Interval = 0;  ///< thickness of a zone, m; 0 with layers
};

/// The number that was typed, 0 where none was.
double EnteredValue(std::string_view typed);

/// Water in the unit of entry as the whole mm per m that a field file holds. RunTimeFailure beyond 16 bits.
std::int16_t StoredWater(double entered);

/// Refused where that is beyond 16 bits.
std::optional<Refused> RefusedOverflow(double entered, std::string_view title, Given where, std::size_t index);

/// mm per m in the unit of entry.
double EnteredWater(double millimetresPerMetre);

/// The texts that the entry of a copied layer or zone starts with; mm per m.
TypedWater StartingWater(std::int16_t capacity, std::int16_t content);

/// What stands for the water of layer or zone `index` has to be a number, if anything.
std::optional<Refused> CheckCapacity(std::string_view typed, std::size_t index);
std::optional<Refused> CheckContent(std::string_view typed, std::size_t index);

/// A capacity above this is asked about, in the unit of entry.
double CapacityLimit();

/// The words in which each way asks and refuses.
struct CapacityWords {
    std::string_view AboveLimit;  ///< question
    std::string_view TooLow;
};

/// The capacity of layer or zone `index` in mm per m. Refused where it lies above the limit and the user doesn't want
/// that, or where it is `tooLow`.
OrRefused<std::int16_t> TakeCapacity(Ask& ask, std::string_view typed, std::size_t index, bool tooLow,
                                     const CapacityWords& words);

}  // namespace veraqua
