// Numbers in texts, and conversions that raise error 6 instead of wrapping round.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tunedex {

// The number a text begins with: optional blanks, optional sign, digits with an optional fraction and decimal
// exponent; what follows is ignored; 0 where there is none.
double LeadingNumber(std::string_view text);

// Whether a text, blanks around it aside, is wholly such a number.
bool IsNumeric(std::string_view text);

// The number that a text wholly is. Raises error 13 for any other text.
double RequireNumber(std::string_view text);

// Halves go to the even neighbour.
double RoundHalfToEven(double value);

// Rounded half to even. Raise error 6 when the result does not fit.
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);

// a + b. Raises error 6 when the sum does not fit.
std::int32_t CheckedAdd(std::int32_t a, std::int32_t b);

// Decimal digits, with at least `digits` of them (leading zeros).
std::string PadNumber(std::int64_t value, int digits);

} // namespace tunedex
