#pragma once

#include <string_view>

namespace veraqua {

/// What the user is told where no row of the directory is free for another field.
constexpr std::string_view DirectoryFull = "Veraqua keeps at most 100 fields.";

}  // namespace veraqua
