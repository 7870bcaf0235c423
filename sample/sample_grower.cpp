#include "sample/sample_grower.h"

#include <algorithm>

#include "core/base/numbers.h"
#include "core/state.h"
#include "engine/soil_water.h"

namespace veraqua {

namespace {

constexpr int RainWorthWaiting = 5;   ///< mm on the day or the next
constexpr int DaysToBale = 4;         ///< from the cutting until the hay is off the field
constexpr int DaysBeforeHarvest = 7;  ///< without irrigation
constexpr double GateStep = 5;        ///< mm; irrigations come in multiples of it
constexpr double LargestSet = 150;    ///< mm, that one irrigation can bring
constexpr int DriedOut = 95;          ///< percent of depletion

}  // namespace

SampleGrower::SampleGrower(Ask& ask, FieldFile file, const SeasonStart& start, const SampleFarm& farm)
    : ask_(ask),
      file_(std::move(file)),
      start_(start),
      farm_(farm),
      weather_(State.StationCode, start.Day + 1, State.WeatherLastJulian, State.WeatherCoeff) {
    Replay();
}

void SampleGrower::Work() {
    for (JulianValue evening = start_.Day + 1; evening + 1 < start_.Today && evening < season_.LastDay; ++evening)
        if (Act(evening)) Replay();
}

bool SampleGrower::Neglect() {
    constexpr int irrigations = 2;
    const FieldFile before = file_;
    for (int i = 0; i < irrigations && !file_.Lists.Irrigation.empty(); ++i) {
        file_.Lists.Irrigation.pop_back();
        Replay();
        if (IsOverMad() && season_.Result.Row.Depletion < DriedOut) return true;
    }
    file_ = before;
    Replay();
    return false;
}

bool SampleGrower::IsOverMad() const {
    const StatRecord& row = season_.Result.Row;
    return row.LastDay == start_.Today - 1 && row.Depletion >= row.MadNow;
}

void SampleGrower::Replay() { season_ = RunSeason(file_, start_, weather_, ask_); }

/// Does on the next morning what the look at the field in the `evening` asks for.
bool SampleGrower::Act(JulianValue evening) {
    const JulianValue morning = evening + 1;
    if (IsRainDue(morning)) return false;
    FieldLists& lists = file_.Lists;
    if (IsReadyToCut(evening)) {
        lists.Cuttings.push_back({morning, ToInteger16(static_cast<double>(lists.Cuttings.size()) + 1, "cuttings")});
        return true;
    }
    if (!WantsWater(evening)) return false;
    lists.Irrigation.push_back({morning, AmountFor(evening)});
    return true;
}

/// The season's row of `day`, which lies after planting.
const DayRecord& SampleGrower::Evening(JulianValue day) const {
    return season_.Days[static_cast<std::size_t>(day - start_.Day - 1)];
}

float SampleGrower::CapacityOn(JulianValue day) const {
    const float depth = file_.IsHay ? file_.Hay.RootMax : Evening(day).RootDepthOrKc;
    return SoilWaterBetween(0, depth, CapacityGrid(file_.Header(), file_.Soil.Bounds), file_.Soil.Capacity);
}

/// Percent.
float SampleGrower::Depletion(JulianValue day) const {
    return DepletionPercent(Evening(day).Available, CapacityOn(day));
}

bool SampleGrower::IsRainDue(JulianValue day) const {
    return std::ranges::any_of(file_.Lists.Rain, [day](const EventRecord& rain) {
        return rain.Amount >= RainWorthWaiting && (rain.Day == day || rain.Day == day + 1);
    });
}

bool SampleGrower::IsReadyToCut(JulianValue evening) const {
    return file_.IsHay && Evening(evening).GddSum >= file_.Hay.GddCut;
}

/// Hay lies on the field, or is so near its cutting that the soil must dry.
bool SampleGrower::IsDrying(JulianValue evening) const {
    if (!file_.IsHay) return false;
    const auto& cuttings = file_.Lists.Cuttings;
    if (!cuttings.empty() && evening < cuttings.back().Day + DaysToBale) return true;
    if (evening < start_.Day + 2) return false;
    const float growth = Evening(evening).GddSum - Evening(evening - 1).GddSum;
    return Evening(evening).GddSum + growth * static_cast<float>(file_.Hay.DryDays) >= file_.Hay.GddCut;
}

bool SampleGrower::WantsWater(JulianValue evening) const {
    const JulianValue morning = evening + 1;
    const bool gatesOpen = NextAfter(morning, farm_.WaterTo) < NextAfter(morning, farm_.WaterFrom);
    const bool ripens = !file_.IsHay && morning > season_.LastDay - DaysBeforeHarvest;
    if (!gatesOpen || ripens || IsDrying(evening)) return false;
    const float depletion = Depletion(evening);
    const float rise = evening > start_.Day + 1 ? depletion - std::max(Depletion(evening - 1), 0.F) : 0;
    return depletion + std::max(rise, 0.F) >= file_.Header().MAD;
}

/// Gross mm that fill the root zone.
std::int16_t SampleGrower::AmountFor(JulianValue evening) const {
    const double need = (static_cast<double>(CapacityOn(evening)) - Evening(evening).Available) / file_.Header().IrrEff;
    return ToInteger16(GateStep * RoundHalfEven(std::clamp(need, GateStep, LargestSet) / GateStep), "the irrigation");
}

}  // namespace veraqua
