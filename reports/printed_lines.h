#pragma once

#include <string>
#include <vector>

#include "screen/screen.h"

namespace veraqua {

inline const Font TableFont{"Courier New", 9};

/// Adds `lines` to `document` in one font.
void AddLines(PrintedDocument& document, const Font& face, const std::vector<std::string>& lines);

}  // namespace veraqua
