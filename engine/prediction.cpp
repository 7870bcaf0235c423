#include "engine/prediction.h"

#include <algorithm>
#include <cmath>
#include <string>

#include <fmt/format.h>

#include "core/base/failure.h"
#include "core/base/numbers.h"

namespace veraqua {

namespace {

/// Depletion, percent, at which a field counts as dried out.
constexpr float DriedOutPercent = 99;

/// A season that ends within so many days is near.
constexpr JulianValue NearDays = 10;

/// Keeps the first day of a spell: `isIn` says whether `day` is in it, `latch` whether the spell had begun before.
void TrackSpell(bool isIn, JulianValue day, bool& latch, JulianValue& firstDay) {
    if (!isIn) firstDay = 0;
    if (isIn && !latch) firstDay = day;
    latch = isIn;
}

[[noreturn]] void RefuseNeed(double need) {
    const std::string fault =
        std::isfinite(need)
            ? fmt::format(
                  "With the field's irrigation efficiency {} mm of irrigation would be needed, more than can be kept.",
                  Plain(need))
            : "With an irrigation efficiency of 0 no irrigation is enough.";
    throw RunTimeFailure(fault +
                         " Change the efficiency: Field Options, Change Irrigation Efficiency (veraqua-cli: "
                         "field set ROW efficiency VALUE).");
}

}  // namespace

std::int16_t IrrigationAmount(double need) {
    if (!FitsInteger16(need)) RefuseNeed(need);
    return ToInteger16(need, "the irrigation needed");
}

PredictionChecks::PredictionChecks(const SeasonLimits& limits) : limits_(limits) {
    if (limits.DryDays < 0 || limits.DryDays > LongestDryDays)
        throw RunTimeFailure(
            fmt::format("A field drying time of {} days, outside 0 to {}.", limits.DryDays, LongestDryDays));
}

void PredictionChecks::Check(const DayEnd& day, Outlook& outlook) {
    StatRecord& row = outlook.Row;
    if (day.Day <= limits_.LastWeatherDay) {
        row.LastDay = day.Day;
        row.Depletion = ToInteger16(day.Depletion, "the depletion");
        row.MadNow = day.Mad;
        row.NextIrrDay = 0;
    }
    if (day.Depletion < day.Mad || row.NextIrrDay > day.Day) row.NextIrrDay = 0;
    if (limits_.IsHay) {
        if (day.GddSum < static_cast<float>(limits_.Gdd) || outlook.HayNextCutDay > day.Day) {
            row.NextCutDay = 0;
            outlook.HayNextCutDay = 0;
        }
    } else if (day.GddSum > static_cast<float>(limits_.Gdd) && outlook.SeasonEndDay == 0) {
        outlook.SeasonEndDay = day.Day;
    }
    CheckIrrigation(day, outlook);
    CheckSpells(day, outlook);
    if (limits_.IsHay) CheckCutting(day, outlook);
}

void PredictionChecks::CheckIrrigation(const DayEnd& day, Outlook& outlook) const {
    if (day.Depletion < day.Mad || outlook.Row.NextIrrDay != 0) return;
    // A forecast that jumps to a dried-out field in one day predicts nothing; the last real day has no such limit.
    if (day.Day == limits_.LastWeatherDay || day.Depletion <= DriedOutPercent) PredictIrrigation(day, outlook);
}

void PredictionChecks::CheckSpells(const DayEnd& day, Outlook& outlook) {
    TrackSpell(day.Depletion >= day.Mad, day.Day, overMad_, outlook.MadExceededDay);
    TrackSpell(day.Depletion >= DriedOutPercent, day.Day, driedOut_, outlook.DriedOutDay);
}

void PredictionChecks::CheckCutting(const DayEnd& day, Outlook& outlook) {
    const auto latest = static_cast<std::size_t>(limits_.DryDays);
    std::shift_left(deficitDelay_.begin(), deficitDelay_.begin() + limits_.DryDays + 1, 1);
    if (!FitsSingle(day.Need())) RefuseNeed(day.Need());
    deficitDelay_[latest] = static_cast<float>(day.Need());
    if (day.GddSum < static_cast<float>(limits_.Gdd) || outlook.HayNextCutDay != 0) return;

    StatRecord& row = outlook.Row;
    outlook.HayNextCutDay = day.Day;
    row.NextCutDay = day.Day;
    const bool wetAtCutting = row.NextIrrDay < day.Day && day.Day - row.NextIrrDay < limits_.DryDays;
    if (!wetAtCutting) return;
    if (day.Depletion > static_cast<float>(limits_.MADCritical)) {
        // The crop can't wait for the cutting: water it as late as the drying allows.
        row.NextIrrDay = day.Day - limits_.DryDays;
        row.NextIrrAmount = IrrigationAmount(deficitDelay_[0]);
    } else {
        row.NextIrrDay = day.Day + 1;
        row.NextIrrAmount = IrrigationAmount(deficitDelay_[latest]);
    }
}

void PredictIrrigation(const DayEnd& day, Outlook& outlook) {
    outlook.Row.NextIrrDay = day.Day;
    outlook.Row.NextIrrAmount = IrrigationAmount(day.Need());
}

void CloseSeason(const SeasonLimits& limits, const DayEnd& lastDay, JulianValue today, Outlook& outlook) {
    const bool near = today >= lastDay.Day - NearDays;
    const bool running = lastDay.Day - limits.PlantDay < limits.Days;
    if (!near && !running) {
        outlook.Row.NextIrrAmount = AmountNotRequired;
        return;
    }
    if (lastDay.GddSum <= static_cast<float>(limits.Gdd) && running) return;
    outlook.Row.NextIrrAmount = AmountHarvest;
    if (!limits.IsHay) outlook.SeasonEndDay = lastDay.Day;
}

}  // namespace veraqua
