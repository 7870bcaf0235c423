#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "core/calendar.h"

namespace veraqua {

enum class Icon { None, Information, Question, Warning, Stop };

/// Title of a message that has none of its own.
constexpr std::string_view ProgramTitle = "Veraqua";

/// What came of a request to the weather network.
struct HttpReply {
    bool Succeeded = false;
    int Code = 0;      ///< HTTP status, or the transport's error number
    std::string Text;  ///< reason, fit for the user, where it failed
    std::string Body;
};

/// What a calculating room may need of the outside. The desktop, the command line and the tests each make it real.
class Ask {
  public:
    virtual ~Ask() = default;

    /// A message box with an OK button. "\n" in `text` is a line break.
    virtual void Tell(std::string_view text, std::string_view title = ProgramTitle, Icon icon = Icon::None) = 0;

    /// A message box with Yes and No; `noIsDefault` says which button a mere Enter presses. True for Yes.
    virtual bool YesNo(std::string_view text, std::string_view title, Icon icon, bool noIsDefault) = 0;

    /// The computer's date, or the date that the user put in its place.
    virtual JulianValue Now() const = 0;

    /// HTTP GET. `state` is called with a text for the user while it goes on; it returns when all is over.
    virtual HttpReply Get(const std::string& url, const std::function<void(std::string_view)>& state) = 0;

    /// Long work has come to `done` of `total`; `what` names it, such as "Updating fields".
    virtual void Progress(std::string_view what, std::size_t done, std::size_t total) = 0;

    /// Lets the user bring the weather of the station in work up to date, from `WeatherNeedFrom` to `WeatherNeedTo`.
    /// Afterwards `DownloadFailed` and `ReportCancelled` tell the outcome.
    virtual void ChooseWeatherSource() = 0;

    /// Ends the program after a message that said why. Does not return.
    [[noreturn]] virtual void EndProgram() = 0;
};

/// Reads a date as typed, without blanks around it. An accepted `text` becomes the long date text and its Julian Value
/// is returned; a refused one stays, the user is told why (title "Date input error"), and the result is 0.
JulianValue ValidateDate(Ask& ask, std::string& text);

}  // namespace veraqua
