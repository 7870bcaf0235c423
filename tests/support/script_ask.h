#pragma once

#include <deque>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "core/ask.h"

namespace veraqua {

/// Thrown in a test where the program would have ended.
struct ProgramEnded {};

/// A message or a question to the user of a test.
struct SaidMessage {
    std::string Text;
    std::string Title{ProgramTitle};
    veraqua::Icon Icon = veraqua::Icon::None;
    bool NoIsDefault = false;

    bool operator==(const SaidMessage&) const = default;
};

/// The user, the network and the clock of a test: plays a script and keeps a record of all that was said.
template <class Outside>
class Scripted : public Outside {
  public:
    using Message = SaidMessage;
    using Question = SaidMessage;
    struct ProgressStep {
        std::string What;
        std::size_t Done, Total;
        bool operator==(const ProgressStep&) const = default;
    };

    // The script
    JulianValue Today = JulianFromDate(7, 15, 2003);
    std::deque<bool> Answers;  ///< to the questions to come, the next one first
    bool OtherAnswer = false;  ///< when those have run out
    /// What the user does to bring weather in; leaves without a choice if empty.
    std::function<WeatherChoice(const DayRange&)> WeatherSource;

    // The record
    std::vector<Message> Told;
    std::vector<Question> Asked;
    std::vector<ProgressStep> Steps;
    int WeatherSourceChosen = 0;  ///< how often the user was sent to bring weather in

    /// The texts of `Told` alone.
    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        texts.reserve(Told.size());
        for (const Message& message : Told) texts.push_back(message.Text);
        return texts;
    }

    void Tell(std::string_view text, std::string_view title, veraqua::Icon icon) override {
        Told.push_back({std::string(text), std::string(title), icon, false});
    }

    bool YesNo(std::string_view text, std::string_view title, veraqua::Icon icon, bool noIsDefault) override {
        Asked.push_back({std::string(text), std::string(title), icon, noIsDefault});
        if (Answers.empty()) return OtherAnswer;
        const bool answer = Answers.front();
        Answers.pop_front();
        return answer;
    }

    JulianValue Now() const override { return Today; }

    void Progress(std::string_view what, std::size_t done, std::size_t total) override {
        Steps.push_back({std::string(what), done, total});
    }

    WeatherChoice ChooseWeatherSource(const DayRange& wanted) override {
        ++WeatherSourceChosen;
        return WeatherSource ? WeatherSource(wanted) : WeatherChoice::Left;
    }

    [[noreturn]] void EndProgram() override { throw ProgramEnded{}; }
};

/// For the rooms below the screen.
using ScriptAsk = Scripted<Ask>;

inline std::ostream& operator<<(std::ostream& out, const SaidMessage& message) {
    return out << '[' << message.Title << "] " << message.Text << " (icon " << static_cast<int>(message.Icon)
               << (message.NoIsDefault ? ", No is the default)" : ")");
}

}  // namespace veraqua
