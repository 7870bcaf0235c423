#pragma once

#include <cstdint>

#include "core/records.h"

/// Reference evapotranspiration, the daily water demand of short grass, by the modified Penman equation of Doorenbos
/// and Pruitt (1977, Guidelines for predicting crop water requirements, FAO Irrigation and Drainage Paper 24). Every
/// quantity is a single when it is stored; expressions between are in double precision. A value that isn't finite or
/// doesn't fit a single is a RunTimeFailure that names the quantity.
namespace veraqua {

/// Altitude setting, m above sea level. It stays 0 at every station, whatever its height, so the weighting factor is
/// that of sea level.
constexpr std::int16_t Altitude = 0;

/// Saturation vapour pressure, mbar, at `temperature` in degrees C: the approximation of Bosen, which is in inches of
/// mercury, at 33.8639 mbar to the inch.
float SaturationVapourPressure(float temperature);

/// Weighting factor W, the share of the radiation term: dimensionless, by mean temperature (degrees C) and altitude
/// (m). Extrapolated below 2 and above 40 degrees.
float WeightingFactorW(float temperature, std::int16_t altitude = Altitude);

/// Adjustment factor c for day and night weather, dimensionless. Extrapolated outside its table.
///   radiationMm  solar radiation as evaporation, mm per day (table: 3 to 12)
///   dayWind      wind speed by day, m/s (0 to 9)
///   humidityMax  highest relative humidity of the day, percent (30 to 90)
///   ratio        wind speed by day over wind speed by night (1 to 4)
float AdjustmentFactorC(float radiationMm, float dayWind, float humidityMax, float ratio);

/// Reference evapotranspiration of `day`, mm, from its temperatures, humidities, wind and radiation; its own
/// `ReferenceET` is neither read nor set. Below 0 on a dark, still day, and not clipped. A `DayNightRatio` of -1
/// divides by 0 and is a RunTimeFailure.
float ReferenceEvapotranspiration(const WeatherDay& day);

}  // namespace veraqua
