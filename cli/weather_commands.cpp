#include "catch_up/weather_commands.h"

#include <algorithm>

#include <fmt/format.h>

#include "cli/commands.h"
#include "cli/weather_text.h"
#include "core/base/numbers.h"
#include "core/directory.h"
#include "core/state.h"
#include "screen/headless.h"
#include "weather/coverage.h"
#include "weather/default_weather.h"
#include "weather/forms/weather_menu.h"
#include "weather/import.h"
#include "weather/network_text.h"
#include "weather/reference_et.h"
#include "weather/weather_file.h"

namespace veraqua {

namespace {

/// Years have two digits in the names of weather files, so a longer range would meet itself.
constexpr int MostYears = 100;

/// Makes `code` the station in work. False after a message if it is no station code.
bool ChooseStation(Session& session, const std::string& code) {
    const std::optional<std::int32_t> number = WholeNumber(code);
    if (!number || *number < 0 || *number > 99 || code.size() > 2) {
        session.Outside.Tell(fmt::format("\"{}\" is no station code: two digits, such as 06.", code));
        return false;
    }
    State.StationCode = fmt::format("{:02}", *number);
    State.StationName = StationNameOf(State.StationCode);
    return true;
}

/// Opens the data directory for writing, chooses the station and loads its default weather.
bool OpenStation(Session& session, const std::string& code) {
    return session.OpenData(files::Access::Write) && ChooseStation(session, code) &&
           LoadWeatherCoefficients(session.Outside, RegionOfStation(State.StationCode));
}

bool SetRange(Session& session, const std::string& from, const std::string& to) {
    const std::optional<JulianValue> first = session.DateFrom(from);
    if (!first) return false;
    const std::optional<JulianValue> last = session.DateFrom(to);
    if (!last) return false;
    if (YearOf(*last) - YearOf(*first) >= MostYears) {
        session.Outside.Tell(fmt::format("A range of weather must be shorter than {} years.", MostYears));
        return false;
    }
    State.WeatherNeedFrom = *first;
    State.WeatherNeedTo = *last;
    return true;
}

/// The range of an import and the last day of weather before it.
bool SetImportRange(Session& session, const ImportOptions& options) {
    if (!options.From || !options.To) return ChooseRange(session.Outside, WeatherCommand::Append);
    if (!SetRange(session, *options.From, *options.To)) return false;
    State.WeatherLastJulian = LastWeatherJulian(State.StationCode, YearOf(State.WeatherNeedTo));
    return true;
}

int StatusOf(const CommandReport& report) {
    if (report.Ending != CommandEnding::Done) return ExitRefused;
    if (!report.CatchUp || report.CatchUp->Worst == UpdateStatus::Done) return ExitDone;
    return report.CatchUp->Worst == UpdateStatus::Failed ? ExitFailure : ExitRefused;
}

Json JsonOfImport() {
    return {{"from", JsonOf(State.WeatherNeedFrom)},
            {"to", JsonOf(State.WeatherNeedTo)},
            {"last_day", JsonOf(State.WeatherLastJulian)}};
}

}  // namespace

int RunWeatherDefault(Session& session, const std::string& station, const std::string& from, const std::string& to) {
    if (!OpenStation(session, station)) return ExitRefused;
    if (State.StationCode == NoStation) {
        session.Outside.Tell("Please select your KESTA weather location first.");
        return ExitRefused;
    }
    if (!SetRange(session, from, to)) return ExitRefused;
    WriteDefaultWeather();
    const int days = std::max(0, State.WeatherNeedTo - State.WeatherNeedFrom + 1);
    session.Print({{"from", JsonOf(State.WeatherNeedFrom)}, {"to", JsonOf(State.WeatherNeedTo)}, {"days", days}},
                  fmt::format("Weather files updated with DEFAULT Data between {} and {}\n",
                              JulianToShortText(State.WeatherNeedFrom), JulianToShortText(State.WeatherNeedTo)));
    return ExitDone;
}

int RunWeatherImport(Session& session, const ImportOptions& options) {
    if (!OpenStation(session, options.Station) || !StationIsChosen(session.Outside)) return ExitRefused;
    files::Bytes text = files::ReadOutside(options.File, LargestNetworkText);
    files::ChangeSet changes;
    if (!SetImportRange(session, options)) return ExitRefused;
    files::Write(NetworkTextName(YearOf(State.WeatherNeedFrom)), std::move(text));
    const CommandReport report = ImportRange(session.Outside, WeatherCommand::Append, false);
    changes.Commit();
    if (report.Ending == CommandEnding::Done) session.Print(JsonOfImport(), report.Status + "\n");
    return StatusOf(report);
}

int RunWeatherFetch(Session& session, const std::string& station, bool overwrite) {
    if (!OpenStation(session, station)) return ExitRefused;
    Show(FormName::frmWeather);
    At(FormName::frmWeather).Click(overwrite ? "mnu_OverwriteWeather" : "mnu_AppendWeather");
    const CommandReport& report = The<frmWeather>().Report;
    if (report.Ending == CommandEnding::Done) {
        Json json = JsonOfImport();
        json["fields_updated"] = report.CatchUp->Fields;
        session.Print(json, report.Status + "\n" + report.FieldsUpdated + "\n");
    }
    return StatusOf(report);
}

int RunWeatherCheck(Session& session, const std::string& station, int year) {
    if (!session.OpenData(files::Access::Write) || !ChooseStation(session, station)) return ExitRefused;
    const Coverage coverage = FindCoverage(session.Outside, year);
    if (coverage == Coverage::RegionMissing) return ExitRefused;
    const bool needed = coverage == Coverage::WeatherNeeded;
    session.Print({{"last_day", JsonOf(State.WeatherLastJulian)},
                   {"need_from", JsonOf(needed ? State.WeatherNeedFrom : 0)},
                   {"need_to", JsonOf(needed ? State.WeatherNeedTo : 0)}},
                  needed ? fmt::format("Weather data required from {} to {}\n",
                                       JulianToShortText(State.WeatherNeedFrom), JulianToShortText(State.WeatherNeedTo))
                         : "Weather is up to date.\n");
    return ExitDone;
}

int RunWeatherShow(Session& session, const std::string& station, int year) {
    if (!session.OpenData(files::Access::Read) || !ChooseStation(session, station)) return ExitRefused;
    const WeatherFile file(State.StationCode, year);
    std::vector<WeatherDay> days;
    Json json = Json::array();
    for (int day = 1; day <= file.Days(); ++day) {
        days.push_back(file.Day(day));
        json.push_back(JsonOf(days.back()));
    }
    session.Print(json, TextOfWeather(days));
    return ExitDone;
}

int RunWeatherEto(Session& session, const WeatherDay& day) {
    const float referenceET = ReferenceEvapotranspiration(day);
    session.Print({{"reference_et", referenceET}}, Plain(static_cast<double>(referenceET)) + " mm\n");
    return ExitDone;
}

}  // namespace veraqua
