#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "core/shown/printed.h"

namespace veraqua {

inline const Font TitleFont{"Rockwell", 12};
inline const Font TableFont{"Courier New", 9};

/// Adds `lines` to `document` in one font.
void AddLines(PrintedDocument& document, const Font& face, const std::vector<std::string>& lines);

/// The heading lines of the tables of days: names, units, and a rule.
constexpr std::size_t DayTableHeadings = 3;

/// The same with the document's table, whose first lines are its headings. More rows may follow.
void AddTable(PrintedDocument& document, const Font& face, const std::vector<std::string>& lines, std::size_t headings);

}  // namespace veraqua
