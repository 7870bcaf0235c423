#pragma once

#include <string>

#include "core/ask.h"

/// The irrigation schedule: for every field when to irrigate next, and how much.
namespace veraqua {

/// The schedule as it is saved: a line per field in the order of the directory, from `Stat` as it stands. No field file
/// is read.
std::string ScheduleText(const Ask& ask);

/// Saves it to `ReportFileName`, by default Predict.txt in the data directory, and tells so. A Refusal if the disk
/// refuses.
void SaveSchedule(Ask& ask);

}  // namespace veraqua
