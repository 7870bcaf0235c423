#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/field_file.h"
#include "core/shown/printed.h"

/// The table of the field history, with a line for each day since planting. It has columns of its own widths and masks,
/// and water in the soil in cm where the field report has mm.
namespace veraqua {

/// Names of the fifteen columns on the screen, "Date" first.
std::vector<std::string> HistoryHeadings(bool isHay, bool english);

/// The lines, in columns for a font of fixed pitch, oldest day first. RunTimeFailure where the numbers of the file
/// can't be computed with.
std::vector<std::string> HistoryLines(const FieldFile& file, bool english);

/// The table as it is printed, headed by the field's `title`: two lines of headings, a rule, and `lines`.
PrintedDocument PrintedHistory(const std::vector<std::string>& lines, std::string_view fieldId, std::string_view title,
                               bool isHay, bool english);

}  // namespace veraqua
