#include "weather/forms/station_chooser.h"

#include <algorithm>
#include <string>

#include "catch_up/weather_commands.h"
#include "core/state.h"
#include "screen/forms.h"
#include "screen/screen.h"
#include "weather/forms/station_list.h"

namespace veraqua {

namespace {

enum class Source { None, Network, DefaultWeather };

Source SourceChosen(const frmKESTA& form) {
    if (form.Option[0].Chosen) return Source::Network;
    return form.Option[2].Chosen ? Source::DefaultWeather : Source::None;
}

/// Download first; after one that failed, the default weather.
void OfferSources(frmKESTA& form) {
    form.Option[0].Chosen = !State.DownloadFailed;
    form.Option[2].Chosen = State.DownloadFailed;
}

void LeaveWithoutChoice(frmKESTA&) {
    State.ReportCancelled = true;
    Unload(FormName::frmWeather);
    State.DownloadFailed = true;
    Unload(FormName::frmKESTA);
}

/// False, with `DownloadFailed` set if it was the weather that failed, where no further year is to be brought in.
bool BringYearFromNetwork(int year) {
    State.WeatherYearSuffix = YearSuffix(year);
    ShowModal(FormName::frmDownload);
    return !State.DownloadFailed && AppendForChooser(TheScreen()).Ending == CommandEnding::Done;
}

/// The weather screen writes the default weather and shows it, until the user has seen it.
void BringYearByDefault() {
    State.DownloadFailed = false;
    ShowModal(FormName::frmWeather);
    State.DownloadFailed = false;
}

/// The station whose weather is needed, and its range, which the work takes in years. The range is whole again at the
/// end; where a failure ends the work, the weather has not been obtained.
class Need {
  public:
    Need() = default;
    ~Need() {
        State.WeatherNeedFrom = From;
        State.WeatherNeedTo = To;
        if (!done_) State.DownloadFailed = true;
    }
    Need(const Need&) = delete;
    Need& operator=(const Need&) = delete;

    void Done() { done_ = true; }

    const std::string StationCode = State.StationCode;
    const std::string StationName = State.StationName;
    const JulianValue From = State.WeatherNeedFrom;
    const JulianValue To = State.WeatherNeedTo;

  private:
    bool done_ = false;
};

/// Brings in one year after the other, until one fails or the user stops it.
void BringYears(Source source) {
    Need need;
    const int lastYear = YearOf(need.To);
    for (int year = YearOf(need.From); year <= lastYear; ++year) {
        State.WeatherNeedFrom = std::max(need.From, JulianFromDate(1, 1, year));
        State.WeatherNeedTo = std::min(need.To, JulianFromDate(12, 31, year));
        // On the weather screen the user may have picked another one.
        if (!TakeUpStation(need.StationCode, need.StationName)) break;
        if (source == Source::DefaultWeather)
            BringYearByDefault();
        else if (!BringYearFromNetwork(year))
            break;
    }
    need.Done();
}

bool HasRange() {
    if (State.WeatherNeedFrom == 0) TheScreen().Tell("StartDay = 0", "frmKESTA error");
    if (State.WeatherNeedTo == 0) TheScreen().Tell("StopDay = 0", "frmKESTA error");
    return State.WeatherNeedFrom != 0 && State.WeatherNeedTo != 0;
}

void cmd_return_Click(frmKESTA& form) {
    State.CallerForm = "frmKESTA";
    if (!HasRange()) return;
    const Source source = SourceChosen(form);
    if (source == Source::None) return LeaveWithoutChoice(form);
    Hide(FormName::frmKESTA);
    BringYears(source);
    if (State.DownloadFailed)
        OfferSources(form);  // the weather check shows this window again
    else
        Unload(FormName::frmKESTA);
}

void Load(frmKESTA& form) {
    OfferSources(form);
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
    return table.Done();
}

}  // namespace veraqua
