#pragma once

#include <string>

#include "core/ask.h"
#include "core/records.h"

namespace veraqua::bench {

/// The outside of a benchmark: says nothing, answers Yes, and its date is the farm's today.
class QuietAsk : public Ask {
  public:
    void Tell(std::string_view, std::string_view, Icon) override {}
    bool YesNo(std::string_view, std::string_view, Icon, bool) override { return true; }
    JulianValue Now() const override;
    void Progress(std::string_view, std::size_t, std::size_t) override {}
    WeatherChoice ChooseWeatherSource(const DayRange&) override { return WeatherChoice::Left; }
    [[noreturn]] void EndProgram() override;
};

/// A temporary data directory with fields of one station (06), planted on 1 April 2026 and not yet run; today is 20
/// July, and the weather of the year reaches through yesterday. It is open for writing and goes with the object.
class Farm {
  public:
    /// `days` is the length of each field's season, of which 110 days have passed; every second field is hay if
    /// `withHay`.
    Farm(int fields, std::int16_t days, bool withHay);
    ~Farm();
    Farm(const Farm&) = delete;
    Farm& operator=(const Farm&) = delete;

    const std::string& Path() const { return path_; }
    QuietAsk& Outside() { return ask_; }

    /// Makes `row` the field in work, with its station's default weather and coverage.
    void Select(int row);

  private:
    std::string path_;
    QuietAsk ask_;
};

}  // namespace veraqua::bench
