#include "core/base/text.h"

#include <algorithm>

namespace veraqua {

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

char UpperCaseOfLatin1(char c) {
    const auto code = static_cast<unsigned char>(c);
    constexpr unsigned char division = 0xF7;  // stands among the letters
    const bool isLower = (code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != division);
    return isLower ? static_cast<char>(code - ('a' - 'A')) : c;
}

std::string Utf8FromLatin1(std::string_view bytes) {
    std::string utf8;
    utf8.reserve(bytes.size());
    for (const char c : bytes) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 0x80) {
            utf8 += c;
        } else {
            utf8 += static_cast<char>(0xC0 | (code >> 6));
            utf8 += static_cast<char>(0x80 | (code & 0x3F));
        }
    }
    return utf8;
}

std::optional<std::string> Latin1FromUtf8(std::string_view text) {
    std::string latin1;
    latin1.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto lead = static_cast<unsigned char>(text[i]);
        if (lead < 0x80) {
            latin1 += text[i];
        } else {
            // Only the two-byte forms led by C2 and C3 stand for the characters up to 255.
            const auto next = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : 0U;
            if ((lead != 0xC2 && lead != 0xC3) || (next & 0xC0) != 0x80) return std::nullopt;
            latin1 += static_cast<char>(((lead & 0x03U) << 6) | (next & 0x3FU));
            ++i;
        }
    }
    return latin1;
}

}  // namespace veraqua
