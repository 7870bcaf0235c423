#pragma once

#include <array>
#include <cstddef>

/// The two tables of the modified Penman equation: Doorenbos and Pruitt (1977), Guidelines for predicting crop water
/// requirements, FAO Irrigation and Drainage Paper 24. Rows and columns stand as in print.
namespace veraqua::et_tables {

/// Whether no value is below its neighbour before it along one dimension of a table. `stride` is the distance between
/// the two in the table, `length` the number of points along the dimension.
template <std::size_t Size>
constexpr bool NeverFalls(const std::array<float, Size>& table, std::size_t stride, std::size_t length) {
    for (std::size_t i = stride; i < Size; ++i)
        if (i / stride % length != 0 && table[i] < table[i - stride]) return false;
    return true;
}

// clang-format off

/// Weighting factor W, dimensionless, by altitude (rows, m) and mean temperature (columns, degrees C).
constexpr std::array WTemperature{
                 2.f,  4.f,  6.f,  8.f, 10.f, 12.f, 14.f, 16.f, 18.f, 20.f, 22.f, 24.f, 26.f, 28.f, 30.f, 32.f, 34.f, 36.f, 38.f, 40.f};
constexpr std::array WAltitude{0.f, 500.f, 1000.f, 2000.f, 3000.f, 4000.f};
constexpr std::array WeightingFactor{
//               2     4     6     8    10    12    14    16    18    20    22    24    26    28    30    32    34    36    38    40
/*    0 m */ .43f, .46f, .49f, .52f, .55f, .58f, .61f, .64f, .66f, .69f, .71f, .73f, .75f, .77f, .78f, .80f, .82f, .83f, .84f, .85f,
/*  500 m */ .44f, .48f, .51f, .54f, .57f, .60f, .62f, .65f, .67f, .70f, .72f, .74f, .76f, .78f, .79f, .81f, .82f, .84f, .85f, .86f,
/* 1000 m */ .46f, .49f, .52f, .55f, .58f, .61f, .64f, .66f, .69f, .71f, .73f, .75f, .77f, .79f, .80f, .82f, .83f, .85f, .86f, .87f,
/* 2000 m */ .49f, .52f, .55f, .58f, .61f, .64f, .66f, .69f, .71f, .73f, .75f, .77f, .79f, .81f, .82f, .84f, .85f, .86f, .87f, .88f,
/* 3000 m */ .52f, .55f, .58f, .61f, .64f, .66f, .69f, .71f, .73f, .75f, .77f, .79f, .81f, .82f, .84f, .85f, .86f, .87f, .88f, .89f,
/* 4000 m */ .54f, .58f, .61f, .64f, .66f, .69f, .71f, .73f, .75f, .77f, .79f, .81f, .82f, .84f, .85f, .86f, .87f, .89f, .90f, .90f,
};
static_assert(WeightingFactor.size() == WTemperature.size() * WAltitude.size());
static_assert(NeverFalls(WeightingFactor, 1, WTemperature.size()));
static_assert(NeverFalls(WeightingFactor, WTemperature.size(), WAltitude.size()));

/// Adjustment factor c, dimensionless, by solar radiation Rs (columns, mm per day) and, in the rows, the ratio of wind by
/// day to wind by night, the highest relative humidity (percent) and the wind by day Ud (m/s).
constexpr std::array CRadiation{3.f, 6.f, 9.f, 12.f};
constexpr std::array CDayWind{0.f, 3.f, 6.f, 9.f};
constexpr std::array CHumidity{30.f, 60.f, 90.f};
constexpr std::array CRatio{1.f, 2.f, 3.f, 4.f};
constexpr std::array AdjustmentFactor{
//  ratio humidity Ud   Rs 3      6      9     12
/*   1     30     0 */  .86f,  .90f, 1.00f, 1.00f,
/*   1     30     3 */  .64f,  .71f,  .82f,  .89f,
/*   1     30     6 */  .43f,  .53f,  .68f,  .79f,
/*   1     30     9 */  .27f,  .41f,  .59f,  .70f,
/*   1     60     0 */  .96f,  .98f, 1.05f, 1.05f,
/*   1     60     3 */  .78f,  .86f,  .94f,  .99f,
/*   1     60     6 */  .62f,  .70f,  .84f,  .93f,
/*   1     60     9 */  .50f,  .60f,  .75f,  .87f,
/*   1     90     0 */ 1.02f, 1.06f, 1.10f, 1.10f,
/*   1     90     3 */  .85f,  .92f, 1.01f, 1.05f,
/*   1     90     6 */  .72f,  .82f,  .95f, 1.00f,
/*   1     90     9 */  .62f,  .72f,  .87f,  .96f,

/*   2     30     0 */  .86f,  .90f, 1.00f, 1.00f,
/*   2     30     3 */  .69f,  .76f,  .85f,  .92f,
/*   2     30     6 */  .53f,  .61f,  .74f,  .84f,
/*   2     30     9 */  .37f,  .48f,  .65f,  .76f,
/*   2     60     0 */  .96f,  .98f, 1.05f, 1.05f,
/*   2     60     3 */  .83f,  .91f,  .99f, 1.05f,
/*   2     60     6 */  .70f,  .80f,  .94f, 1.02f,
/*   2     60     9 */  .59f,  .70f,  .84f,  .95f,
/*   2     90     0 */ 1.02f, 1.06f, 1.10f, 1.10f,
/*   2     90     3 */  .89f,  .98f, 1.10f, 1.14f,
/*   2     90     6 */  .79f,  .92f, 1.05f, 1.12f,
/*   2     90     9 */  .71f,  .81f,  .96f, 1.06f,

/*   3     30     0 */  .86f,  .90f, 1.00f, 1.00f,
/*   3     30     3 */  .76f,  .81f,  .88f,  .94f,
/*   3     30     6 */  .61f,  .68f,  .81f,  .88f,
/*   3     30     9 */  .46f,  .56f,  .72f,  .82f,
/*   3     60     0 */  .96f,  .98f, 1.05f, 1.05f,
/*   3     60     3 */  .87f,  .96f, 1.06f, 1.12f,
/*   3     60     6 */  .77f,  .88f, 1.02f, 1.10f,
/*   3     60     9 */  .67f,  .79f,  .88f, 1.05f,  // .88 looks low (the rows around rise by .14 from Rs 6 to 9) and stays
/*   3     90     0 */ 1.02f, 1.06f, 1.10f, 1.10f,
/*   3     90     3 */  .94f, 1.04f, 1.18f, 1.28f,
/*   3     90     6 */  .86f, 1.01f, 1.15f, 1.22f,
/*   3     90     9 */  .78f,  .92f, 1.06f, 1.18f,

/*   4     30     0 */  .86f,  .90f, 1.00f, 1.00f,
/*   4     30     3 */  .79f,  .84f,  .92f,  .97f,
/*   4     30     6 */  .68f,  .77f,  .87f,  .93f,
/*   4     30     9 */  .55f,  .65f,  .78f,  .90f,
/*   4     60     0 */  .96f,  .98f, 1.05f, 1.05f,
/*   4     60     3 */  .92f, 1.00f, 1.11f, 1.19f,
/*   4     60     6 */  .85f,  .96f, 1.11f, 1.19f,
/*   4     60     9 */  .76f,  .88f, 1.02f, 1.14f,
/*   4     90     0 */ 1.02f, 1.06f, 1.10f, 1.10f,
/*   4     90     3 */  .99f, 1.10f, 1.27f, 1.32f,
/*   4     90     6 */  .94f, 1.10f, 1.26f, 1.33f,
/*   4     90     9 */  .88f, 1.01f, 1.16f, 1.27f,
};
static_assert(AdjustmentFactor.size() == CRadiation.size() * CDayWind.size() * CHumidity.size() * CRatio.size());
static_assert(NeverFalls(AdjustmentFactor, 1, CRadiation.size()));
static_assert(NeverFalls(AdjustmentFactor, CRadiation.size() * CDayWind.size(), CHumidity.size()));
static_assert(NeverFalls(AdjustmentFactor, CRadiation.size() * CDayWind.size() * CHumidity.size(), CRatio.size()));

// clang-format on

}  // namespace veraqua::et_tables
