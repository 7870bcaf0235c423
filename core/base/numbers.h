#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

/// The one place that rounds numbers, turns them into text and reads them from text.
namespace veraqua {

namespace numbers_detail {

[[noreturn]] void RefuseSingle(double value, const char* quantity);
[[noreturn]] void RefuseInteger16(double value, const char* quantity);

}  // namespace numbers_detail

/// Nearest whole number, halves to even.
inline double RoundHalfEven(double value) {
    // The process never leaves the default rounding mode, to nearest with halves to even.
    return std::nearbyint(value);
}

/// Whether `value` is finite and within the range of a single.
inline bool FitsSingle(double value) {
    return std::fabs(static_cast<float>(value)) <= std::numeric_limits<float>::max();
}

/// Whether `value` is within a signed 16-bit integer after rounding.
inline bool FitsInteger16(double value) {
    // The halves beyond the ends round to even, and so out of the range; the lower one into it.
    return value >= -32768.5 && value < 32767.5;
}

/// `value` as a stored single. RunTimeFailure, naming `quantity`, if it isn't finite or does not fit a single.
inline float ToSingle(double value, const char* quantity) {
    if (!FitsSingle(value)) numbers_detail::RefuseSingle(value, quantity);
    return static_cast<float>(value);
}

/// Nearest signed 16-bit integer, halves to even. RunTimeFailure, naming `quantity`, if it doesn't fit or isn't finite.
inline std::int16_t ToInteger16(double value, const char* quantity) {
    if (!FitsInteger16(value)) numbers_detail::RefuseInteger16(value, quantity);
    return static_cast<std::int16_t>(RoundHalfEven(value));
}

/// `value` in hundredths (`perUnit` 100), tenths (10) and so on: the nearest, halves to even, as a plain number again.
double RoundedTo(double value, double perUnit);

/// Water of `millimetres` in inches, rounded to hundredths in the way of all schedules: the nearest whole number of
/// mm / 0.254, halves to even, divided by 100.
double HundredthsOfInches(double millimetres);

/// Text of `value` by a mask such as "000.0", "0.00" or " 000": rounded to the mask's decimals on the value's decimal
/// form (7 digits of a single, 15 of a double), halves away from zero; at least as many integer digits as zeros stand
/// there, more where needed; "-" before the first digit, none before a zero; blanks of the mask stand as they are.
std::string Masked(float value, std::string_view mask);
std::string Masked(double value, std::string_view mask);

/// Text of `value` without a mask: up to 7 significant digits, no exponent, no trailing zeros: "85", "62.5", "0.1".
std::string Plain(double value);

/// The shortest decimal form that reads back as the same single, such as 0.85 or 1e-12.
std::string Shortest(float value);

/// The number that `text` holds: optional blanks around, optional sign, digits with at most one "." and at least one
/// digit, finite. Nothing else (no comma, exponent or currency, in no locale) is numeric.
std::optional<double> Numeric(std::string_view text);

/// Numeric text that is a whole number within 32 bits.
std::optional<std::int32_t> WholeNumber(std::string_view text);

}  // namespace veraqua
