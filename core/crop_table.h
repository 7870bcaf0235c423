#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/ask.h"
#include "core/records.h"

/// crop.dat, the read-only table of crops: names, temperature thresholds, rooting depths, crop coefficient curves. A
/// new field takes its crop's numbers into its header and doesn't depend on the table any more.
namespace veraqua {

/// The most crops that the table may hold.
constexpr int MaxCrops = 200;

/// One crop. The header of its kind holds its numbers and name, and is otherwise blank.
struct Crop {
    std::string Name;  ///< whole, also where a header cuts it to 13 characters
    FieldHeader Field;
    HayHeader Hay;

    bool IsHay() const { return Name.starts_with(HayMark); }
};

/// The whole table. A missing file, more than 200 crops, or fewer rows than the file says end the program after a
/// message; an item that doesn't parse is a RunTimeFailure.
std::vector<Crop> ReadCropTable(Ask& ask);

/// Reads the table and fills `CropNames`.
void LoadCropList(Ask& ask);

/// Takes crop `number` (from 1) for the new field in `CurrentField`: its numbers into `Field` or `Hay`, blank
/// otherwise, its name there and into the field's `Stat` row. Sets `IsHay`.
void ReadCrop(Ask& ask, int number);

}  // namespace veraqua
