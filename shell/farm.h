#pragma once

#include <string>

#include "core/ask.h"

/// Going from one farm, which is one data directory, to another. The options of the run stay: units, days of the bars,
/// and the day in the place of the computer's.
namespace veraqua {

/// Opens the farm in the directory `path` in the place of the one that is open, whose lock is given back. A
/// RunTimeFailure if it is the same, none, held by another program or damaged; the old farm stays open then.
void OpenFarm(Ask& ask, const std::string& path);

/// Makes a farm in the directory `path`, with the sample's fields or without any, and opens it likewise. A
/// RunTimeFailure, too, if there is one already. The user is told of what else speaks against it; false then.
bool MakeFarm(Ask& ask, const std::string& path, bool sample);

}  // namespace veraqua
