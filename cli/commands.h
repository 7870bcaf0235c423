#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/session.h"
#include "workbench/harvest.h"
#include "workbench/water.h"

/// What each command of veraqua-cli does. Each does the deeds that the forms do, prints the
/// outcome and returns the exit status.
namespace veraqua {

int RunInit(Session& session, bool sample);
int RunCrops(Session& session);
int RunStations(Session& session);

int RunFields(Session& session);
/// All fields if `rows` is empty.
int RunFieldUpdate(Session& session, std::vector<int> rows);
int RunFieldShow(Session& session, int row);
/// As comma-separated values if `csv`.
int RunFieldDays(Session& session, int row, bool csv);
int RunFieldChart(Session& session, int row);

/// What `field new` was given, as typed.
struct NewFieldOptions {
    std::string Crop;
    std::string Id;
    std::string PlantDate;
    std::string Station;
    std::optional<std::string> Mad;
    std::optional<std::string> MadCritical;
    std::optional<std::string> Efficiency;
    std::optional<std::string> Root;
    std::optional<std::string> DryDays;
    std::vector<std::string> Layers;  ///< THICKNESS:CAPACITY:CONTENT
    std::optional<std::string> Interval;
    std::vector<std::string> Zones;  ///< CAPACITY:CONTENT
    std::optional<int> CopySoil;     ///< row of the field to copy from
};

int RunFieldNew(Session& session, const NewFieldOptions& options);

enum class Adjustment { Mad, Efficiency, Depletion };

/// `critical` goes with the MAD of hay.
int RunFieldSet(Session& session, int row, Adjustment what, const std::string& value,
                const std::optional<std::string>& critical);
int RunFieldReset(Session& session, int row);
int RunFieldHarvest(Session& session, int row, DamagedField damaged);
int RunFieldRestore(Session& session, const std::string& backup);

int RunWaterAdd(Session& session, int row, Water kind, const std::string& date, const std::string& amount);
int RunWaterDelete(Session& session, int row, Water kind, const std::string& date);
int RunCutAdd(Session& session, int row, const std::string& date, const std::string& number);
int RunCutDelete(Session& session, int row, const std::string& date);

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
