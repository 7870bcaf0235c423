#include "weather/forms/station_chooser.h"

#include <algorithm>
#include <string>

#include "catch_up/weather_commands.h"
#include "core/field_in_work.h"
#include "core/state.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "weather/forms/download.h"
#include "weather/forms/station_list.h"
#include "weather/forms/weather_menu.h"

namespace veraqua {

namespace {

enum class Source { None, Network, DefaultWeather };

Source SourceChosen(const frmKESTA& form) {
    if (form.Option[0].Chosen) return Source::Network;
    return form.Option[2].Chosen ? Source::DefaultWeather : Source::None;
}

/// Download first; after one that failed, the default weather.
void OfferSources(frmKESTA& form, bool downloadHasFailed) {
    form.Option[0].Chosen = !downloadHasFailed;
    form.Option[2].Chosen = downloadHasFailed;
}

void LeaveWithoutChoice(frmKESTA&) {
    Unload(FormName::frmWeather);
    Unload(FormName::frmKESTA);
}

/// What has come of one year.
enum class YearEnding {
    Brought,
    Declined,  ///< by the user: no further year is to be brought in
    Failed,
};

YearEnding BringYearFromNetwork(const DayRange& range) {
    State.WeatherYearSuffix = YearSuffix(YearOf(range.From));
    const auto report = ImportFetched(TheScreen(), WeatherCommand::Append, range, DownloadText, OpenDays::Offer);
    if (!report) return YearEnding::Failed;
    switch (report->Ending) {
        case CommandEnding::Done: return YearEnding::Brought;
        case CommandEnding::Failed: return YearEnding::Failed;
        default: return YearEnding::Declined;
    }
}

/// The weather screen writes the default weather and shows it, until the user has seen it.
YearEnding BringYearByDefault(const DayRange& range) {
    ShowDefaultWeather(range);
    return YearEnding::Brought;
}

/// Brings in one year of `wanted` after the other, until one fails or the user stops it. False where one has failed.
bool BringYears(Source source, const DayRange& wanted) {
    const InWork before;
    const int lastYear = YearOf(wanted.To);
    for (int year = YearOf(wanted.From); year <= lastYear; ++year) {
        // On the weather screen the user may have picked another one.
        if (!TakeUpStation(before)) return false;
        const DayRange ofYear{std::max(wanted.From, JulianFromDate(1, 1, year)),
                              std::min(wanted.To, JulianFromDate(12, 31, year))};
        const YearEnding ending =
            source == Source::DefaultWeather ? BringYearByDefault(ofYear) : BringYearFromNetwork(ofYear);
        if (ending != YearEnding::Brought) return ending == YearEnding::Declined;
    }
    return true;
}

bool HasRange(const DayRange& range) {
    if (range.From == 0) TheScreen().Tell("StartDay = 0", "frmKESTA error");
    if (range.To == 0) TheScreen().Tell("StopDay = 0", "frmKESTA error");
    return range.From != 0 && range.To != 0;
}

void cmd_return_Click(frmKESTA& form) {
    State.CallerForm = "frmKESTA";
    if (!HasRange(form.Wanted)) return;
    const Source source = SourceChosen(form);
    if (source == Source::None) return LeaveWithoutChoice(form);
    Hide(FormName::frmKESTA);
    form.Choice = WeatherChoice::Failed;  // also where the disk ends the work
    if (BringYears(source, form.Wanted)) {
        form.Choice = WeatherChoice::Taken;
        Unload(FormName::frmKESTA);
    } else {
        OfferSources(form, true);  // the weather check shows this window again
    }
}

void Load(frmKESTA& form) {
    OfferSources(form, false);
    const std::string& code = State.StationCode;
    form.lbl_coldweather.Visible = code == "30" || code == "31" || code == "32";
}

}  // namespace

FormTable TableOf(frmKESTA& form) {
    FormFor table(form, FormName::frmKESTA, "frmKESTA");
    table.Add("Label5", form.Label5);
    table.Add("Option(0)", form.Option[0]);
    table.Add("Label00", form.Label00);
    table.Add("Option(2)", form.Option[2]);
    table.Add("Label02", form.Label02);
    table.Add("lbl_coldweather", form.lbl_coldweather);
    table.Add("cmd_return", form.cmd_return).Click(cmd_return_Click);
    table.Load(Load).Close(LeaveWithoutChoice);
    FormTable done = table.Done();
    done.Reset = [&form] {
        frmKESTA fresh;
        fresh.Wanted = form.Wanted;
        form = fresh;
    };
    return done;
}

WeatherChoice AskForWeatherSource(const DayRange& wanted) {
    The<frmKESTA>().Wanted = wanted;
    The<frmKESTA>().Choice = WeatherChoice::Left;
    ShowModal(FormName::frmKESTA);
    return The<frmKESTA>().Choice;
}

}  // namespace veraqua
