#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/session.h"

/// What each command of veraqua-cli does. Each sets the state, calls the routines that the forms call, prints the
/// outcome and returns the exit status.
namespace veraqua {

int RunInit(Session& session, bool sample);
int RunCrops(Session& session);
int RunStations(Session& session);

int RunFields(Session& session);
/// All fields if `rows` is empty.
int RunFieldUpdate(Session& session, std::vector<int> rows);
int RunFieldShow(Session& session, int row);
int RunFieldDays(Session& session, int row);

/// Into `file`, or on stdout without one.
int RunSchedule(Session& session, const std::optional<std::string>& file);
int RunReport(Session& session, int row, const std::optional<std::string>& file);

struct ImportOptions {
    std::string Station;
    std::string File;
    std::optional<std::string> From;  ///< both or none
    std::optional<std::string> To;
};

int RunWeatherDefault(Session& session, const std::string& station, const std::string& from, const std::string& to);
int RunWeatherImport(Session& session, const ImportOptions& options);
int RunWeatherFetch(Session& session, const std::string& station, bool overwrite);
int RunWeatherCheck(Session& session, const std::string& station, int year);
int RunWeatherShow(Session& session, const std::string& station, int year);
int RunWeatherEto(Session& session, const WeatherDay& day);

}  // namespace veraqua
