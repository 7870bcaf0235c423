#pragma once

#include "core/records.h"

/// Growth of a crop by heat: degree days, the two crop coefficient curves, root depth. Numbers in, numbers out.
namespace veraqua {

/// Degree days of one day above `threshold`, by the single-sine method (Baskerville and Emin, 1969, Ecology
/// 50:514-517).
///   tempMax, tempMin  degrees C, tempMin <= tempMax
/// Returns degree-C days, 0 where the whole day is colder than the threshold.
/// Pi is the single 3.1415925 and stays so: stored seasons are summed with it.
float DegreeDaysAbove(float tempMax, float tempMin, float threshold);

/// Degree days of one day between `lower` and `upper`, degree-C days.
float DegreeDaysBetween(float tempMax, float tempMin, float upper, float lower);

/// Crop coefficient Kc of an ordinary crop at the degree-day sum `gddSum`: a sine series over half a period of
/// `KcSpan`, at least 0. RunTimeFailure if `KcSpan` is 0.
float KcCrop(const FieldHeader& field, float gddSum);

/// (1 + (a x)^(1 / (1 - m)))^(-m): 1 where a x is 0, falling to 0 as x grows; m below 1. RunTimeFailure where
/// the inner power is none or infinite: a x negative, m 1, or 0 raised to a negative power.
float ClimateCurve(double a, double m, double x);

/// Kc of hay `gddSum` degree days after its last cutting, in the day's weather: from a low after the cutting to a top
/// at `GddCut` and, where no cutting comes, back to 0 at twice `GddCut`. Low and top lie between those of a humid, a
/// dry and a windy climate.
///   humidityMin  percent
///   windRun      km per day
/// RunTimeFailure if twice `GddCut` doesn't fit 16 bits.
float KcHay(const HayHeader& hay, float humidityMin, float windRun, float gddSum);

/// Root depth of an ordinary crop, m. Roots follow the crop coefficient `kc` and are at `RootMax` where it is
/// `kcAtHarvest`, that of `GddHarvest`, and from that heat sum on; before it they may be deeper or draw back.
/// RunTimeFailure if `kcAtHarvest` is 0.
float RootDepth(const FieldHeader& field, float gddSum, float kc, float kcAtHarvest);

}  // namespace veraqua
