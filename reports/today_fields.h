#pragma once

#include <vector>

#include "core/records.h"
#include "reports/prediction_text.h"

/// What is known today of every field: its row of the directory, and from its file the depletion that the schedule and
/// the bars show, too.
namespace veraqua {

/// Days that count as soon: so much notice a grower needs, and so late weather may come in.
constexpr int SoonDays = 2;

/// With weather that is further behind nothing can be said about today.
constexpr int MostDaysBehind = 7;

enum class Urgency { Now, Soon, Later };

struct FieldToday {
    int Row = 0;      ///< of the directory
    StatRecord Stat;  ///< with the depletion of `DepletionDay`
    JulianValue DepletionDay = 0;
    NextDeed ToDo = NextDeed::Unknown;
    Urgency Urge = Urgency::Later;
    bool HasDay = false;    ///< the next irrigation is predicted
    int DaysLeft = 0;       ///< until then, 0 if it is due or overdue
    JulianValue Known = 0;  ///< the last day whose state is known, by weather or by hand
    int DaysBehind = 0;     ///< of the weather
    int DefaultDays = 0;    ///< the latest of the days known that stand on default weather
};

/// All fields, worst first. One whose file is missing or damaged is taken as its row of the directory has it: the user
/// is told when they open it.
std::vector<FieldToday> FieldsToday();

}  // namespace veraqua
