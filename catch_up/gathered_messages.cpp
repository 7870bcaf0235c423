#include "catch_up/gathered_messages.h"

#include <algorithm>

#include <fmt/format.h>

#include "core/state.h"
#include "engine/season.h"
#include "weather/coverage.h"

namespace veraqua {

namespace {

/// "Station 06, day 07-10-03": of the field in work; the day is the first that a run lacks weather of.
std::string PlaceOf(std::string_view title) {
    std::string place = "Station " + State.StationCode;
    if (title != WeatherDamagedTitle) return place;
    const DayRange run{State.Header().PlantDay + 1, State.WeatherLastJulian};
    const JulianValue reached = WeatherReaches(run);
    if (reached < run.To) place += ", day " + JulianToShortText(reached + 1);
    return place;
}

}  // namespace

void GatheredMessages::TellAll() {
    for (const Message& message : messages_) {
        const bool saysItself = message.Fields.size() == 1 && message.Title != WeatherDamagedTitle;
        ask_.Tell(saysItself
                      ? message.Text
                      : fmt::format("{}\n{}. {} {}.", message.Text, message.Where,
                                    message.Fields.size() == 1 ? "Field" : "Fields", fmt::join(message.Fields, ", ")),
                  message.Title, message.Sign);
    }
    messages_.clear();
}

void GatheredMessages::Tell(std::string_view text, std::string_view title, Icon icon) {
    const std::string where = PlaceOf(title);
    const auto equal = std::find_if(messages_.begin(), messages_.end(), [&](const Message& message) {
        return message.Text == text && message.Title == title && message.Where == where;
    });
    Message& message = equal != messages_.end()
                           ? *equal
                           : messages_.emplace_back(Message{std::string(text), std::string(title), icon, where, {}});
    message.Fields.push_back(State.Stat[State.CurrentField].FieldId.Text());
}

bool GatheredMessages::YesNo(std::string_view text, std::string_view title, Icon icon, bool noIsDefault) {
    return ask_.YesNo(text, title, icon, noIsDefault);
}

void GatheredMessages::Progress(std::string_view what, std::size_t done, std::size_t total) {
    ask_.Progress(what, done, total);
}

WeatherChoice GatheredMessages::ChooseWeatherSource(const DayRange& wanted) { return ask_.ChooseWeatherSource(wanted); }

}  // namespace veraqua
