#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/ask.h"
#include "core/backups.h"

/// Reports as text files: the names that they may have, and how they are saved.
namespace veraqua {

/// Where a report lies whose name has no directory.
enum class BareName { InDataDirectory, InWorkingDirectory };

/// The path of the file that the user means by the report name `text`. Both "/" and "\" end a directory, and it must be
/// there; the data directory's own files can't be meant. Nothing if the name is refused, after the user has been told
/// why.
std::optional<std::string> ReportPath(Ask& ask, std::string_view text, BareName bare);

/// A kind of report that can be saved.
struct SavedAs {
    std::string_view What;         ///< how the user is told of it
    std::string_view DefaultName;  ///< in the data directory
};

constexpr SavedAs SavedSchedule{"Your Irrigation Schedule", "Predict.txt"};
constexpr SavedAs SavedFieldReport{"Your Field Report", "Field.txt"};
constexpr SavedAs SavedTodayList{"Your list of fields", "Today.csv"};

/// Name for the report of a harvested field: "Field NORTH 30 06-30-26.txt".
std::string HarvestedReportName(const Backup& backup);

/// Saves `text` to the path in `ReportFileName`, which becomes that of the default name where it is empty. An old file
/// of that name is replaced. Then tells that the report was saved. A Refusal if the disk refuses; an old file is then
/// as before.
void SaveReport(Ask& ask, const SavedAs& report, std::string_view text);

}  // namespace veraqua
