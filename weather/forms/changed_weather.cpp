#include "weather/forms/changed_weather.h"

#include <algorithm>
#include <iterator>

#include <fmt/format.h>

#include "catch_up/changed_weather.h"
#include "catch_up/weather_commands.h"
#include "screen/screen.h"

namespace veraqua {

void OfferRuns(frmWeather& form, const DayRange& changed, const std::vector<int>& rows) {
    if (ChooserHasCalled()) return;
    std::vector<int> affected;
    std::ranges::set_difference(FieldsWorkedOutWith(changed), rows, std::back_inserter(affected));
    if (affected.empty()) return;
    const bool one = affected.size() == 1;
    if (!TheScreen().YesNo(fmt::format("{} field{} worked out with the weather that has changed.\nRun {} now?",
                                       affected.size(), one ? " was" : "s were", one ? "it" : "them"),
                           "Weather Info", Icon::Question, false))
        return;
    RunAgain(TheScreen(), affected);
    form.lblUpdate.Caption = FieldsUpdatedText(static_cast<int>(affected.size()));
    form.lblUpdate.Visible = true;
}

}  // namespace veraqua
