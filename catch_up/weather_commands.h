#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "catch_up/field_updates.h"
#include "core/ask.h"
#include "core/http_reply.h"
#include "core/records.h"

/// The commands that bring weather of the station in work up to date: measured weather from the network or from a text
/// that is here already, or default weather.
namespace veraqua {

/// The two ways of importing. They differ in their range and in some of their words.
enum class WeatherCommand {
    Append,     ///< from the day after the last stored one
    Overwrite,  ///< from 1 January of this year
};

enum class CommandEnding {
    Done,
    StationMissing,  ///< no station is chosen: the user has been told, and is to choose one
    Declined,        ///< nothing was brought in: the user answered a question with No, or no day can be missing yet
    Failed,          ///< the user has been told; in the state `DownloadFailed` is true
};

struct CommandReport {
    CommandEnding Ending = CommandEnding::Done;
    DayRange Range;             ///< the days that were to be brought in
    JulianValue WeatherTo = 0;  ///< last day with weather afterwards
    std::string Status;         ///< what was done, for the first status panel
    std::string FieldsUpdated;  ///< text about the catch-up, where there was one
    std::optional<StationCatchUp> CatchUp;
    WeatherDay LastLine;  ///< the last line of the text that was looked at, for display
};

/// `StationCode` while no station is chosen.
constexpr std::string_view NoStation = "00";

/// False, after the user has been told, while no station is chosen.
bool StationIsChosen(Ask& ask);

/// The same in the words of the commands that need no network.
bool LocationIsChosen(Ask& ask);

/// How many fields have been run: "Fields updated: 03".
std::string FieldsUpdatedText(int fields);

/// Where the text of the station in work and `year` is on the network: "http://kesta.example/kesta/data/0603rd.txt".
std::string NetworkUrl(int year);

/// Tells why a request to the network has failed, and below it `advice`, if there is any.
void TellDownloadError(Ask& ask, const HttpReply& reply, std::string_view advice = {});

/// Keeps a text that has been fetched, under its remote name and as the text of `year` to import. RunTimeFailure if the
/// disk refuses; then both are as before.
void StoreNetworkText(int year, std::string_view body);

/// Works out the days that the file of `year` lacks through yesterday. They become those for which weather is wanted.
DayRange FindMissingDays(int year);

/// The days that `command` is to bring in; nothing if the user declines to overwrite weather that is up to date, or has
/// been told that the year has no day yet. Appending begins with last year's days where this year has none and last
/// year's file ends early.
std::optional<DayRange> ChooseRange(Ask& ask, WeatherCommand command);

/// The same where the user has named the days. They become those for which weather is wanted.
void TakeRange(const DayRange& range);

/// What is done about days of the range that an import leaves open.
enum class OpenDays {
    Tell,   ///< the user is told which
    Offer,  ///< and may have default weather there
};

/// Imports `range` from the text that is here: tests for it, asks about days that it lacks, imports, and raises the
/// last day with weather.
CommandReport ImportRange(Ask& ask, WeatherCommand command, const DayRange& range, OpenDays openDays = OpenDays::Tell);

/// Fetches the text of the station in work and a year and stores it. False after the user has been told why not.
using Download = std::function<bool(int year)>;

/// Gets the text of the first year of `range` by `download` and imports the range; nothing if it can't be had. A text
/// that the import can't use doesn't stay in the place of an earlier one.
std::optional<CommandReport> ImportFetched(Ask& ask, WeatherCommand command, const DayRange& range,
                                           const Download& download, OpenDays openDays = OpenDays::Tell);

/// Range, download and import of a menu command. Days of two years come from the texts of both.
CommandReport FetchWeather(Ask& ask, WeatherCommand command, const Download& download,
                           OpenDays openDays = OpenDays::Tell);

/// The whole menu command: the same, and the catch-up of the station's fields. Where open days are offered, equal
/// messages of the catch-up are gathered.
CommandReport BringWeather(Ask& ask, WeatherCommand command, const Download& download,
                           OpenDays openDays = OpenDays::Tell);

/// Writes default weather for `range` and raises the last day with weather.
void BringDefaultWeather(const DayRange& range);

}  // namespace veraqua
