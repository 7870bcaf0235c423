#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "catch_up/field_updates.h"
#include "core/ask.h"
#include "core/records.h"

/// The commands that bring measured weather of the station in work up to date, from the network or from a text that is
/// here already.
namespace veraqua {

/// The two ways of importing. They differ in their range and in some of their words.
enum class WeatherCommand {
    Append,     ///< from the day after the last stored one
    Overwrite,  ///< from 1 January of this year
};

enum class CommandEnding {
    Done,
    StationMissing,  ///< no station is chosen: the user has been told, and is to choose one
    Declined,        ///< the user answered a question with No
    Failed,          ///< the user has been told; `DownloadFailed` is true
};

struct CommandReport {
    CommandEnding Ending = CommandEnding::Done;
    std::string Status;         ///< what was done, for the first status panel
    std::string FieldsUpdated;  ///< text about the catch-up, where there was one
    std::optional<StationCatchUp> CatchUp;
    WeatherDay LastDay;  ///< the last day of the text, for display
};

/// `StationCode` while no station is chosen.
constexpr std::string_view NoStation = "00";

/// False, after the user has been told, while no station is chosen.
bool StationIsChosen(Ask& ask);

/// Name of the text of the station in work and the year of `WeatherYearSuffix`, on the network and here: "0603rd.txt".
std::string NetworkFileName();

/// Keeps a text that has been fetched, under its remote name and as the year's text to import. RunTimeFailure if the
/// disk refuses; then both are as before.
void StoreNetworkText(std::string_view body);

/// Last day of weather in the file of `year`, 0 if there is none; the range of days from there through yesterday
/// becomes the one that is needed.
JulianValue FindMissingDays(int year);

/// Sets the range that `command` is to bring in. False if the user declines to overwrite weather that is up to date.
bool ChooseRange(Ask& ask, WeatherCommand command);

/// Imports the range from the text that is here: tests for it, asks about days that it lacks, imports, and raises
/// `WeatherLastJulian`.
///   oneYear  the range lies in one year
CommandReport ImportRange(Ask& ask, WeatherCommand command, bool oneYear);

/// The whole menu command: range, download, import, and the catch-up of the station's fields.
///   download  fetches the text of `NetworkFileName` and stores it, or sets `DownloadFailed` and tells the user why
CommandReport BringWeather(Ask& ask, WeatherCommand command, const std::function<void()>& download);

/// What the station chooser does with its own range, which lies in one year, once it has downloaded: no question about
/// the range, no catch-up.
CommandReport AppendForChooser(Ask& ask);

}  // namespace veraqua
