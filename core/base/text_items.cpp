#include "core/base/text_items.h"

#include <algorithm>
#include <charconv>

#include <fmt/format.h>

#include "core/base/failure.h"
#include "core/base/numbers.h"
#include "core/base/text.h"

namespace veraqua {

namespace {

constexpr std::string_view Blanks = " \t\r";
constexpr std::string_view BlanksAndLineEnds = " \t\r\n";

}  // namespace

void TextItems::Refuse(std::string_view what) const { FailIn(fileName_, fmt::format("line {}: {}.", line_, what)); }

void TextItems::Advance(std::size_t count) {
    line_ += static_cast<int>(std::count(rest_.begin(), rest_.begin() + static_cast<std::ptrdiff_t>(count), '\n'));
    rest_.remove_prefix(count);
}

void TextItems::SkipBlanks(std::string_view blanks) {
    Advance(std::min(rest_.find_first_not_of(blanks), rest_.size()));
}

void TextItems::TakeSeparator() {
    SkipBlanks(Blanks);
    if (!rest_.empty() && (rest_.front() == ',' || rest_.front() == '\n')) Advance(1);
}

bool TextItems::AtEnd() {
    SkipBlanks(BlanksAndLineEnds);
    return rest_.empty();
}

std::string TextItems::Text() {
    if (AtEnd()) Refuse("the file ends where a text is due");
    std::string_view text;
    if (rest_.front() == '"') {
        Advance(1);
        const std::size_t quote = rest_.find('"');
        if (quote == std::string_view::npos) Refuse("a quoted text has no end");
        text = rest_.substr(0, quote);
        Advance(quote + 1);
    } else {
        text = rest_.substr(0, rest_.find_first_of(",\r\n"));
        Advance(text.size());
        text = Trimmed(text);
    }
    TakeSeparator();
    return Utf8FromLatin1(text);
}

std::string_view TextItems::Token() {
    if (AtEnd()) Refuse("the file ends where a number is due");
    const std::string_view token = rest_.substr(0, rest_.find_first_of(", \t\r\n"));
    Advance(token.size());
    return token;
}

double TextItems::Number() {
    const std::string_view token = Token();
    const std::string_view digits = token.starts_with('+') && !token.starts_with("+-") ? token.substr(1) : token;
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size())
        Refuse(fmt::format("\"{}\" is no number", Utf8FromLatin1(token.substr(0, 40))));
    return value;
}

float TextItems::Single() {
    const double value = Number();
    if (!FitsSingle(value)) Refuse("a number is too large");
    TakeSeparator();
    return static_cast<float>(value);
}

std::int16_t TextItems::Integer16() {
    const double value = Number();
    if (!FitsInteger16(value)) Refuse(fmt::format("{} is outside -32768 to 32767", value));
    TakeSeparator();
    return ToInteger16(value, "an item");
}

std::string TextItems::Line() {
    if (rest_.empty()) Refuse("the file ends where a line is due");
    const std::size_t end = rest_.find('\n');
    std::string_view line = rest_.substr(0, end);
    Advance(end == std::string_view::npos ? rest_.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return Utf8FromLatin1(line);
}

}  // namespace veraqua
