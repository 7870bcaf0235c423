#include "weather/forms/day_entry.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <optional>

#include <fmt/format.h>

#include "catch_up/weather_commands.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/state.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "weather/coverage.h"
#include "weather/day_rows.h"
#include "weather/forms/changed_weather.h"
#include "weather/reference_et.h"
#include "weather/weather_file.h"

namespace veraqua {

namespace {

constexpr std::string_view Mask = "0.0";

/// Both limits are inclusive, in the user's units. Where `HighBox` is a box, the number in it is the high limit.
struct Limits {
    int LowEnglish;
    int HighEnglish;
    int LowMetric;
    int HighMetric;
    int HighBox;
    std::string_view Title;
};

constexpr int NoBox = -1;

// clang-format off
constexpr std::array EntryLimits{
    Limits{32, 130,   0, 54, NoBox, "Max Temp Error"},
    Limits{ 0,   0, -18,  0,     0, "Min Temp Error"},
    Limits{ 0, 100,   0, 100, NoBox, "Max Humidity Error"},
    Limits{ 0,   0,   0,  0,     2, "Min Humidity Error"},
    Limits{ 0,  19,   0, 30, NoBox, "Wind Velocity Error"},
    Limits{ 0,   5,   0,  5, NoBox, "Day/Night Wind Error"},
    Limits{ 0, 900,   0, 42, NoBox, "Solar Radiation Error"},
};
// clang-format on

JulianValue FirstEntryDay() { return JulianFromDate(1, 1, YearOf(TheScreen().Now()) - 1); }

/// The last real day becomes a default one too, and the days behind it through yesterday.
void FillThroughYesterday() {
    const DayRange range{State.WeatherLastJulian, State.TodayJulian - 1};
    WantWeather(range);
    // The last day with weather rises with it: else the next entry would fill from there again, over what has been
    // entered by hand.
    BringDefaultWeather(range);
}

/// Brings the weather file up to yesterday before a day of it is entered.
void PrepareFile() {
    // Where the last day is unknown it stays so: nothing may be written over days that are there.
    if (State.WeatherLastJulian == 0)
        FindMissingDays(YearOf(TheScreen().Now()));
    else if (State.WeatherLastJulian > 0 && State.WeatherLastJulian < State.TodayJulian - 1)
        FillThroughYesterday();
}

void ShowReferenceET(frmWeather& form) {
    form.lbl_az[IndexOf(DayRow::ReferenceET)].Caption =
        TextOrMissing(form.Entered, DayRow::ReferenceET, State.EnglishUnits, Mask, "missing");
}

void ShowBoxes(frmWeather& form) {
    for (const DayRow row : AllDayRows) {
        const std::size_t i = IndexOf(row);
        form.lbl_d[i].Caption = LabelOf(row, State.EnglishUnits);
        form.lbl_d[i].Visible = true;
        if (i >= form.txt_w.size()) continue;
        form.txt_w[i] = TextBox(TextOrMissing(form.Entered, row, State.EnglishUnits, Mask, ""));
    }
    ShowReferenceET(form);
    form.lbl_az.back().Visible = true;
    form.lbl_kesta.Visible = true;
    form.Cmd_Exit.Visible = false;
    form.cmd_OK.Visible = true;
}

/// The day that is typed, if it may be entered; 0, after the user has been told, if not.
JulianValue EntryDayTyped(frmWeather& form) {
    const JulianValue day = TypedDay(form.txtDate);
    if (day <= State.TodayJulian - 1 && day >= FirstEntryDay()) return day;
    TheScreen().Tell(
        "Select a date BETWEEN " + JulianToShortText(FirstEntryDay()) + " and " + JulianToShortText(State.TodayJulian),
        "Date Input Error");
    Focus(form.txtDate);
    return 0;
}

/// Takes `day` for the one that is being entered, with the weather that it has.
void TakeDay(frmWeather& form, JulianValue day) {
    form.EntryDay = day;
    form.txtDate.Typed = false;
    const DayInYear place = DayOfYearFromJulian(day);
    form.Entered = WeatherFile(State.StationCode, place.Year).Day(place.DayOfYear);
}

/// Where the date has been changed since the numbers came up, asks for which of the two days they are. False, after the
/// user has been told, if it is no day to enter.
bool SettleDay(frmWeather& form) {
    if (ReadTypedDate(Trimmed(form.txtDate.Text)).Julian == form.EntryDay) return true;
    const JulianValue typed = EntryDayTyped(form);
    if (typed == 0) return false;
    const std::string shown = JulianToShortText(form.EntryDay);
    const std::string changed = JulianToShortText(typed);
    if (TheScreen().YesNo(fmt::format("The date has been changed to {}. The numbers came up for {}.\n"
                                      "Do you want to store them for {}? \"No\" stores them for {}.",
                                      changed, shown, changed, shown),
                          "Weather Info", Icon::Question, true))
        TakeDay(form, typed);
    return true;
}

double ValueOf(const TextBox& box) { return Numeric(box.Text).value_or(0); }

}  // namespace

void mnu_enter_Click(frmWeather& form) {
    ClearPanels(form);
    if (!HasStation(form)) return;
    PrepareFile();
    EnableMenus(form, false);
    for (Control* control : std::initializer_list<Control*>{&form.lbl_EditWeather, &form.lbl_SelectDate,
                                                            &form.cmd_Calendar, &form.txtDate, &form.cmd_DateOK})
        control->Visible = true;
    form.txtDate.Text = JulianToLongText(std::min(TheScreen().Now(), State.TodayJulian) - 1);
    form.txtDate.Typed = false;
    Focus(form.txtDate);
}

void cmd_Calendar_Click(frmWeather& form) {
    const JulianValue typed = ReadTypedDate(Trimmed(form.txtDate.Text)).Julian;
    form.Cal1.Day = typed == 0 ? TheScreen().Now() : typed;
    form.Cal1.Visible = true;
}

void Cal1_Click(frmWeather& form) {
    form.txtDate.Text = JulianToLongText(form.Cal1.Day);
    form.Cal1.Visible = false;
}

void cmd_DateOK_Click(frmWeather& form) {
    const JulianValue day = EntryDayTyped(form);
    if (day == 0) return;
    TakeDay(form, day);
    ShowBoxes(form);
}

bool txt_w_Leave(frmWeather& form, int index) {
    const Limits& limits = EntryLimits[static_cast<std::size_t>(index)];
    const TextBox& box = form.txt_w[static_cast<std::size_t>(index)];
    const int low = State.EnglishUnits ? limits.LowEnglish : limits.LowMetric;
    double high = State.EnglishUnits ? limits.HighEnglish : limits.HighMetric;
    std::string highText = Plain(high);
    if (limits.HighBox != NoBox) {
        const TextBox& above = form.txt_w[static_cast<std::size_t>(limits.HighBox)];
        high = ValueOf(above);
        highText = above.Text;
    }
    const std::optional<double> value = Numeric(box.Text);
    if (value && *value >= low && *value <= high) return true;
    TheScreen().Tell(fmt::format("Please input a value between {} and {}", low, highText), limits.Title);
    Focus(box);
    return false;
}

void cmd_OK_Click(frmWeather& form) {
    if (!LeaveChecksPass(FormName::frmWeather) || !SettleDay(form)) return;
    const DayInYear place = DayOfYearFromJulian(form.EntryDay);
    WeatherDay day = form.Entered;
    day.DayOfYear = static_cast<std::int16_t>(place.DayOfYear);
    for (const DayRow row : AllDayRows)
        if (row != DayRow::ReferenceET) Enter(day, row, ValueOf(form.txt_w[IndexOf(row)]), State.EnglishUnits);
    day.ReferenceET = ReferenceEvapotranspiration(day);
    WeatherFile file(State.StationCode, place.Year);
    file.Put(place.DayOfYear, day);
    file.Save();
    form.Entered = day;
    ShowReferenceET(form);
    TheScreen().Tell("Weather data for " + JulianToShortText(form.EntryDay) + " has been updated!", "Weather Updated");
    EnableMenus(form);
    ClearPanels(form);
    form.Cmd_Exit.Visible = true;
    OfferRuns(form, {form.EntryDay, form.EntryDay});
}

}  // namespace veraqua
