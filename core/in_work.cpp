#include "core/in_work.h"

#include "core/field_in_work.h"
#include "core/state.h"

namespace veraqua {

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

}  // namespace veraqua
