#pragma once

#include <cstdint>

#include "core/files/files.h"
#include "core/state.h"
#include "screen/forms.h"

namespace veraqua {

/// What a window of the field in work was filled from. It stays open while the user goes on, and belongs to that field.
struct ShownField {
    int Row = 0;
    FixedText<10> FieldId;
    JulianValue PlantDay = 0;
    bool English = false;
    JulianValue Today = 0;
    JulianValue LastWeather = 0;
    JulianValue MadExceeded = 0;
    std::uint64_t Changes = 0;  ///< of the files, until then

    bool operator==(const ShownField&) const = default;

    bool IsOfFieldInWork() const {
        return Row == State.CurrentField && FieldId == State.Header().FieldId && PlantDay == State.Header().PlantDay;
    }
};

/// That of the state now.
inline ShownField FieldShownNow() {
    return {State.CurrentField, State.Header().FieldId,  State.Header().PlantDay, State.EnglishUnits,
            State.TodayJulian,  State.WeatherLastJulian, State.MadExceededDay,    files::ChangesMade()};
}

/// Fills the form anew where that has changed, and ends it where another field, or none, is in work.
inline void FollowField(FormName form, const ShownField& shown) {
    if (State.CurrentField == 0 || !shown.IsOfFieldInWork()) return Unload(form);
    if (shown != FieldShownNow()) Fill(form);
}

}  // namespace veraqua
