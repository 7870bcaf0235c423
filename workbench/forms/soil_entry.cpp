#include "workbench/forms/soil_entry.h"

#include "core/base/numbers.h"
#include "core/base/units.h"
#include "core/state.h"
#include "screen/field_caption.h"
#include "screen/screen.h"
#include "workbench/forms/field_menu.h"

namespace veraqua {

double EnteredValue(const TextBox& box) { return Numeric(box.Text).value_or(0); }

std::int16_t StoredWater(double entered) {
    return ToInteger16(State.EnglishUnits ? entered * MillimetresPerInch / MetresPerFoot : entered,
                       "the water of a soil layer, mm/m");
}

double EnteredWater(double millimetresPerMetre) {
    return State.EnglishUnits ? millimetresPerMetre * MetresPerFoot / MillimetresPerInch : millimetresPerMetre;
}

std::string EnteredWaterText(std::int16_t millimetresPerMetre) {
    return Masked(EnteredWater(millimetresPerMetre), State.EnglishUnits ? "0.00" : "0.0");
}

double CapacityLimit() { return State.EnglishUnits ? 3 : 250; }

void RefuseEntry(TextBox& box, std::string_view text, std::string_view title) {
    TheScreen().Tell(text, title);
    SelectText(box);
}

std::optional<std::int16_t> TakeCapacity(TextBox& box, std::string_view aboveLimitQuestion, bool tooLow,
                                         std::string_view tooLowText) {
    const double capacity = EnteredValue(box);
    if (capacity > CapacityLimit()) {
        if (!TheScreen().YesNo(aboveLimitQuestion, "Water Capacity Input Warning", Icon::Question, false)) {
            SelectText(box);
            return std::nullopt;
        }
    } else if (tooLow) {
        RefuseEntry(box, tooLowText, "Water Capacity Input Error");
        return std::nullopt;
    }
    return StoredWater(capacity);
}

void ShowNewField(StatusBar& bar) {
    ShowFieldIn(bar);
    The<frmField>().Caption = FieldTitle();
}

}  // namespace veraqua
