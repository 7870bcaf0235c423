#include "catch_up/weather_commands.h"

#include <algorithm>

#include <fmt/format.h>

#include "core/base/numbers.h"
#include "core/files/files.h"
#include "core/state.h"
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

/// False if the user wants no default days in the place of those that the text lacks.
bool AcceptsMissingDays(Ask& ask, int lines, int year) {
    const JulianValue expected = State.WeatherNeedTo - JulianFromDate(1, 1, year) + 1;
    if (lines >= expected) return true;
    return ask.YesNo(fmt::format("KESTA data is missing {} days worth of data.\n"
                                 "Do you wish to continue and use default data for the missing days?",
                                 expected - lines),
                     "Weather Info", Icon::Question, true);
}

void TellWindlessDays(Ask& ask, const std::vector<JulianValue>& days) {
    if (days.empty()) return;
    std::string text = "No wind was measured on";
    for (const JulianValue day : days) text += " " + JulianToShortText(day);
    ask.Tell(text + ". Please correct the wind there: the reference evapotranspiration of such a day can't be right.",
             "Weather Info", Icon::Information);
}

bool AppendRange(Ask& ask, int year) {
    if (State.WeatherLastJulian < Yesterday()) {
        FindMissingDays(year);
        return true;
    }
    if (!ask.YesNo("Your weather data is already up-to-date\n  Do you want to overwrite it?", "Weather Info",
                   Icon::Question, true)) {
        State.WeatherLastJulian = std::max(State.WeatherLastJulian, State.WeatherNeedTo);
        return false;
    }
    State.WeatherNeedFrom = JulianFromDate(1, 1, year);
    if (State.WeatherNeedTo < State.WeatherNeedFrom) State.WeatherNeedTo = Yesterday();
    return true;
}

}  // namespace

bool StationIsChosen(Ask& ask) {
    if (State.StationCode != NoStation) return true;
    ask.Tell("Please select your KESTA weather station first.", "Missing KESTA Station");
    return false;
}

std::string NetworkFileName() { return State.StationCode + State.WeatherYearSuffix + "rd.txt"; }

void StoreNetworkText(std::string_view body) {
    const std::string text = WithPlainLineEnds(body);
    files::ChangeSet changes;
    files::Write(NetworkFileName(), text);
    files::Write("kesta." + State.WeatherYearSuffix, text);
    changes.Commit();
}

JulianValue FindMissingDays(int year) {
    const JulianValue last = LastWeatherJulian(State.StationCode, year);
    State.WeatherNeedFrom = last == 0 ? JulianFromDate(1, 1, year) : last + 1;
    State.WeatherNeedTo = Yesterday();
    // The day after the last may be a 1 January.
    State.WeatherYearSuffix = YearSuffix(YearOf(State.WeatherNeedFrom));
    return last;
}

bool ChooseRange(Ask& ask, WeatherCommand command) {
    const int year = YearOf(ask.Now());
    State.WeatherYearSuffix = YearSuffix(year);
    State.WeatherLastJulian = LastWeatherJulian(State.StationCode, year);
    if (command == WeatherCommand::Append) return AppendRange(ask, year);
    State.WeatherNeedFrom = JulianFromDate(1, 1, year);
    State.WeatherNeedTo = Yesterday();
    return true;
}

CommandReport ImportRange(Ask& ask, WeatherCommand command, bool oneYear) {
    CommandReport report;
    const ImportWording& wording = WordingOf(command);
    const int year = YearOf(State.WeatherNeedFrom);
    const auto text = files::Read(NetworkTextName(year));
    if (!text) {
        TellTextMissing(ask, wording, year);
        report.Ending = CommandEnding::Failed;
        return report;
    }
    if (!AcceptsMissingDays(ask, CountLines(*text), year)) {
        report.Ending = CommandEnding::Declined;
        return report;
    }
    const ImportOutcome outcome = ImportWeather(ask, wording, oneYear);
    report.LastDay = outcome.LastDay;
    if (!outcome.Imported) {
        report.Ending = CommandEnding::Failed;
        return report;
    }
    TellWindlessDays(ask, outcome.WindlessDays);
    State.WeatherLastJulian = std::max(State.WeatherLastJulian, State.WeatherNeedTo);
    report.Status = "Weather file updated from KESTA between " + JulianToShortText(State.WeatherNeedFrom) + " and " +
                    JulianToShortText(State.WeatherNeedTo);
    return report;
}

CommandReport BringWeather(Ask& ask, WeatherCommand command, const std::function<void()>& download) {
    if (!StationIsChosen(ask)) return {CommandEnding::StationMissing, {}, {}, {}, {}};
    if (!ChooseRange(ask, command)) return {CommandEnding::Declined, {}, {}, {}, {}};
    download();
    if (State.DownloadFailed) {
        TellDownloadFailed(ask);
        return {CommandEnding::Failed, {}, {}, {}, {}};
    }
    CommandReport report = ImportRange(ask, command, false);
    if (report.Ending != CommandEnding::Done) return report;
    report.CatchUp =
        UpdateFieldsForStation(ask, command == WeatherCommand::Append ? "Updating fields" : "Updating fields!");
    report.FieldsUpdated = "Fields updated: " + Masked(static_cast<double>(report.CatchUp->Fields), "00");
    return report;
}

CommandReport AppendForChooser(Ask& ask) {
    if (State.DownloadFailed) {
        TellDownloadFailed(ask);
        return {CommandEnding::Failed, {}, {}, {}, {}};
    }
    return ImportRange(ask, WeatherCommand::Append, true);
}

}  // namespace veraqua
