#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "core/field_file.h"

namespace veraqua {

/// How many of the latest entries of rain and irrigation the field details show.
constexpr std::size_t LatestWaterShown = 10;

/// What the field details say of a field's file: crop and soil on the present day, water, and the soil at planting.
struct FieldDetails {
    std::string Day;
    std::string Kc;
    std::string Kd;
    std::string Gdd;
    std::string RootDepth;
    std::string Deficit;  ///< of water in the root zone
    std::string TotalIrrigation;
    std::string TotalRain;
    std::string TotalLeaching;            ///< through `Day`
    std::vector<std::string> Irrigation;  ///< the latest entries, oldest first
    std::vector<std::string> Rain;
    std::vector<std::string> Soil;  ///< a line for each zone or layer
};

/// `row` is the field's row of the directory. RunTimeFailure where the numbers of the file can't be computed with.
FieldDetails DetailsOf(const FieldFile& file, const StatRecord& row, JulianValue today, bool english);

}  // namespace veraqua
