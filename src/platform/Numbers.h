// Parses and formats numbers; conversions raise error 6 instead of wrapping.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tunedex {

// Parses the number at the start of a text: optional blanks, optional sign, digits with an optional fraction
// and decimal exponent. Ignores the rest. Returns 0 where there is no number.
double LeadingNumber(std::string_view text);

// Whether the whole text, apart from blanks around it, is such a number.
bool IsNumeric(std::string_view text);

// The value of such a text. Raises error 13 for any other.
double RequireNumber(std::string_view text);

// Rounds to the nearest integer. Required: halves round to the even one.
double RoundHalfToEven(double value);

// Round half to even. Raise error 6 when the result does not fit.
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);

// a + b. Raises error 6 when the sum does not fit.
std::int32_t CheckedAdd(std::int32_t a, std::int32_t b);

// Decimal, padded with leading zeros to `digits` digits; a minus sign is not counted.
std::string PadNumber(std::int64_t value, int digits);

} // namespace tunedex
