#include "workbench/soil_entry.h"

#include "core/base/numbers.h"
#include "core/base/units.h"
#include "core/state.h"

namespace veraqua {

double EnteredValue(std::string_view typed) { return Numeric(typed).value_or(0); }

namespace {

double MillimetresPerMetre(double entered) {
    return State.EnglishUnits ? entered * MillimetresPerInch / MetresPerFoot : entered;
}

}  // namespace

std::int16_t StoredWater(double entered) {
    return ToInteger16(MillimetresPerMetre(entered), "the water of a soil layer, mm/m");
}

std::optional<Refused> RefusedOverflow(double entered, std::string_view title, Given where, std::size_t index) {
    if (FitsInteger16(MillimetresPerMetre(entered))) return std::nullopt;
    return Refused{.Text = "Please enter a value of at most " + Masked(EnteredWater(MostStored), "0.00"),
                   .Title = std::string(title),
                   .Where = where,
                   .Index = index,
                   .IsOverflow = true};
}

double EnteredWater(double millimetresPerMetre) {
    return State.EnglishUnits ? millimetresPerMetre * MetresPerFoot / MillimetresPerInch : millimetresPerMetre;
}

TypedWater StartingWater(std::int16_t capacity, std::int16_t content) {
    const std::string_view mask = State.EnglishUnits ? "0.00" : "0.0";
    return {Masked(EnteredWater(capacity), mask), Masked(EnteredWater(content), mask)};
}

std::optional<Refused> CheckCapacity(std::string_view typed, std::size_t index) {
    if (typed.empty() || Numeric(typed)) return std::nullopt;
    return Refused{"Please enter a value between 0 and " + Plain(CapacityLimit()), "Water Capacity Must Be NUMERIC",
                   Given::Capacity, index};
}

std::optional<Refused> CheckContent(std::string_view typed, std::size_t index) {
    if (typed.empty() || Numeric(typed)) return std::nullopt;
    return Refused{"Please enter a numeric value!", "Water Content Input Error", Given::Content, index};
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
    if (auto refused = RefusedOverflow(capacity, "Water Capacity Input Error", Given::Capacity, index)) return *refused;
    return StoredWater(capacity);
}

}  // namespace veraqua
