#pragma once

#include <string>
#include <vector>

#include "core/ask.h"

namespace veraqua {

struct InitOutcome {
    bool Refused = false;              ///< the user has been told why; nothing has changed
    std::vector<std::string> Created;  ///< names of the files made, sorted
};

/// Makes the open data directory complete, as one set of changes: the shipped files (crop table, stations, manual) and
/// the field directory, and starts up. With `sample` also the sample season of today, for a directory without fields.
/// Files that are there stay. RunTimeFailure if one of them is damaged or the disk refuses; nothing has changed then.
InitOutcome MakeDataDirectory(Ask& ask, bool sample);

/// Makes `path`, and what is missing above it, such a directory and leaves it open; closed where it was refused or has
/// failed.
InitOutcome MakeDataDirectoryAt(Ask& ask, const std::string& path, bool sample);

}  // namespace veraqua
