#pragma once

#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>

namespace veraqua {

/// Bytes written out by hand, two hexadecimal digits each: `Hex("01 00")`. Blanks don't count.
inline std::string Hex(std::string_view text) {
    std::string digits;
    for (const char c : text)
        if (c != ' ') digits += c;
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        bytes += static_cast<char>(std::strtoul(digits.substr(i, 2).c_str(), nullptr, 16));
    return bytes;
}

/// `bytes` with `patch` laid over them from `offset` on.
inline std::string Patched(std::string bytes, std::size_t offset, std::string_view patch) {
    return bytes.replace(offset, patch.size(), patch);
}

}  // namespace veraqua
