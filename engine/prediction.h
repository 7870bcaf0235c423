#pragma once

#include <array>

#include "core/records.h"

/// When to irrigate next, how much, and when to cut hay. A forecast is the season run going on over default weather
/// without further water: the day that the depletion reaches the MAD is the next irrigation.
namespace veraqua {

/// The longest drying time, days, that a field may have.
constexpr int LongestDryDays = 100;

/// What stays the same through a season.
struct SeasonLimits {
    bool IsHay = false;
    JulianValue PlantDay = 0;
    JulianValue LastWeatherDay = 0;  ///< last day of real weather; later days are forecast
    int Gdd = 0;                     ///< degree days: `GddHarvest`, of hay `GddCut`
    int Days = 0;                    ///< `SeasonDays`
    int DryDays = 0;                 ///< hay: days of drying before a cutting
    int MADCritical = 0;             ///< hay: percent
};

/// The end of one day, as the checks see it.
struct DayEnd {
    JulianValue Day = 0;
    float Depletion = 0;    ///< whole percent
    std::int16_t Mad = 0;   ///< in force, percent
    float Capacity = 0;     ///< of the root zone, mm
    float Available = 0;    ///< mm
    double Efficiency = 0;  ///< of irrigation, in force, fraction
    float GddSum = 0;

    /// Gross irrigation, mm, that brings the root zone back to capacity.
    double Need() const { return (static_cast<double>(Capacity) - Available) / Efficiency; }
};

/// What a season run has come to.
struct Outlook {
    StatRecord Row;                  ///< the field's row of the directory
    JulianValue HayNextCutDay = 0;   ///< as in the hay header
    JulianValue MadExceededDay = 0;  ///< first day of the present spell at or over the MAD
    JulianValue DriedOutDay = 0;     ///< first day of the present spell at or over 99 percent
    JulianValue SeasonEndDay = 0;    ///< first day past `GddHarvest`
};

/// The checks after each day of a run.
class PredictionChecks {
  public:
    /// RunTimeFailure if the drying time isn't one.
    explicit PredictionChecks(const SeasonLimits& limits);

    /// Takes the day into `outlook`. RunTimeFailure if the irrigation needed is no 16-bit amount.
    void Check(const DayEnd& day, Outlook& outlook);

  private:
    void CheckIrrigation(const DayEnd& day, Outlook& outlook) const;
    void CheckSpells(const DayEnd& day, Outlook& outlook);
    void CheckCutting(const DayEnd& day, Outlook& outlook);

    const SeasonLimits& limits_;
    bool overMad_ = false;
    bool driedOut_ = false;
    std::array<float, LongestDryDays + 1> deficitDelay_{};  ///< needs of the last `DryDays` days, mm; the oldest first
};

/// `need`, mm, as the whole millimetres of `NextIrrAmount`. RunTimeFailure, naming the efficiency, beyond 16 bits.
std::int16_t IrrigationAmount(double need);

/// Sets the next irrigation to `day`, by the need of that day.
void PredictIrrigation(const DayEnd& day, Outlook& outlook);

/// What the row says at the season's end, on `lastDay`, where no irrigation is predicted.
void CloseSeason(const SeasonLimits& limits, const DayEnd& lastDay, JulianValue today, Outlook& outlook);

}  // namespace veraqua
