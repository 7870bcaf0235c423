#include "weather/forms/weather_viewer.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "catch_up/weather_commands.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/files/files.h"
#include "core/state.h"
#include "reports/printed_lines.h"
#include "screen/field_caption.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "weather/day_rows.h"
#include "weather/forms/station_list.h"
#include "weather/weather_file.h"

namespace veraqua {

namespace {

/// The blanks that stand ahead of a line and behind its fields: date, day, the seven entered numbers of the day.
struct Spacing {
    int Ahead;
    std::array<int, 9> Behind;
    bool Straight;  ///< a number wider than its mask, such as one below 0, takes up the blanks ahead of it
};

constexpr Spacing OnScreen{0, {6, 7, 8, 7, 9, 8, 12, 11, 8}, false};
constexpr Spacing OnPaper{3, {3, 4, 4, 3, 4, 4, 7, 6, 6}, true};

std::string Blanks(int count) { return std::string(static_cast<std::size_t>(count), ' '); }

std::string_view MaskOf(DayRow row) {
    switch (row) {
        case DayRow::Wind: return "00.0";
        case DayRow::DayNightRatio: return "0.0";
        case DayRow::Radiation: return State.EnglishUnits ? "000.0" : "00.0";
        case DayRow::ReferenceET: return State.EnglishUnits ? "0.0" : "00.0";
        default: return "000.0";
    }
}

/// One day of the listing.
std::string LineOf(const WeatherDay& day, int dayOfYear, int year, const Spacing& spacing) {
    std::string line = Blanks(spacing.Ahead) + JulianToShortText(JulianFromDayOfYear(dayOfYear, year)) +
                       Blanks(spacing.Behind[0]) + Masked(static_cast<double>(dayOfYear), "000");
    for (const DayRow row : AllDayRows) {
        const std::string text = TextOf(day, row, State.EnglishUnits, MaskOf(row));
        const int wider = spacing.Straight ? static_cast<int>(text.size() - MaskOf(row).size()) : 0;
        line += fmt::format("{}{}", Blanks(std::max(1, spacing.Behind[IndexOf(row) + 1] - wider)), text);
    }
    return line;
}

/// A year as it is listed.
struct Listing {
    int Year = 0;
    std::vector<std::string> Lines;

    std::string FirstDay() const { return fmt::format("01-01-{}", Year); }
    std::string LastDay() const { return JulianToShortText(JulianFromDayOfYear(static_cast<int>(Lines.size()), Year)); }
};

/// The year that is typed, or this one; nothing where the text is no year.
std::optional<int> YearTyped(const frmViewWeather& form) {
    const std::string_view text = Trimmed(form.txtYear.Text);
    if (text.empty()) return YearOf(TheScreen().Now());
    const std::optional<std::int32_t> year = WholeNumber(text);
    return year && *year >= 0 && *year <= 9999 ? std::optional<int>(*year) : std::nullopt;
}

/// A file's name has two digits of its year. Of the years with these it is the latest, but runs look no more than four
/// years ahead. The two digits alone are a year of the file that bears them.
bool IsYearOfItsFile(int year) {
    const int latest = YearOf(TheScreen().Now()) + 4;
    return year < 100 || (year <= latest && year > latest - 100);
}

/// The year that the user wants listed. Nothing, after they have been told, where there is no file of it.
std::optional<Listing> ListYear(const frmViewWeather& form, const Spacing& spacing) {
    const std::optional<int> year = YearTyped(form);
    if (!year || !IsYearOfItsFile(*year) || !files::Exists(WeatherFileName(State.StationCode, *year))) {
        TheScreen().Tell(fmt::format("No weather data found for {} at Station: {}",
                                     year ? fmt::format("{}", *year) : form.txtYear.Text, State.StationCode),
                         "Bad Year");
        Focus(form.txtYear);
        return std::nullopt;
    }
    const WeatherFile file(State.StationCode, *year);
    Listing listing{*year, {}};
    for (int day = 1; day <= std::min(file.Days(), DaysInYear(*year)); ++day)
        listing.Lines.push_back(LineOf(file.Day(day), day, *year, spacing));
    return listing;
}

void ShowStations(frmViewWeather& form) {
    form.OpenedAt = FillStations(form.ComboKESTA);
    form.lblKESTA.Visible = true;
    form.ComboKESTA.Visible = true;
}

bool ComboKESTA_Click(frmViewWeather& form) {
    if (!ChooseStation(form.ComboKESTA)) return false;
    form.lblKESTA.Visible = false;
    form.ComboKESTA.Visible = false;
    ShowStationOn(form, form.StatusBar1);
    return true;
}

/// A row that was only touched counts as picked when the user goes on.
bool ComboKESTA_Leave(frmViewWeather& form) {
    const bool isTouched = form.ComboKESTA.Selected() != nullptr && form.ComboKESTA.Index != form.OpenedAt;
    return !isTouched || ComboKESTA_Click(form);
}

void ShowUnits(frmViewWeather& form) {
    const bool english = State.EnglishUnits;
    form.lblm1.Caption = form.lblm2.Caption = english ? "F" : "C";
    form.Label12.Caption = form.Label13.Caption = "%";
    form.lblw1.Caption = english ? "mph" : "kph";
    form.lblw2.Caption = "ratio";
    form.lbls.Caption = english ? "langleys" : "MJ/sq.m.";
    form.lble.Caption = english ? "inches" : "mm";
}

void cmdOK_Click(frmViewWeather& form) {
    if (State.StationCode == NoStation) return ShowStations(form);
    const std::optional<Listing> listing = ListYear(form, OnScreen);
    if (!listing) return;
    form.txtData.Text = fmt::format("{}", fmt::join(listing->Lines, "\n"));
    form.lbldates.Caption = listing->Lines.empty()
                                ? fmt::format("No weather data exists for {}", listing->Year)
                                : fmt::format("Weather data from {} to {}", listing->FirstDay(), listing->LastDay());
    form.cmdPrint.Enabled = true;
    form.cmdPrintAll.Enabled = true;
    ShowUnits(form);
}

void cmdPrint_Click(frmViewWeather&) { PrintForm(FormName::frmViewWeather, CannotPrintForm); }

/// The lines above the days, as wide as these.
std::vector<std::string> Headings() {
    const std::string ahead = Blanks(5);
    return {ahead + "Date     Day    Max      Min    Max Rel  Min Rel   Wind    Day/Night   Solar     Pot.ET",
            ahead + "         No.    Temp     Temp   Humid.   Humid.    Speed   Wind Ratio  Rad.          ",
            ahead + (State.EnglishUnits
                         ? "                (F)      (F)      %        %       (mph)               langleys   (in)"
                         : "                (C)      (C)      %        %       (kph)               MJ/sq.m.   (mm)"),
            "   -----------------------------------------------------------------------------------------"};
}

PrintedDocument DocumentOf(const Listing& listing) {
    PrintedDocument document;
    document.Title = "Veraqua weather data";
    AddLines(document, Font{"Times Roman", 12},
             {"", "", fmt::format("Veraqua weather data from {} to {}", listing.FirstDay(), listing.LastDay()), "",
              fmt::format("{}KESTA Name is: {}", Blanks(4), State.StationName),
              "KESTA Station # is: " + State.StationCode, "", "", ""});
    const std::vector<std::string> headings = Headings();
    AddTable(document, TableFont, headings, headings.size());
    AddLines(document, TableFont, listing.Lines);
    return document;
}

void cmdPrintAll_Click(frmViewWeather& form) {
    const std::optional<Listing> listing = ListYear(form, OnPaper);
    if (listing) PrintDocument(DocumentOf(*listing), "Weather report was sent to your default printer");
}

void Leave(frmViewWeather&) { Unload(FormName::frmViewWeather); }

void Load(frmViewWeather& form) {
    ShowStationOn(form, form.StatusBar1);
    form.cmdPrint.Enabled = false;
    form.cmdPrintAll.Enabled = false;
    form.txtData.ReadOnly = true;
    form.lblKESTA.Visible = false;
    form.ComboKESTA.Visible = false;
    if (State.StationCode == NoStation) ShowStations(form);
}

}  // namespace

FormTable TableOf(frmViewWeather& form) {
    FormFor table(form, FormName::frmViewWeather, "frmViewWeather");
    table.Add("lblKESTA", form.lblKESTA);
    table.Add("ComboKESTA", form.ComboKESTA).Click(ComboKESTA_Click).Leave(ComboKESTA_Leave);
    table.Add("lbldates", form.lbldates);
    table.Add("Label10", form.Label10);
    table.Add("lblday", form.lblday);
    table.Add("Label1", form.Label1);
    table.Add("lblm1", form.lblm1);
    table.Add("Label2", form.Label2);
    table.Add("lblm2", form.lblm2);
    table.Add("Label6", form.Label6);
    table.Add("Label12", form.Label12);
    table.Add("Label5", form.Label5);
    table.Add("Label13", form.Label13);
    table.Add("Label4", form.Label4);
    table.Add("lblw1", form.lblw1);
    table.Add("Label3", form.Label3);
    table.Add("lblw2", form.lblw2);
    table.Add("Label7", form.Label7);
    table.Add("lbls", form.lbls);
    table.Add("Label8", form.Label8);
    table.Add("lble", form.lble);
    table.Add("txtData", form.txtData);
    table.Add("Label9", form.Label9);
    table.Add("txtYear", form.txtYear).EnterKey(cmdOK_Click);
    table.Add("cmdOK", form.cmdOK).Click(cmdOK_Click);
    table.Add("cmdPrint", form.cmdPrint).Click(cmdPrint_Click);
    table.Add("cmdPrintAll", form.cmdPrintAll).Click(cmdPrintAll_Click);
    table.Add("Cmd_Exit", form.Cmd_Exit).Click(Leave).Exit();
    table.Add("StatusBar1", form.StatusBar1);
    table.Load(Load).Close(Leave);
    return table.Done();
}

}  // namespace veraqua
