#include "catch_up/changed_weather.h"

#include "catch_up/field_updates.h"
#include "core/directory.h"
#include "core/field_file.h"
#include "core/files/files.h"
#include "core/state.h"

namespace veraqua {

namespace {

/// The days that the runs of the field in `row` have taken from the weather files of the station in work.
DayRange DaysWorkedOut(int row) {
    constexpr DayRange none{1, 0};
    if (!files::Exists(FieldFileName(row))) return none;
    try {
        const FieldFile file = LoadFieldFile(row);
        const HeaderCommon& header = file.Header();
        if (header.StationCode.Text() != State.StationCode) return none;
        const JulianValue start = State.Updates[row] > 0 ? State.Updates[row] : header.PlantDay;
        return {start + 1, State.Stat[row].LastDay};
    } catch (const RunTimeFailure&) {
        return none;
    }
}

}  // namespace

std::vector<int> FieldsWorkedOutWith(const DayRange& changed) {
    std::vector<int> rows = RowsInUse();
    std::erase_if(rows, [&changed](int row) {
        const DayRange days = DaysWorkedOut(row);
        return days.To < days.From || days.To < changed.From || changed.To < days.From;
    });
    return rows;
}

void RunAgain(Ask& ask, const std::vector<int>& rows) {
    const WeatherCoefficients coefficients = State.WeatherCoeff;
    const JulianValue last = State.WeatherLastJulian;
    const DayRange needed{State.WeatherNeedFrom, State.WeatherNeedTo};
    UpdateRows(ask, rows);
    State.WeatherCoeff = coefficients;
    State.WeatherLastJulian = last;
    State.WeatherNeedFrom = needed.From;
    State.WeatherNeedTo = needed.To;
}

}  // namespace veraqua
