#pragma once

#include <deque>
#include <functional>
#include <map>
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
    std::deque<bool> Answers;                ///< to the questions to come, the next one first
    bool OtherAnswer = false;                ///< when those have run out
    std::map<std::string, HttpReply> Pages;  ///< by URL; any other is not found (404)
    std::function<void()> WeatherSource;     ///< what the user does to bring weather in; nothing if empty

    // The record
    std::vector<Message> Told;
    std::vector<Question> Asked;
    std::vector<std::string> Fetched;  ///< URLs
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

    HttpReply Get(const std::string& url, const std::function<void(std::string_view)>&) override {
        Fetched.push_back(url);
        const auto page = Pages.find(url);
        return page != Pages.end() ? page->second : HttpReply{false, 404, "Not Found", ""};
    }

    void Progress(std::string_view what, std::size_t done, std::size_t total) override {
        Steps.push_back({std::string(what), done, total});
    }

    void ChooseWeatherSource() override {
        ++WeatherSourceChosen;
        if (WeatherSource) WeatherSource();
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
