#include "engine/curves.h"

#include <cmath>
#include <limits>

#include <fmt/format.h>

#include "core/base/failure.h"
#include "core/base/numbers.h"

namespace veraqua {

float DegreeDaysAbove(float tempMax, float tempMin, float threshold) {
    constexpr double pi = 3.1415925F;
    const double mean = (static_cast<double>(tempMax) + tempMin) / 2;
    if (threshold <= tempMin) return ToSingle(mean - threshold, "the day's degree days");
    if (threshold >= tempMax) return 0;
    const double amplitude = (static_cast<double>(tempMax) - tempMin) / 2;
    const double t = (threshold - mean) / amplitude;
    const double phi = std::asin(t);
    return ToSingle(((pi / 2 - phi) * (mean - threshold) + amplitude * std::cos(phi)) / pi, "the day's degree days");
}

float DegreeDaysBetween(float tempMax, float tempMin, float upper, float lower) {
    return ToSingle(
        static_cast<double>(DegreeDaysAbove(tempMax, tempMin, lower)) - DegreeDaysAbove(tempMax, tempMin, upper),
        "the day's degree days");
}

float KcCrop(const FieldHeader& field, float gddSum) {
    const double x = ToSingle(gddSum * 3.1415927 / field.KcSpan, "Kc (by the span of the crop's curve)");
    double sum = 0;
    double multiple = 1;
    for (const float coefficient : field.KcSine) {
        sum += coefficient * std::sin(multiple * x);
        ++multiple;
    }
    const float kc = ToSingle(sum, "Kc");
    return kc < 0 ? 0 : kc;
}

float ClimateCurve(double a, double m, double x) {
    // Infinity would end as a curve of 0 in the power around it.
    const bool hasPower = a * x >= 0 && m != 1;
    const double power = hasPower ? std::pow(a * x, 1 / (1 - m)) : std::numeric_limits<double>::infinity();
    if (!std::isfinite(power))
        throw RunTimeFailure(fmt::format("The hay curve with the exponent {} can't be taken at {} times {}.", m, a, x));
    return ToSingle(std::pow(1 + power, -m), "the hay curve");
}

float KcHay(const HayHeader& hay, float humidityMin, float windRun, float gddSum) {
    // The constants are numbered from 1 as in the crop table.
    const auto curve = [&hay](std::size_t number) -> double { return hay.Curve[number - 1]; };
    const double humid = ClimateCurve(curve(1), curve(2), humidityMin);
    const double windy =
        1 - static_cast<double>(ClimateCurve(curve(3), curve(4), static_cast<double>(windRun) * 1000 / 800));
    const double dryOrHumidTop = (curve(8) - curve(9)) * humid + curve(9);
    const double top = (curve(10) - dryOrHumidTop) * windy + dryOrHumidTop;
    const double dryOrHumidLow = (curve(11) - curve(12)) * humid + curve(12);
    const double low = (curve(13) - dryOrHumidLow) * windy + dryOrHumidLow;
    const double growthRate = top * curve(6) + curve(5);
    const std::int16_t end = ToInteger16(2.0 * hay.GddCut, "twice the degree days between cuttings");
    if (gddSum >= end || gddSum <= 0) return 0;
    const double towardsCut = gddSum <= hay.GddCut ? gddSum : end - gddSum;
    const double grown = 1 - static_cast<double>(ClimateCurve(growthRate, curve(7), towardsCut * 1000 / hay.GddCut));
    return ToSingle((top - low) * grown + low, "Kc");
}

float RootDepth(const FieldHeader& field, float gddSum, float kc, float kcAtHarvest) {
    if (gddSum >= field.GddHarvest) return field.RootMax;
    const double growth = static_cast<double>(field.RootMax) - field.RootStart;
    return ToSingle(static_cast<double>(kc) / kcAtHarvest * growth + field.RootStart,
                    "the root depth (by the Kc at harvest)");
}

}  // namespace veraqua
