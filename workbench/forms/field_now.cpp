#include "workbench/forms/field_now.h"

#include <initializer_list>
#include <string>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/state.h"
#include "reports/depletion_warning.h"
#include "reports/field_days.h"
#include "reports/forms/season_chart.h"
#include "reports/prediction_text.h"
#include "workbench/forms/field_choice.h"

namespace veraqua {

namespace {

void ShowNext(frmField& form, const StatRecord& row) {
    const PredictionText next =
        WaterPrediction(row, State.IsHay, State.TodayJulian, State.MadExceededDay, State.EnglishUnits);
    form.lblNext.Caption = "Next irrigation:  " + next.Date;
    if (row.NextIrrAmount > 0) form.lblNext.Caption += "   " + next.Amount;
    form.lblNext.Background.reset();
    if (next.Colour == PredictionColour::Red) form.lblNext.Background = colours::Red;
}

void ShowDepletion(frmField& form, const FieldFile& file, const StatRecord& row) {
    const FieldDay day = PresentDay(file, row, State.TodayJulian);
    const std::int16_t depletion = ToInteger16(day.Depletion, "the depletion");
    form.lblDepletion.Caption =
        fmt::format("Depletion on {}:  {} %   MAD:  {} %", JulianToShortText(day.Day), depletion, row.MadNow);
    form.lblDepletion.Background = DepletionWarning(depletion, row.MadNow);
}

/// The latest of `events` that today knows of.
std::string LastOf(const std::vector<EventRecord>& events) {
    for (auto event = events.rbegin(); event != events.rend(); ++event)
        if (event->Day <= State.TodayJulian && event->Amount > 0)
            return fmt::format("{}   {}", JulianToShortText(event->Day),
                               IrrigationAmount(event->Amount, State.EnglishUnits));
    return "none yet";
}

void SetVisible(frmField& form, bool visible) {
    for (Control* control : std::initializer_list<Control*>{&form.lblDepletion, &form.lblNext, &form.lblLastRain,
                                                            &form.lblLastIrrigation, &form.Chart1})
        control->Visible = visible;
    form.Chart1.Visible = visible && !form.PictureChosen;
}

void Fill(frmField& form) {
    const StatRecord& row = State.Stat[State.CurrentField];
    const FieldFile file = LoadFieldFile(State.CurrentField);
    ShowNext(form, row);
    ShowDepletion(form, file, row);
    form.lblLastRain.Caption = "Last rain:  " + LastOf(file.Lists.Rain);
    form.lblLastIrrigation.Caption = "Last irrigation:  " + LastOf(file.Lists.Irrigation);
    form.Chart1.Show(SeasonChartNow(file, row));
}

}  // namespace

void ShowFieldNow(frmField& form) {
    if (!FieldIsChosen()) {
        form.Shown = {};
        return SetVisible(form, false);
    }
    const ShownField now = FieldShownNow();
    try {
        if (form.Shown != now) Fill(form);
        form.Shown = now;
        SetVisible(form, true);
    } catch (const RunTimeFailure&) {  // of a file that is told where the user asks for its numbers
        form.Shown = {};
        SetVisible(form, false);
    }
}

}  // namespace veraqua
