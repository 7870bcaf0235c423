#include "catch_up/weather_commands.h"

#include <algorithm>

#include <fmt/format.h>

#include "catch_up/gathered_messages.h"
#include "core/base/numbers.h"
#include "core/files/files.h"
#include "core/state.h"
#include "weather/coverage.h"
#include "weather/default_weather.h"
#include "weather/import.h"
#include "weather/network_text.h"
#include "weather/weather_file.h"

namespace veraqua {

namespace {

constexpr ImportWording AppendWording{"Wrong YEAR found in Weather download.  Try again",
                                      "Wrong KESTA station downloaded.  Try again", " was not downloaded",
                                      "KESTA Warning"};
constexpr ImportWording OverwriteWording{"Wrong YEAR found in Weather download.  Try again!",
                                         "Wrong KESTA station downloaded.  Try again!", " was not downloaded!",
                                         "Warning!"};

const ImportWording& WordingOf(WeatherCommand command) {
    return command == WeatherCommand::Append ? AppendWording : OverwriteWording;
}

JulianValue Yesterday() { return State.TodayJulian - 1; }

/// Weather has been brought in through `day`.
void RaiseLastDay(JulianValue day) { State.WeatherLastJulian = std::max(State.WeatherLastJulian, day); }

CommandReport Ended(CommandEnding ending, const DayRange& range = {}) {
    CommandReport report;
    report.Ending = ending;
    report.Range = range;
    return report;
}

/// The wanted weather has not been obtained.
CommandReport Failed(const DayRange& range) {
    State.DownloadFailed = true;
    return Ended(CommandEnding::Failed, range);
}

/// False if the user wants no default days in the place of those that the text lacks.
bool AcceptsMissingDays(Ask& ask, int lines, const DayRange& range) {
    const JulianValue expected = range.To - JulianFromDate(1, 1, YearOf(range.From)) + 1;
    if (lines >= expected) return true;
    return ask.YesNo(fmt::format("KESTA data is missing {} days worth of data.\n"
                                 "Do you wish to continue and use default data for the missing days?",
                                 expected - lines),
                     "Weather Info", Icon::Question, true);
}

std::string StatusText(const DayRange& range) {
    return "Weather file updated from KESTA between " + JulianToShortText(range.From) + " and " +
           JulianToShortText(range.To);
}

/// The import has ended early: says so, and where the weather ends now. Days of the range that are open then become
/// default days if they are offered and the user wants them.
void SettleOpenDays(Ask& ask, const ImportOutcome& outcome, const DayRange& range, OpenDays openDays) {
    if (outcome.EndedBefore == 0) return;
    const DayRange open{WeatherReaches(range) + 1, range.To};
    const std::string text = fmt::format(
        "The import has ended before {}: the text {}. Weather is there through {}. Download again when the network has "
        "the day, enter it by hand, or load default data for it.",
        JulianToShortText(outcome.EndedBefore),
        outcome.EndedByMissing ? "lacks a value of that day" : "has no line for it", JulianToShortText(open.From - 1));
    constexpr std::string_view title = "Weather Info";
    if (openDays == OpenDays::Tell || open.From > open.To) return ask.Tell(text, title, Icon::Information);
    if (ask.YesNo(fmt::format("{}\nUse default data from {} to {}?", text, JulianToShortText(open.From),
                              JulianToShortText(open.To)),
                  title, Icon::Question, true))
        WriteDefaultWeather(open);
}

void TellWindlessDays(Ask& ask, const std::vector<JulianValue>& days) {
    if (days.empty()) return;
    std::string text = "No wind was measured on";
    for (const JulianValue day : days) text += " " + JulianToShortText(day);
    ask.Tell(text + ". Please correct the wind there: the reference evapotranspiration of such a day can't be right.",
             "Weather Info", Icon::Information);
}

/// Last stored day of a year whose file, if there is one, stays as it is; 0 if there is none.
JulianValue LastStoredDay(int year) {
    return files::Exists(WeatherFileName(State.StationCode, year)) ? LastWeatherJulian(State.StationCode, year) : 0;
}

std::optional<DayRange> AppendedRange(Ask& ask, int year) {
    if (State.WeatherLastJulian == 0) {
        DayRange missing = FindMissingDays(year);
        if (const JulianValue last = LastStoredDay(year - 1)) missing.From = last + 1;
        return missing;
    }
    if (State.WeatherLastJulian < Yesterday()) return FindMissingDays(year);
    if (!ask.YesNo("Your weather data is already up-to-date\n  Do you want to overwrite it?", "Weather Info",
                   Icon::Question, true)) {
        RaiseLastDay(State.WeatherNeedTo);
        return std::nullopt;
    }
    // Where weather of this year was wanted before, its last day stays the one that is wanted.
    const JulianValue first = JulianFromDate(1, 1, year);
    return DayRange{first, State.WeatherNeedTo < first ? Yesterday() : State.WeatherNeedTo};
}

std::string NetworkFileName(int year) { return State.StationCode + YearSuffix(year) + "rd.txt"; }

}  // namespace

bool StationIsChosen(Ask& ask) {
    if (State.StationCode != NoStation) return true;
    ask.Tell("Please select your KESTA weather station first.", "Missing KESTA Station");
    return false;
}

bool LocationIsChosen(Ask& ask) {
    if (State.StationCode != NoStation) return true;
    ask.Tell("Please select your KESTA weather location first.");
    return false;
}

std::string FieldsUpdatedText(int fields) { return "Fields updated: " + Masked(static_cast<double>(fields), "00"); }

std::string NetworkUrl(int year) { return State.BaseUrl + NetworkFileName(year); }

void TellDownloadError(Ask& ask, const HttpReply& reply, std::string_view advice) {
    ask.Tell(fmt::format("{}: {}{}{}", reply.Code, reply.Text, advice.empty() ? "" : "\n\n", advice), "Download Error");
}

void StoreNetworkText(int year, std::string_view body) {
    const std::string text = WithPlainLineEnds(body);
    files::ChangeSet changes;
    files::Write(NetworkFileName(year), text);
    files::Write(NetworkTextName(year), text);
    changes.Commit();
}

DayRange FindMissingDays(int year) {
    const JulianValue last = LastWeatherJulian(State.StationCode, year);
    const DayRange missing{last == 0 ? JulianFromDate(1, 1, year) : last + 1, Yesterday()};
    WantWeather(missing);
    // The day after the last may be a 1 January.
    State.WeatherYearSuffix = YearSuffix(YearOf(missing.From));
    return missing;
}

std::optional<DayRange> ChooseRange(Ask& ask, WeatherCommand command) {
    const int year = YearOf(ask.Now());
    State.WeatherYearSuffix = YearSuffix(year);
    State.WeatherLastJulian = LastWeatherJulian(State.StationCode, year);
    const std::optional<DayRange> range = command == WeatherCommand::Append
                                              ? AppendedRange(ask, year)
                                              : DayRange{JulianFromDate(1, 1, year), Yesterday()};
    if (range && range->To < range->From) {
        ask.Tell(fmt::format("There is no weather of {} to bring in yet.", year), "Weather Info");
        return std::nullopt;
    }
    if (range) WantWeather(*range);
    return range;
}

void TakeRange(const DayRange& range) {
    WantWeather(range);
    State.WeatherLastJulian = LastWeatherJulian(State.StationCode, YearOf(range.To));
}

CommandReport ImportRange(Ask& ask, WeatherCommand command, const DayRange& range, OpenDays openDays) {
    const ImportWording& wording = WordingOf(command);
    const int year = YearOf(range.From);
    const auto text = files::Read(NetworkTextName(year));
    if (!text) {
        TellTextMissing(ask, wording, year);
        return Failed(range);
    }
    if (!AcceptsMissingDays(ask, CountLines(*text), range)) return Ended(CommandEnding::Declined, range);
    const ImportOutcome outcome = ImportWeather(ask, wording, range);
    if (!outcome.Imported) return Failed(range);
    TellWindlessDays(ask, outcome.WindlessDays);
    SettleOpenDays(ask, outcome, range, openDays);
    RaiseLastDay(range.To);
    CommandReport report = Ended(CommandEnding::Done, range);
    report.WeatherTo = State.WeatherLastJulian;
    report.LastLine = outcome.LastDay;
    report.Status = StatusText(range);
    return report;
}

std::optional<CommandReport> ImportFetched(Ask& ask, WeatherCommand command, const DayRange& range,
                                           const Download& download, OpenDays openDays) {
    const int year = YearOf(range.From);
    const std::string name = NetworkTextName(year);
    const auto earlier = files::Read(name);
    if (!download(year)) return std::nullopt;
    CommandReport report = ImportRange(ask, command, range, openDays);
    const auto fetched = files::Read(name);
    if (earlier && fetched && !TextServes(*fetched, range)) {
        files::ChangeSet changes;
        files::Write(name, *earlier);
        changes.Commit();
    }
    return report;
}

CommandReport FetchWeather(Ask& ask, WeatherCommand command, const Download& download, OpenDays openDays) {
    if (!StationIsChosen(ask)) return Ended(CommandEnding::StationMissing);
    const std::optional<DayRange> range = ChooseRange(ask, command);
    if (!range) return Ended(CommandEnding::Declined);
    const auto fetch = [&](const DayRange& ofYear) {
        State.DownloadFailed = false;
        if (auto report = ImportFetched(ask, command, ofYear, download, openDays)) return *std::move(report);
        TellDownloadFailed(ask);
        return Failed(ofYear);
    };
    const JulianValue newYear = JulianFromDate(1, 1, YearOf(range->To));
    if (range->From >= newYear) return fetch(*range);
    // Last year's text that can't be had keeps nobody from this year's.
    const CommandReport lastYear = fetch({range->From, newYear - 1});
    CommandReport report = fetch({newYear, range->To});
    if (lastYear.Ending != CommandEnding::Done || report.Ending != CommandEnding::Done) return report;
    report.Range = *range;
    report.Status = StatusText(*range);
    return report;
}

CommandReport BringWeather(Ask& ask, WeatherCommand command, const Download& download, OpenDays openDays) {
    CommandReport report = FetchWeather(ask, command, download, openDays);
    if (report.Ending != CommandEnding::Done) return report;
    const std::string_view what = command == WeatherCommand::Append ? "Updating fields" : "Updating fields!";
    if (openDays == OpenDays::Offer) {  // someone sits before a window: ten equal messages are nine too many
        GatheredMessages gathered(ask);
        report.CatchUp = UpdateFieldsForStation(gathered, what);
        gathered.TellAll();
    } else {
        report.CatchUp = UpdateFieldsForStation(ask, what);
    }
    report.FieldsUpdated = FieldsUpdatedText(report.CatchUp->Fields);
    return report;
}

void BringDefaultWeather(const DayRange& range) {
    WriteDefaultWeather(range);
    RaiseLastDay(range.To);
}

}  // namespace veraqua
