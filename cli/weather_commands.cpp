#include "catch_up/weather_commands.h"

#include <algorithm>

#include <fmt/format.h>

#include "cli/commands.h"
#include "cli/http_get.h"
#include "cli/weather_text.h"
#include "core/base/numbers.h"
#include "core/directory.h"
#include "core/state.h"
#include "weather/coverage.h"
#include "weather/default_weather.h"
#include "weather/import.h"
#include "weather/network_text.h"
#include "weather/reference_et.h"
#include "weather/weather_file.h"

namespace veraqua {

namespace {

/// Years have two digits in the names of weather files, so a longer range would meet itself.
constexpr int MostYears = 100;

/// Makes `code` the station in work. False after a message if it is no station code, or that of no station. "00" stands
/// for none, of which each command says itself what it makes.
bool ChooseStation(Session& session, const std::string& code) {
    const std::optional<std::int32_t> number = WholeNumber(code);
    if (!number || *number < 0 || *number > 99 || code.size() > 2) {
        session.Outside.Tell(fmt::format("\"{}\" is no station code: two digits, such as 06.", code));
        return false;
    }
    if (*number != 0 && !IsStation(*number)) {
        session.Outside.Tell(NoStationText(code));
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

/// The range of days that was typed; nothing after a message.
std::optional<DayRange> RangeFrom(Session& session, const std::string& from, const std::string& to) {
    const std::optional<JulianValue> first = session.DateFrom(from);
    if (!first) return std::nullopt;
    const std::optional<JulianValue> last = session.DateFrom(to);
    if (!last) return std::nullopt;
    if (YearOf(*last) - YearOf(*first) >= MostYears) {
        session.Outside.Tell(fmt::format("A range of weather must be shorter than {} years.", MostYears));
        return std::nullopt;
    }
    return DayRange{*first, *last};
}

/// The days that an import is to bring in; nothing after a message or a question that was answered no.
std::optional<DayRange> RangeOfImport(Session& session, const ImportOptions& options) {
    if (!options.From || !options.To) {
        std::optional<DayRange> range = ChooseRange(session.Outside, WeatherCommand::Append);
        // One text has the days of one year.
        if (range) range->From = std::max(range->From, JulianFromDate(1, 1, YearOf(range->To)));
        return range;
    }
    const std::optional<DayRange> range = RangeFrom(session, *options.From, *options.To);
    if (range) TakeRange(*range);
    return range;
}

/// Fetches the text of `year` from the network, as the download window does.
bool Fetch(CliAsk& outside, int year) {
    const HttpReply reply = HttpGet(NetworkUrl(year), [&outside](std::string_view state) { outside.ShowState(state); });
    if (reply.Succeeded)
        StoreNetworkText(year, reply.Body);
    else
        TellDownloadError(outside, reply);
    return reply.Succeeded;
}

int StatusOf(const CommandReport& report) {
    if (report.Ending != CommandEnding::Done) return ExitRefused;
    if (!report.CatchUp || report.CatchUp->Worst == UpdateStatus::Done) return ExitDone;
    return report.CatchUp->Worst == UpdateStatus::Failed ? ExitFailure : ExitRefused;
}

Json JsonOfImport(const CommandReport& report) {
    return {
        {"from", JsonOf(report.Range.From)}, {"to", JsonOf(report.Range.To)}, {"last_day", JsonOf(report.WeatherTo)}};
}

}  // namespace

int RunWeatherDefault(Session& session, const std::string& station, const std::string& from, const std::string& to) {
    if (!OpenStation(session, station)) return ExitRefused;
    if (!LocationIsChosen(session.Outside)) return ExitRefused;
    const std::optional<DayRange> range = RangeFrom(session, from, to);
    if (!range) return ExitRefused;
    WantWeather(*range);
    WriteDefaultWeather(*range);
    const int days = std::max(0, range->To - range->From + 1);
    session.Print({{"from", JsonOf(range->From)}, {"to", JsonOf(range->To)}, {"days", days}},
                  fmt::format("Weather files updated with DEFAULT Data between {} and {}\n",
                              JulianToShortText(range->From), JulianToShortText(range->To)));
    return ExitDone;
}

int RunWeatherImport(Session& session, const ImportOptions& options) {
    if (!OpenStation(session, options.Station) || !StationIsChosen(session.Outside)) return ExitRefused;
    files::Bytes text = files::ReadOutside(options.File, LargestNetworkText);
    if (text.find('\0') != files::Bytes::npos) {
        session.Outside.Tell(fmt::format("{} is no text of the weather network.", options.File));
        return ExitRefused;
    }
    files::ChangeSet changes;
    const std::optional<DayRange> range = RangeOfImport(session, options);
    if (!range) return ExitRefused;
    const auto takeText = [&text](int year) {
        files::Write(NetworkTextName(year), std::move(text));
        return true;
    };
    const auto report = ImportFetched(session.Outside, WeatherCommand::Append, *range, takeText);
    changes.Commit();
    if (!report) return ExitRefused;
    if (report->Ending == CommandEnding::Done) session.Print(JsonOfImport(*report), report->Status + "\n");
    return StatusOf(*report);
}

int RunWeatherFetch(Session& session, const std::string& station, bool overwrite) {
    if (!OpenStation(session, station)) return ExitRefused;
    const CommandReport report =
        BringWeather(session.Outside, overwrite ? WeatherCommand::Overwrite : WeatherCommand::Append,
                     [&session](int year) { return Fetch(session.Outside, year); });
    if (report.Ending == CommandEnding::Done) {
        Json json = JsonOfImport(report);
        json["fields_updated"] = report.CatchUp->Fields;
        session.Print(json, report.Status + "\n" + report.FieldsUpdated + "\n");
    }
    return StatusOf(report);
}

int RunWeatherCheck(Session& session, const std::string& station, int year) {
    if (!session.OpenData(files::Access::Write) || !ChooseStation(session, station)) return ExitRefused;
    const Coverage coverage = FindCoverage(session.Outside, year);
    if (!coverage.IsKnown()) return ExitRefused;
    const DayRange& needed = coverage.Needed;
    session.Print(
        {{"last_day", JsonOf(coverage.LastDay)}, {"need_from", JsonOf(needed.From)}, {"need_to", JsonOf(needed.To)}},
        coverage.Reach == Coverage::Kind::WeatherNeeded
            ? fmt::format("Weather data required from {} to {}\n", JulianToShortText(needed.From),
                          JulianToShortText(needed.To))
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
