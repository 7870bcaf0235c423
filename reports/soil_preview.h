#pragma once

#include <string>

#include "core/field_file.h"

namespace veraqua {

/// A field's soil as the screens that choose a field preview it: interval or layers, capacity, initial content. Lines
/// end in "\n".
std::string SoilPreview(const FieldFile& file, bool english);

}  // namespace veraqua
