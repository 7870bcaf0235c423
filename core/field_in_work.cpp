#include "core/field_in_work.h"

#include "core/directory.h"
#include "core/field_file.h"
#include "core/state.h"

namespace veraqua {

namespace {

/// The rows of the field directory in memory.
struct Rows {
    DirectoryRows<StatRecord> Stat = State.Stat;
    DirectoryRows<JulianValue> Updates = State.Updates;

    void TakeUp() const {
        State.Stat = Stat;
        State.Updates = Updates;
    }
};

void RereadRow(int row) {
    Rows rows;
    try {
        LoadFieldDirectory();
    } catch (const RunTimeFailure&) {
        rows.TakeUp();
        return;
    }
    if (State.Stat[row].LastDay > 0) {
        rows.Stat[row] = State.Stat[row];
        rows.Updates[row] = State.Updates[row];
    } else {
        rows.Stat[row].LastDay = 0;
    }
    rows.TakeUp();
    State.FieldCount = static_cast<std::int16_t>(RowsInUse().size());
}

}  // namespace

void RereadFieldInWork() {
    const int row = State.CurrentField;
    if (row < 1 || row > MaxFields) return;
    RereadRow(row);
    if (State.Stat[row].LastDay == 0) return;
    try {
        TakeInWork(LoadFieldFile(row));
    } catch (const RunTimeFailure&) {  // the failure that the user has been told of
    }
}

}  // namespace veraqua
