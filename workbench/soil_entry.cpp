#include "workbench/soil_entry.h"

#include "core/base/numbers.h"
#include "core/base/units.h"
#include "core/state.h"

namespace veraqua {

double EnteredValue(std::string_view typed) { return Numeric(typed).value_or(0); }

std::int16_t StoredWater(double entered) {
    return ToInteger16(State.EnglishUnits ? entered * MillimetresPerInch / MetresPerFoot : entered,
                       "the water of a soil layer, mm/m");
}

double EnteredWater(double millimetresPerMetre) {
    return State.EnglishUnits ? millimetresPerMetre * MetresPerFoot / MillimetresPerInch : millimetresPerMetre;
}

TypedWater StartingWater(std::int16_t capacity, std::int16_t content) {
    const std::string_view mask = State.EnglishUnits ? "0.00" : "0.0";
    return {Masked(EnteredWater(capacity), mask), Masked(EnteredWater(content), mask)};
}

double CapacityLimit() { return State.EnglishUnits ? 3 : 250; }

OrRefused<std::int16_t> TakeCapacity(Ask& ask, std::string_view typed, std::size_t index, bool tooLow,
                                     const CapacityWords& words) {
    const double capacity = EnteredValue(typed);
    if (capacity > CapacityLimit()) {
        if (!ask.YesNo(words.AboveLimit, "Water Capacity Input Warning", Icon::Question, false))
            return Refused{{}, {}, Given::Capacity, index};
    } else if (tooLow) {
        return Refused{std::string(words.TooLow), "Water Capacity Input Error", Given::Capacity, index};
    }
    return StoredWater(capacity);
}

}  // namespace veraqua
