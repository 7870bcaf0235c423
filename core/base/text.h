#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace veraqua {

/// `text` without the blanks at both ends.
std::string_view Trimmed(std::string_view text);

/// `text` in lower case, ASCII letters only: file names are compared in this form.
std::string LowerCase(std::string_view text);

/// In upper case, of single-byte text; accented letters too.
char UpperCaseOfLatin1(char c);

/// The data files hold single-byte text, Latin-1; everything else in the program is UTF-8.
std::string Utf8FromLatin1(std::string_view bytes);

/// Nothing if `text` has a character that Latin-1 lacks, or isn't UTF-8.
std::optional<std::string> Latin1FromUtf8(std::string_view text);

/// Text of a fixed number of single-byte characters, padded with blanks, as the data files hold it.
template <std::size_t Width>
class FixedText {
  public:
    constexpr FixedText() { bytes_.fill(' '); }

    /// From ASCII text no longer than `Width`.
    static constexpr FixedText FromAscii(std::string_view ascii) {
        FixedText text;
        ascii.copy(text.bytes_.data(), Width);
        return text;
    }

    /// Takes UTF-8 text: longer text is cut, shorter padded, and text that Latin-1 lacks becomes "?".
    FixedText& operator=(std::string_view utf8) {
        std::string bytes = Latin1FromUtf8(utf8).value_or(std::string(utf8.size(), '?'));
        bytes.resize(Width, ' ');
        bytes.copy(bytes_.data(), Width);
        return *this;
    }

    /// All characters, blanks included, as UTF-8.
    std::string Whole() const { return Utf8FromLatin1({bytes_.data(), Width}); }

    /// Without the blanks at both ends, as UTF-8.
    std::string Text() const { return std::string(Trimmed(Whole())); }

    char First() const { return bytes_[0]; }

    FixedText UpperCase() const {
        FixedText upper;
        std::transform(bytes_.begin(), bytes_.end(), upper.bytes_.begin(), UpperCaseOfLatin1);
        return upper;
    }

    std::array<char, Width>& Bytes() { return bytes_; }
    const std::array<char, Width>& Bytes() const { return bytes_; }

    bool operator==(const FixedText&) const = default;

  private:
    std::array<char, Width> bytes_{};
};

}  // namespace veraqua
