#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/ask.h"
#include "core/calendar.h"
#include "core/records.h"

/// The import of the network's text into the weather files of the station in work.
namespace veraqua {

/// "kesta.03": the name under which the text of a year is imported.
std::string NetworkTextName(int year);

/// The wording of the two commands that import: the one that overwrites puts exclamation marks where appending has
/// none.
struct ImportWording {
    std::string_view WrongYear;
    std::string_view WrongStation;
    std::string_view NotDownloaded;  ///< follows the year in the message about a missing text
    std::string_view NotDownloadedTitle;
};

struct ImportOutcome {
    bool Imported = false;                  ///< false: refused or nothing usable; the user has been told
    JulianValue EndedBefore = 0;            ///< first day of the range that was not taken; 0: all were
    bool EndedByMissing = false;            ///< that day has a line, which lacks a value
    std::vector<JulianValue> WindlessDays;  ///< imported although their wind was not measured
    WeatherDay LastDay;                     ///< the last line looked at
};

/// Tells that the text of `year` is missing.
void TellTextMissing(Ask& ask, const ImportWording& wording, int year);

/// Tells that nothing could be taken.
void TellDownloadFailed(Ask& ask);

/// Whether the text `bytes` serves an import of `range` for the station in work: it has a line, and its lines up to the
/// first wanted day are of the year and of the station.
bool TextServes(std::string_view bytes, const DayRange& range);

/// Imports the days of `range` from the text of their year. Gaps of the text become default days; a day whose line
/// lacks a value ends the import when it is the day wanted. What was written by then stays.
ImportOutcome ImportWeather(Ask& ask, const ImportWording& wording, const DayRange& range);

}  // namespace veraqua
