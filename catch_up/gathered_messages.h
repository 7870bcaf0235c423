#pragma once

#include <string>
#include <vector>

#include "core/ask.h"

namespace veraqua {

/// For work on many fields before a user: what it tells of the field in work is kept until `TellAll`, and equal
/// messages become one, which names the fields, their station and, where its weather has a hole, the day. All else goes
/// through.
class GatheredMessages : public Ask {
  public:
    explicit GatheredMessages(Ask& ask) : ask_(ask) {}

    void TellAll();

    void Tell(std::string_view text, std::string_view title = ProgramTitle, Icon icon = Icon::None) override;
    bool YesNo(std::string_view text, std::string_view title, Icon icon, bool noIsDefault) override;
    JulianValue Now() const override { return ask_.Now(); }
    void Progress(std::string_view what, std::size_t done, std::size_t total) override;
    WeatherChoice ChooseWeatherSource(const DayRange& wanted) override;
    void EndProgram() override { ask_.EndProgram(); }

  private:
    struct Message {
        std::string Text;
        std::string Title;
        Icon Sign = Icon::None;
        std::string Where;  ///< station, and day if it has one
        std::vector<std::string> Fields;
    };

    Ask& ask_;
    std::vector<Message> messages_;
};

}  // namespace veraqua
