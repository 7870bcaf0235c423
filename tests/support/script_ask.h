#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <iterator>
#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "core/ask.h"

namespace veraqua {

/// Thrown in a test where the program would have ended.
struct ProgramEnded {};

/// What was said to the user of a test.
struct SaidMessage {
    std::string Text;
    std::string Title{ProgramTitle};
    veraqua::Icon Icon = veraqua::Icon::None;

    bool operator==(const SaidMessage&) const = default;
};

struct AskedQuestion {
    std::string Text;
    std::string Title;
    veraqua::Icon Icon = veraqua::Icon::None;
    bool NoIsDefault = false;

    bool operator==(const AskedQuestion&) const = default;
};

struct ProgressStep {
    std::string What;
    std::size_t Done = 0;
    std::size_t Total = 0;

    bool operator==(const ProgressStep&) const = default;
};

/// The user, the network and the clock of a test: plays a script and keeps a record of all that was said.
template <class Outside>
class Scripted : public Outside {
  public:
    using Message = SaidMessage;
    using Question = AskedQuestion;
    using ProgressStep = veraqua::ProgressStep;

    // The script
    JulianValue Today = JulianFromDate(7, 15, 2003);
    std::deque<bool> Answers;                ///< to the questions to come, the next one first
    bool OtherAnswer = false;                ///< when those have run out
    std::map<std::string, HttpReply> Pages;  ///< by URL; any other is not found (404)
    std::vector<std::string> NetworkStates;  ///< told during each request
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
        std::transform(Told.begin(), Told.end(), std::back_inserter(texts), [](const Message& m) { return m.Text; });
        return texts;
    }

    void Tell(std::string_view text, std::string_view title, veraqua::Icon icon) override {
        Told.push_back({std::string(text), std::string(title), icon});
    }

    bool YesNo(std::string_view text, std::string_view title, veraqua::Icon icon, bool noIsDefault) override {
        Asked.push_back({std::string(text), std::string(title), icon, noIsDefault});
        if (Answers.empty()) return OtherAnswer;
        const bool answer = Answers.front();
        Answers.pop_front();
        return answer;
    }

    JulianValue Now() const override { return Today; }

    HttpReply Get(const std::string& url, const std::function<void(std::string_view)>& state) override {
        Fetched.push_back(url);
        for (const std::string& text : NetworkStates) state(text);
        const auto page = Pages.find(url);
        if (page != Pages.end()) return page->second;
        HttpReply missing;
        missing.Code = 404;
        missing.Text = "Not Found";
        return missing;
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
    return out << '[' << message.Title << "] " << message.Text << " (icon " << static_cast<int>(message.Icon) << ')';
}

inline std::ostream& operator<<(std::ostream& out, const AskedQuestion& question) {
    return out << '[' << question.Title << "] " << question.Text << " (icon " << static_cast<int>(question.Icon)
               << (question.NoIsDefault ? ", No is the default)" : ")");
}

}  // namespace veraqua
