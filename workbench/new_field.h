#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/ask.h"
#include "engine/season_run.h"
#include "workbench/refused.h"
#include "workbench/soil_entry.h"

/// A new field, from its crop to its first run. Until `StartField` it stands in no file, only in the header in memory
/// and in an unused row of the directory.
namespace veraqua {

/// The row that a new field takes.
OrRefused<int> RowForNewField();

/// Number of the crop of this name in `CropNames`, from 1: the very name, or else one that differs in case alone.
std::optional<int> CropCalled(std::string_view name);

/// What is entered of a new field but its soil, as typed.
struct FieldEntry {
    std::string FieldId;
    std::string PlantDate;  ///< of hay the onset of growth
    int Station = 0;        ///< number of its name in `DefaultStations`, from 1; 0: none
    std::string Efficiency = "75";
    std::string Mad = "50";
    std::string MadCritical;  ///< hay only
    std::string RootDepth;    ///< deepest, inches or mm; of an ordinary crop the crop's own unless above 0
    std::string DryDays;      ///< hay only
    float CropRootMax = 0;    ///< deepest root depth of the crop, m
};

/// With what the entry of a field of the crop in work starts.
FieldEntry StartingEntry();

/// A root depth in the unit of entry.
std::string DepthText(float metres);

/// What each entry has to be when it is left.
std::optional<Refused> CheckPlantDate(std::string_view typed);
std::optional<Refused> CheckMad(std::string_view typed);
std::optional<Refused> CheckEfficiency(std::string_view typed);
std::optional<Refused> CheckMadCritical(std::string_view typed);
std::optional<Refused> CheckHayRootDepth(std::string_view typed);
std::optional<Refused> CheckDryDays(std::string_view typed);

/// How a station is picked: each way refuses stations of its own as off-line.
enum class StationPick { Clicked, Typed };

/// Makes the station of `number` the one in work; 0: none.
std::optional<Refused> PickStation(int number, StationPick how);

/// Checks what was entered and takes it into the header and the row of the field in work. An accepted planting date
/// becomes the long date text. RunTimeFailure on a depth beyond a single.
std::optional<Refused> DescribeField(Ask& ask, FieldEntry& entry);

/// Whether there is weather for the field that was described, or the user has seen to it.
bool FindWeather(Ask& ask);

struct StartedField {
    int Row = 0;
    RunOutcome FirstRun = RunOutcome::Done;
};

/// Makes the file of the field that was described, with its soil, and runs it for the first time, as one set of
/// changes. RunTimeFailure, with nothing written, where the run fails.
StartedField StartField(Ask& ask, const EnteredSoil& soil);

}  // namespace veraqua
