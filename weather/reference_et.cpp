#include "weather/reference_et.h"

#include <array>
#include <cmath>

#include "core/base/numbers.h"
#include "weather/et_tables.h"
#include "weather/table_interpolate.h"

namespace veraqua {

namespace {

/// The single point of an axis that a table doesn't need.
constexpr std::array NoAxis{0.f};

/// Langleys per day that evaporate 1 mm of water per day.
constexpr double LangleysPerMm = 59;

double Mean(double a, double b) { return (a + b) / 2; }

}  // namespace

float SaturationVapourPressure(float temperature) {
    const double t = temperature;
    const double inches = std::pow(0.00738 * t + 0.8072, 8.0) - 0.000019 * std::fabs(1.8 * t + 48) + 0.001316;
    return ToSingle(33.8639 * inches, "the saturation vapour pressure");
}

float WeightingFactorW(float temperature, std::int16_t altitude) {
    using namespace et_tables;
    return ToSingle(TableInterpolate({WTemperature, WAltitude, NoAxis, NoAxis}, WeightingFactor,
                                     {temperature, static_cast<float>(altitude), NoAxis[0], NoAxis[0]}),
                    "the weighting factor W");
}

float AdjustmentFactorC(float radiationMm, float dayWind, float humidityMax, float ratio) {
    using namespace et_tables;
    return ToSingle(TableInterpolate({CRadiation, CDayWind, CHumidity, CRatio}, AdjustmentFactor,
                                     {radiationMm, dayWind, humidityMax, ratio}),
                    "the adjustment factor c");
}

float ReferenceEvapotranspiration(const WeatherDay& day) {
    // Each quantity is rounded to single here; where it is declared double, that is for the expressions that it enters.
    const double windRun = day.WindRun;
    const double radiation = day.SolarRadiation;
    const double ratio = day.DayNightRatio;

    const float temperature = ToSingle(Mean(day.TempMax, day.TempMin), "the mean temperature");
    const double humidity = ToSingle(Mean(day.HumidityMax, day.HumidityMin), "the mean humidity");
    const double saturation = SaturationVapourPressure(temperature);                            // mbar
    const double vapour = ToSingle(saturation * humidity / 100, "the actual vapour pressure");  // mbar
    const double windFunction = ToSingle(0.27 * (1 + windRun / 100), "the wind function");      // mm per day and mbar
    const double w = WeightingFactorW(temperature);
    const double netRadiation = ToSingle((0.61 * radiation - 24) / LangleysPerMm, "the net radiation");  // mm per day
    const float solarRadiation = ToSingle(radiation / LangleysPerMm, "the solar radiation");             // mm per day
    const double wind = ToSingle(windRun * 1000 / 86400, "the mean wind speed");                         // m/s
    const float dayWind = ToSingle(2 * wind * ratio / (ratio + 1), "the daytime wind speed");            // m/s
    const double c = AdjustmentFactorC(solarRadiation, dayWind, day.HumidityMax, day.DayNightRatio);
    return ToSingle(c * (w * netRadiation + (1 - w) * windFunction * (saturation - vapour)),
                    "the reference evapotranspiration");
}

}  // namespace veraqua
