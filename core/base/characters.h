#pragma once

#include <algorithm>
#include <string_view>

namespace veraqua {

/// What steers a terminal or a printer instead of being shown: line ends, tabs, escapes. Not those beyond ASCII.
inline bool IsControlCharacter(char c) { return (c >= 0 && c < ' ') || c == '\x7F'; }

inline bool HasControlCharacter(std::string_view text) { return std::ranges::any_of(text, IsControlCharacter); }

}  // namespace veraqua
