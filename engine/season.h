#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ask.h"
#include "core/field_file.h"
#include "engine/prediction.h"
#include "engine/soil_water.h"
#include "weather/weather_file.h"

/// A season of one field in memory: the days stepped from a start through the last real weather and on, over default
/// weather, to the end of the season.
namespace veraqua {

/// The weather that a season meets.
class SeasonWeather {
  public:
    /// The years that one season can reach.
    static constexpr int Years = 5;

    /// Reads the station's files of the years from `firstDay` through `lastReal`, at most five. A year without a file
    /// has no days.
    SeasonWeather(std::string_view stationCode, JulianValue firstDay, JulianValue lastReal,
                  const WeatherCoefficients& coefficients);

    enum class Found {
        Usable,   ///< real weather, or default weather where that is due without a question
        Missing,  ///< a day within the real weather that was neither measured nor set to default
        Damaged,  ///< no record, or a record of another day
    };

    /// The weather of `day`, which is `place` in its year. Where it is missing, `weather` is the default weather that
    /// may stand in.
    Found Get(JulianValue day, const DayInYear& place, WeatherDay& weather) const;

    JulianValue LastReal() const { return lastReal_; }

  private:
    JulianValue lastReal_;
    WeatherCoefficients coefficients_;
    int firstYear_;
    std::vector<WeatherFile> files_;  ///< from `firstYear_` on
};

/// Title of the message about a day whose record is missing or is that of another day.
constexpr std::string_view WeatherDamagedTitle = "Weather File Error";

enum class SeasonEnding {
    Finished,        ///< the forecast has come to the crop's end
    AlreadyDry,      ///< the user's reset of the depletion lies over the MAD: the field waits for water, no day was run
    StoppedByUser,   ///< at a day without weather
    WeatherDamaged,  ///< nothing of the run counts
};

/// What a run leaves.
struct Season {
    SeasonEnding Ending = SeasonEnding::Finished;
    JulianValue StartDay = 0;     ///< the day before the first one run
    JulianValue LastDay = 0;      ///< the last day run
    std::vector<DayRecord> Days;  ///< a row per day run
    std::vector<EventRecord> Leaching;
    std::vector<ProfileRecord> History;
    SoilProfile Soil;  ///< with the water content of the last day
    DayEnd End;        ///< of the last day
    Outlook Result;
};

/// How a run begins.
struct SeasonStart {
    JulianValue Day = 0;     ///< the day whose row the run goes on from, moved into the rows of the file
    bool UserReset = false;  ///< the user has set the depletion on that day
    JulianValue Today = 0;
    StatRecord Row;                           ///< the field's row of the directory as it stands
    std::vector<DayStep>* Account = nullptr;  ///< if given, takes the terms of each day
};

SeasonLimits LimitsOf(const FieldFile& file, JulianValue lastWeatherDay);

/// Runs the season. Missing days are asked about through `ask`. RunTimeFailure on an arithmetic fault.
Season RunSeason(const FieldFile& file, const SeasonStart& start, const SeasonWeather& weather, Ask& ask);

}  // namespace veraqua
