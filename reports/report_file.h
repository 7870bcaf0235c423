#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/ask.h"

/// Reports as text files: the names that they may have, and how they are saved.
namespace veraqua {

/// Where a report lies whose name has no directory.
enum class BareName { InDataDirectory, InWorkingDirectory };

/// The path of the file that the user means by the report name `text`. Both "/" and "\" end a directory, and it must be
/// there; the data directory's own files can't be meant. Nothing if the name is refused, after the user has been told
/// why.
std::optional<std::string> ReportPath(Ask& ask, std::string_view text, BareName bare);

/// Saves `report` to the path in `ReportFileName`, which becomes that of `defaultName` in the data directory where it
/// is empty. An old file of that name is replaced. Then tells that `what`, such as "Your Field Report", was saved.
/// A Refusal if the disk refuses; an old file is then as before.
void SaveReport(Ask& ask, std::string_view what, std::string_view defaultName, std::string_view report);

}  // namespace veraqua
