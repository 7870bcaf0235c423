#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/ask.h"
#include "core/field_file.h"

/// The field report: the full record of one field.
namespace veraqua {

/// What a field report says, in one unit system, whatever it is put on.
struct FieldReport {
    std::string FieldId;   ///< of the directory's row, with all blanks
    std::string CropName;  ///< likewise
    std::string PlantDay;
    std::string Mad;         ///< percent
    std::string Efficiency;  ///< percent
    std::string TotalIrrigation;
    std::string TotalRainfall;
    std::string TotalLeaching;
    std::vector<std::string> Capacity;  ///< soil lines
    std::vector<std::string> InitialContent;
    std::vector<std::string> Predictions;
    std::vector<std::string> History;  ///< the table of days, with its heading
};

/// `row` is the field's row of the directory. RunTimeFailure where the numbers of the file can't be computed with.
FieldReport GatherFieldReport(const FieldFile& file, const StatRecord& row, bool english);

/// The report as it is saved. `today` is the day that it shows as its own.
std::string FieldReportText(const FieldReport& report, JulianValue today);

/// The report of the field in row `row` of the directory; the state stays as it is. Nothing if the field's file is
/// missing, after the user has been told. RunTimeFailure, naming the file, if it is damaged.
std::optional<std::string> FieldReportText(Ask& ask, int row);

/// Saves it to `ReportFileName`, by default Field.txt in the data directory, and tells so. False if the field's file is
/// missing, after the user has been told.
bool SaveFieldReport(Ask& ask, int row);

}  // namespace veraqua
