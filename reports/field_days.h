#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/base/units.h"
#include "core/field_file.h"

/// The history of a field day by day: what its stored rows, which are sums and states, say of each day.
namespace veraqua {

/// One day, unrounded. Water in mm, heat in degree-C days, depth in m.
struct FieldDay {
    JulianValue Day = 0;
    int DaysAfterPlanting = 0;
    float Available = 0;   ///< water in the root zone
    float Capacity = 0;    ///< water that the root zone can hold
    double Depletion = 0;  ///< percent; below 0 above capacity
    double Gdd = 0;        ///< of the day; negative where a cutting set the sum back
    float GddSum = 0;      ///< since planting; on hay since the last cutting
    double Etr = 0;        ///< reference evapotranspiration of the day
    float EtrSum = 0;      ///< since planting
    float Kc = 0;          ///< crop coefficient
    float Kd = 0;          ///< soil dryness coefficient at the day's end
    double Etc = 0;        ///< crop evapotranspiration of the day, Kc Kd ETR
    double EtcSum = 0;     ///< since planting
    float RootDepth = 0;
    std::optional<std::int16_t> Irrigation;
    std::optional<std::int16_t> Rain;
    std::int16_t Cutting = 0;  ///< number of the day's cutting of hay; 0: none
};

/// The day of row `row`, without what needs the days before it: Gdd, Etr, Etc, and EtcSum. RunTimeFailure as below.
FieldDay StateOf(const FieldFile& file, std::size_t row);

/// All days from planting through the last row, forecast days too. RunTimeFailure where the numbers of the file can't
/// be computed with, as with a root zone that holds no water.
std::vector<FieldDay> DaysSincePlanting(const FieldFile& file);

/// The day of `StateDay` in `file`, moved into its rows. RunTimeFailure as above.
FieldDay PresentDay(const FieldFile& file, const StatRecord& row, JulianValue today);

/// Quantities of a day in the units of the user.
struct DayUnits {
    bool English = false;

    double Water(double mm) const { return English ? mm / MillimetresPerInch : mm; }              ///< inches, mm
    double Heat(double celsiusDays) const { return English ? celsiusDays * 1.8 : celsiusDays; }   ///< F, C
    double Root(double metres) const { return English ? metres * FeetPerMetreInRoots : metres; }  ///< ft, m
};

}  // namespace veraqua
