#include "core/field_in_work.h"

#include "core/directory.h"
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
    } catch (const RunTimeFailure&) {  // then memory is all there is
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

void TakeInWork(const FieldFile& file) {
    State.IsHay = file.IsHay;
    if (file.IsHay)
        State.Hay = file.Hay;
    else
        State.Field = file.Field;
    State.VariableSoil = file.VariableSoil();
    State.RainTotal = TotalAmount(file.Lists.Rain);
    State.IrrigationTotal = TotalAmount(file.Lists.Irrigation);
}

std::optional<FieldFile> ReadField(Ask& ask) {
    std::optional<FieldFile> file = OpenField(ask, State.CurrentField);
    if (file) TakeInWork(*file);
    return file;
}

std::optional<FieldFile> SelectField(Ask& ask, int row) {
    State.CurrentField = static_cast<std::int16_t>(row);
    State.IsHay = State.Stat[row].CropName.First() == HayMark;
    State.MadExceededDay = 0;
    State.DriedOutDay = 0;
    std::optional<FieldFile> file = ReadField(ask);
    if (!file) return std::nullopt;
    State.StationCode = State.Header().StationCode.Text();
    State.StationName = StationNameOf(State.StationCode);
    return file;
}

InWork::InWork() : field_(State.CurrentField), stationCode_(State.StationCode), stationName_(State.StationName) {}

bool InWork::HasStation() const { return State.StationCode == stationCode_; }

void InWork::ReturnStation() const {
    State.StationCode = stationCode_;
    State.StationName = stationName_;
}

void InWork::Return(Ask& ask) const {
    State.CurrentField = 0;
    if (field_ > 0) SelectField(ask, field_);
    ReturnStation();
}

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
