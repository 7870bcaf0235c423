#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/calendar.h"

namespace veraqua {

enum class Icon { None, Information, Question, Warning, Stop };

/// Title of a message that has none of its own.
constexpr std::string_view ProgramTitle = "Veraqua";

/// How the user's choice of where to take weather from has ended.
enum class WeatherChoice {
    Taken,   ///< from somewhere, though the user may have declined a part of it
    Failed,  ///< nothing could be had from there; the user has been told and may choose again
    Left,    ///< without a choice
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

    /// Long work has come to `done` of `total`; `what` names it, such as "Updating fields".
    virtual void Progress(std::string_view what, std::size_t done, std::size_t total) = 0;

    /// Lets the user bring in the weather of the station in work for the days `wanted`.
    virtual WeatherChoice ChooseWeatherSource(const DayRange& wanted) = 0;

    /// Ends the program after a message that said why. Does not return.
    [[noreturn]] virtual void EndProgram() = 0;
};

/// Reads a date as typed, without blanks around it. An accepted `text` becomes the long date text and its Julian Value
/// is returned; a refused one stays, the user is told why (title "Date input error"), and the result is 0.
JulianValue ValidateDate(Ask& ask, std::string& text);

}  // namespace veraqua
