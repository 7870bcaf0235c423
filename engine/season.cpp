#include "engine/season.h"

#include <algorithm>
#include <cctype>

#include "core/base/numbers.h"
#include "engine/curves.h"
#include "weather/default_weather.h"

namespace veraqua {

namespace {

/// Walks a list of events along with the days. Only the entry under the cursor is looked at, so of two entries on one
/// day the first counts, and the second comes into view on the next day.
class EventCursor {
  public:
    EventCursor(const std::vector<EventRecord>& events, JulianValue startDay) : events_(events) {
        const auto last = std::find_if(events.rbegin(), events.rend(),
                                       [&](const EventRecord& event) { return event.Day <= startDay; });
        next_ = static_cast<std::size_t>(events.rend() - last);
        Hold();
    }

    /// The amount of the entry under the cursor if that is `day`'s; the cursor then moves on.
    std::optional<std::int16_t> Take(JulianValue day) {
        if (events_.empty() || events_[next_].Day != day) return std::nullopt;
        const std::int16_t amount = events_[next_].Amount;
        ++next_;
        Hold();
        return amount;
    }

  private:
    void Hold() { next_ = std::min(next_, events_.empty() ? 0 : events_.size() - 1); }

    const std::vector<EventRecord>& events_;
    std::size_t next_ = 0;
};

std::int16_t ValueOf(const EventRecord& change) { return change.Amount; }
float ValueOf(const EfficiencyRecord& change) { return change.Value; }

/// A setting that changes on days of a list: the header's value up to its first entry. A second change on one day is
/// not taken, and then neither is any later one.
template <class Change, class Setting>
class SettingInForce {
  public:
    /// `isPast` tells whether an entry's day lies before the run.
    template <class IsPast>
    SettingInForce(const std::vector<Change>& changes, Setting headerValue, IsPast isPast)
        : changes_(changes), value_(headerValue) {
        const auto last =
            std::find_if(changes.rbegin(), changes.rend(), [&](const Change& change) { return isPast(change.Day); });
        next_ = static_cast<std::size_t>(changes.rend() - last);
        if (next_ > 0) value_ = ValueOf(changes_[next_ - 1]);
    }

    void Advance(JulianValue day) {
        if (next_ < changes_.size() && changes_[next_].Day == day) value_ = ValueOf(changes_[next_++]);
    }

    Setting Value() const { return value_; }

  private:
    const std::vector<Change>& changes_;
    Setting value_;
    std::size_t next_ = 0;
};

bool HasEntryAfter(const std::vector<EventRecord>& events, JulianValue day) {
    return std::any_of(events.begin(), events.end(), [day](const EventRecord& event) { return event.Day > day; });
}

/// The day loop and what it carries along.
class SeasonRunner {
  public:
    SeasonRunner(const FieldFile& file, const SeasonStart& start, const SeasonWeather& weather, Ask& ask)
        : file_(file),
          start_(start),
          weather_(weather),
          ask_(ask),
          view_(AsOf(file, start.Day)),
          limits_(LimitsOf(file, weather.LastReal())),
          irrigation_(file.Lists.Irrigation, view_.Day),
          cuttings_(file.Lists.Cuttings, view_.Day),
          rain_(file.Lists.Rain, view_.Day),
          resets_(file.Lists.DepletionChanges, view_.Day),
          mad_(file.Lists.MadChanges, file.Header().MAD, [this](JulianValue day) { return day < view_.Day; }),
          efficiency_(file.Lists.EfficiencyChanges, file.Header().IrrEff,
                      [this](JulianValue day) { return day <= view_.Day; }),
          checks_(limits_) {
        TakeStart();
    }

    Season Run() {
        if (start_.UserReset && season_.End.Depletion >= season_.End.Mad && !WaterFollows()) {
            PredictIrrigation(season_.End, season_.Result);
            season_.Ending = SeasonEnding::AlreadyDry;
            return std::move(season_);
        }
        ReserveDays();
        while (GoesOn()) {
            if (!NextWeather()) return std::move(season_);
            StepDay();
        }
        if (season_.End.Depletion >= season_.End.Mad && season_.Result.Row.NextIrrDay == 0)
            PredictIrrigation(season_.End, season_.Result);
        if (season_.Result.Row.NextIrrDay == 0) CloseSeason(limits_, season_.End, start_.Today, season_.Result);
        return std::move(season_);
    }

  private:
    void TakeStart() {
        const DayRecord& row = file_.Days[view_.Row];
        season_.StartDay = view_.Day;
        season_.LastDay = view_.Day;
        season_.Soil = file_.Soil;
        season_.Soil.Content = view_.Content;
        season_.Result.Row = start_.Row;
        if (file_.IsHay) season_.Result.HayNextCutDay = file_.Hay.NextCutDay;
        contentCopy_ = view_.Content;
        etrSum_ = row.EtrSum;
        zone_ = {row.Available, row.GddSum, file_.IsHay ? file_.Hay.RootMax : row.RootDepthOrKc, row.DaysSinceWet};
        // The first row of a hay field holds the root depth in the place of Kc; either keeps the season from ending
        // here.
        kc_ = file_.IsHay ? row.RootDepthOrKc : KcCrop(file_.Field, row.GddSum);
        kcAtHarvest_ = file_.IsHay ? 0 : KcCrop(file_.Field, file_.Field.GddHarvest);
        place_ = DayOfYearFromJulian(view_.Day);
        EndDay();
    }

    bool WaterFollows() const {
        return HasEntryAfter(file_.Lists.Rain, view_.Day) || HasEntryAfter(file_.Lists.Irrigation, view_.Day);
    }

    void ReserveDays() {
        const auto days = static_cast<std::size_t>(std::max(0, limits_.Days - (season_.LastDay - limits_.PlantDay)));
        season_.Days.reserve(days);
        season_.Leaching.reserve(days);
        season_.History.reserve(days);
        if (start_.Account) start_.Account->reserve(start_.Account->size() + days);
    }

    bool GoesOn() const {
        const bool grows = zone_.GddSum <= static_cast<float>(limits_.Gdd) || kc_ != 0;
        return grows && season_.LastDay - limits_.PlantDay < limits_.Days;
    }

    /// The weather of the next day into `today_`. False if the run ends before that day.
    bool NextWeather() {
        ++place_.DayOfYear;
        if (place_.DayOfYear > DaysInYear(place_.Year)) place_ = {1, place_.Year + 1};
        const JulianValue day = season_.LastDay + 1;
        const SeasonWeather::Found found = weather_.Get(day, place_, today_);
        if (found == SeasonWeather::Found::Damaged) {
            ask_.Tell("Weather data file is missing or corrupt.  Download KESTA data or set with Default Data.",
                      WeatherDamagedTitle);
            season_.Ending = SeasonEnding::WeatherDamaged;
        } else if (found == SeasonWeather::Found::Missing &&
                   !ask_.YesNo(
                       "Weather for " + JulianToShortText(day) + " needed.  Do you want to use default weather?",
                       "Missing Data", Icon::Warning, false)) {
            season_.Ending = SeasonEnding::StoppedByUser;
        }
        return season_.Ending == SeasonEnding::Finished;
    }

    void StepDay() {
        const JulianValue day = ++season_.LastDay;
        const std::int16_t gross = irrigation_.Take(day).value_or(0);
        if (file_.IsHay && cuttings_.Take(day)) zone_.GddSum = 0;
        const auto rain = static_cast<float>(rain_.Take(day).value_or(0));
        if (const auto reset = resets_.Take(day)) zone_.Available = *reset;
        mad_.Advance(day);
        efficiency_.Advance(day);

        const float effective = ToSingle(static_cast<double>(gross) * efficiency_.Value(), "the effective irrigation");
        const DayInput input{today_, effective, rain};
        const DayStep step = file_.IsHay ? DayStepHay(file_.Hay, input, zone_, season_.Soil)
                                         : DayStepCrop(file_.Field, kcAtHarvest_, input, zone_, season_.Soil);
        kc_ = step.Kc;
        if (start_.Account) start_.Account->push_back(step);
        EndDay();
        checks_.Check(season_.End, season_.Result);
        Record(step);
    }

    void EndDay() {
        const ZoneGrid grid = CapacityGrid(file_.Header(), season_.Soil.Bounds);
        const float capacity = SoilWaterBetween(0, zone_.RootDepth, grid, season_.Soil.Capacity);
        season_.End = {season_.LastDay, DepletionPercent(zone_.Available, capacity),
                       mad_.Value(),    capacity,
                       zone_.Available, efficiency_.Value(),
                       zone_.GddSum};
    }

    void Record(const DayStep& step) {
        etrSum_ =
            ToSingle(static_cast<double>(etrSum_) + today_.ReferenceET, "the sum of reference evapotranspiration");
        season_.Days.push_back(
            {zone_.Available, zone_.GddSum, file_.IsHay ? step.Kc : zone_.RootDepth, etrSum_, zone_.DaysSinceWet});
        if (step.Leaching > 0)
            season_.Leaching.push_back({season_.LastDay, ToInteger16(step.Leaching, "leaching, mm")});
        RecordProfile();
    }

    /// Keeps the old profile when a zone below the roots has gained water; a loss alone is no reason to.
    void RecordProfile() {
        const Zones& content = season_.Soil.Content;
        for (std::size_t zone = 0; zone <= static_cast<std::size_t>(file_.Header().ContentTop); ++zone) {
            if (contentCopy_[zone] < content[zone]) {
                season_.History.push_back({season_.LastDay, contentCopy_});
                contentCopy_ = content;
                return;
            }
        }
    }

    const FieldFile& file_;
    const SeasonStart& start_;
    const SeasonWeather& weather_;
    Ask& ask_;
    DayView view_;
    SeasonLimits limits_;
    EventCursor irrigation_;
    EventCursor cuttings_;
    EventCursor rain_;
    EventCursor resets_;
    SettingInForce<EventRecord, std::int16_t> mad_;
    SettingInForce<EfficiencyRecord, float> efficiency_;
    PredictionChecks checks_;
    Season season_;
    RootZone zone_;
    Zones contentCopy_{};
    float etrSum_ = 0;
    float kc_ = 0;
    float kcAtHarvest_ = 0;
    DayInYear place_;
    WeatherDay today_;
};

}  // namespace

SeasonWeather::SeasonWeather(std::string_view stationCode, JulianValue firstDay, JulianValue lastReal,
                             const WeatherCoefficients& coefficients)
    : lastReal_(lastReal), coefficients_(coefficients), firstYear_(YearOf(firstDay)) {
    const int lastYear = std::min(YearOf(lastReal), firstYear_ + Years - 1);
    for (int year = firstYear_; year <= lastYear; ++year) files_.emplace_back(stationCode, year);
}

SeasonWeather::Found SeasonWeather::Get(JulianValue day, const DayInYear& place, WeatherDay& weather) const {
    if (day > lastReal_) {
        weather = DefaultDay(coefficients_, place.DayOfYear);
        return Found::Usable;
    }
    const auto year = static_cast<std::size_t>(place.Year - firstYear_);
    if (year >= files_.size()) return Found::Damaged;
    weather = files_[year].Day(place.DayOfYear);
    if (weather.DayOfYear != place.DayOfYear) return Found::Damaged;

    const char source = weather.Source.First();
    const bool unmeasured = weather.TempMax == MissingDayMark;
    const bool known = source == 'd' || source == 'k' || day == lastReal_;
    if (unmeasured || !known) weather = DefaultDay(coefficients_, place.DayOfYear);
    return known || unmeasured ? Found::Usable : Found::Missing;
}

SeasonLimits LimitsOf(const FieldFile& file, JulianValue lastWeatherDay) {
    SeasonLimits limits;
    limits.IsHay = file.IsHay;
    limits.PlantDay = file.Header().PlantDay;
    limits.LastWeatherDay = lastWeatherDay;
    limits.Gdd = file.IsHay ? file.Hay.GddCut : file.Field.GddHarvest;
    limits.Days = file.Header().SeasonDays;
    if (file.IsHay) {
        limits.DryDays = file.Hay.DryDays;
        limits.MADCritical = file.Hay.MADCritical;
    }
    return limits;
}

Season RunSeason(const FieldFile& file, const SeasonStart& start, const SeasonWeather& weather, Ask& ask) {
    return SeasonRunner(file, start, weather, ask).Run();
}

}  // namespace veraqua
