#pragma once

#include <cstddef>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>

namespace veraqua {

/// Bytes written out by hand, two hexadecimal digits each with blanks between: `Hex("01 00")`.
inline std::string Hex(const std::string& text) {
    std::istringstream digits(text);
    std::string bytes;
    for (int byte = 0; digits >> std::hex >> byte;) bytes += static_cast<char>(byte);
    return bytes;
}

/// `bytes` with `patch` laid over them from `offset` on.
inline std::string Patched(std::string bytes, std::size_t offset, std::string_view patch) {
    return bytes.replace(offset, patch.size(), patch);
}

/// A file's bytes; none if there is no such file.
inline std::string TextOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace veraqua
