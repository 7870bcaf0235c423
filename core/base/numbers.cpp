#include "core/base/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include <fmt/format.h>

#include "core/base/failure.h"
#include "core/base/text.h"

namespace veraqua {

namespace {

constexpr int SingleDigits = 7;
constexpr int DoubleDigits = 15;

/// Decimal digits of a number: 0.d1d2d3... times ten to the `Exponent`, without sign.
struct Decimal {
    std::string Digits;
    int Exponent = 0;
};

Decimal DecimalOf(double magnitude, int significantDigits) {
    const std::string scientific = fmt::format("{:.{}e}", magnitude, significantDigits - 1);
    const std::size_t e = scientific.find('e');
    Decimal decimal;
    std::copy_if(scientific.begin(), scientific.begin() + static_cast<std::ptrdiff_t>(e),
                 std::back_inserter(decimal.Digits), [](char c) { return c != '.'; });
    int exponent = 0;
    const char* from = scientific.data() + e + (scientific[e + 1] == '+' ? 2 : 1);
    std::from_chars(from, scientific.data() + scientific.size(), exponent);
    decimal.Exponent = exponent + 1;
    return decimal;
}

/// The digits up to `decimals` behind the point as one whole number's text, halves away from zero.
std::string RoundedDigits(const Decimal& decimal, int decimals) {
    const int kept = decimal.Exponent + decimals;
    if (kept < 0) return "0";
    std::string digits = decimal.Digits.substr(0, static_cast<std::size_t>(kept));
    digits.append(static_cast<std::size_t>(kept) - digits.size(), '0');
    const bool up =
        static_cast<std::size_t>(kept) < decimal.Digits.size() && decimal.Digits[static_cast<std::size_t>(kept)] >= '5';
    if (up) {
        auto place = digits.rbegin();
        for (; place != digits.rend() && *place == '9'; ++place) *place = '0';
        if (place == digits.rend())
            digits.insert(digits.begin(), '1');
        else
            ++*place;
    }
    return digits.empty() ? "0" : digits;
}

std::string MaskedDigits(double value, int significantDigits, std::string_view mask) {
    const std::size_t first = mask.find('0');
    const std::size_t last = mask.rfind('0');
    const std::string_view figure = mask.substr(first, last - first + 1);
    const std::size_t point = figure.find('.');
    const std::size_t integerPlaces = std::min(point, figure.size());
    const std::size_t decimals = figure.size() - integerPlaces - (integerPlaces < figure.size() ? 1 : 0);

    std::string digits = RoundedDigits(DecimalOf(std::fabs(value), significantDigits), static_cast<int>(decimals));
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    const bool negative = value < 0 && !digits.empty();
    const std::size_t places = integerPlaces + decimals;
    if (digits.size() < places) digits.insert(0, places - digits.size(), '0');
    if (decimals > 0) digits.insert(digits.size() - decimals, 1, '.');

    return fmt::format("{}{}{}{}", mask.substr(0, first), negative ? "-" : "", digits, mask.substr(last + 1));
}

}  // namespace

void numbers_detail::RefuseSingle(double value, const char* quantity) {
    throw RunTimeFailure(fmt::format("Overflow: {} is {}.", quantity, value));
}

void numbers_detail::RefuseInteger16(double value, const char* quantity) {
    throw RunTimeFailure(fmt::format("Overflow: {} is {}, outside -32768 to 32767.", quantity, value));
}

double RoundedTo(double value, double perUnit) { return RoundHalfEven(value * perUnit) / perUnit; }

double HundredthsOfInches(double millimetres) { return RoundHalfEven(millimetres / 0.254) / 100; }

std::string Masked(float value, std::string_view mask) { return MaskedDigits(value, SingleDigits, mask); }

std::string Masked(double value, std::string_view mask) { return MaskedDigits(value, DoubleDigits, mask); }

std::string Plain(double value) {
    const Decimal decimal = DecimalOf(std::fabs(value), SingleDigits);
    std::string digits = decimal.Digits;
    digits.erase(std::min(digits.find_last_not_of('0') + 1, digits.size()));
    if (digits.empty()) return "0";
    const auto length = static_cast<int>(digits.size());
    if (decimal.Exponent <= 0) {
        digits.insert(0, static_cast<std::size_t>(-decimal.Exponent), '0');
        digits.insert(0, "0.");
    } else if (decimal.Exponent >= length) {
        digits.append(static_cast<std::size_t>(decimal.Exponent - length), '0');
    } else {
        digits.insert(static_cast<std::size_t>(decimal.Exponent), 1, '.');
    }
    return value < 0 ? "-" + digits : digits;
}

std::string Shortest(float value) { return fmt::format("{}", value); }

std::optional<double> Numeric(std::string_view text) {
    text = Trimmed(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto digits = std::count_if(text.begin(), text.end(), isDigit);
    const auto points = std::count(text.begin(), text.end(), '.');
    if (digits == 0 || points > 1 || static_cast<std::size_t>(digits + points) != text.size()) return std::nullopt;

    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return negative ? -value : value;
}

std::optional<std::int32_t> WholeNumber(std::string_view text) {
    const std::optional<double> value = Numeric(text);
    using Limits = std::numeric_limits<std::int32_t>;
    if (!value || *value != RoundHalfEven(*value) || *value < Limits::min() || *value > Limits::max())
        return std::nullopt;
    return static_cast<std::int32_t>(*value);
}

}  // namespace veraqua
