#pragma once

#include <vector>

#include "core/ask.h"

/// Runs of many fields, durable as one set of changes.
namespace veraqua {

/// What came of one field; the greater is the worse.
enum class UpdateStatus {
    Done,
    Refused,  ///< the user has been told why: no weather, no field file, stopped at a question
    Failed,   ///< an arithmetic fault or a damaged file, told; its files stay as they were
};

/// Runs the seasons of `rows` on the weather that is there, as far as each station's reaches from the year of the
/// field's last day on. A field that fails doesn't keep the others from their run. The field in work stays.
/// RunTimeFailure if the disk refuses the whole; the directory in memory is then as on disk.
std::vector<UpdateStatus> UpdateRows(Ask& ask, const std::vector<int>& rows);

struct StationCatchUp {
    int Fields = 0;        ///< fields of the station, whether they had to run or not
    std::vector<int> Run;  ///< rows of those that had to
    UpdateStatus Worst = UpdateStatus::Done;
};

/// Runs every field of the station in work that stands behind yesterday, on the weather through `WeatherLastJulian`.
/// The field in work stays; `what` names the work to the user.
StationCatchUp UpdateFieldsForStation(Ask& ask, std::string_view what);

}  // namespace veraqua
