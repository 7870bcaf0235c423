#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The one place that rounds numbers, turns them into text and reads them from text.
namespace veraqua {

/// `value` as a stored single. RunTimeFailure, naming `quantity`, if it isn't finite or does not fit a single.
float ToSingle(double value, const char* quantity);

/// Nearest whole number, halves to even.
double RoundHalfEven(double value);

/// Nearest signed 16-bit integer, halves to even. RunTimeFailure, naming `quantity`, if it doesn't fit or isn't finite.
std::int16_t ToInteger16(double value, const char* quantity);

/// Whether `value` is finite and within the range of a single, or after rounding within a signed 16-bit integer.
bool FitsSingle(double value);
bool FitsInteger16(double value);

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
