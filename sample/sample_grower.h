#pragma once

#include "core/ask.h"
#include "core/field_file.h"
#include "engine/season.h"
#include "sample/sample_plantings.h"

namespace veraqua {

/// The grower of a sample field, who looks at it day by day and doesn't know tomorrow's weather but for the rain that
/// is forecast. The replay of the season shows the field.
class SampleGrower {
  public:
    /// `file` is a new field with the season's rain. Its station is in work and has weather through the day before
    /// `start.Today`, the last one on which the grower has done something.
    SampleGrower(Ask& ask, FieldFile file, const SeasonStart& start, const SampleFarm& farm);

    /// Works the field up to yesterday: irrigates before it comes to its MAD, but not into rain, not while hay dries
    /// and not shortly before the harvest, and cuts hay when it is ready.
    void Work();

    /// Leaves the latest irrigations out until the field stands over its MAD. False, and all as before, if one or two
    /// don't do it, or if the field dries out.
    bool Neglect();

    /// Whether the field stood at or over its MAD yesterday.
    bool IsOverMad() const;

    const FieldFile& File() const { return file_; }

  private:
    void Replay();
    bool Act(JulianValue evening);
    const DayRecord& Evening(JulianValue day) const;
    float CapacityOn(JulianValue day) const;
    float Depletion(JulianValue day) const;
    bool IsRainDue(JulianValue day) const;
    bool IsReadyToCut(JulianValue evening) const;
    bool IsDrying(JulianValue evening) const;
    bool WantsWater(JulianValue evening) const;
    std::int16_t AmountFor(JulianValue evening) const;

    Ask& ask_;
    FieldFile file_;
    SeasonStart start_;
    const SampleFarm& farm_;
    SeasonWeather weather_;
    Season season_;
};

}  // namespace veraqua
