#include "Numbers.h"

#include "RunTimeError.h"
#include "Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace tunedex {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t SkipDigits(std::string_view text, std::size_t position) {
    while (position < text.size() && IsDigit(text[position])) {
        ++position;
    }
    return position;
}

struct ParsedNumber {
    double value = 0;
    std::size_t end = 0; // one past the number's last character; 0 when there is none
};

// The end of the digits, fraction and exponent that begin at `start`; returns `start` when there are no
// digits.
std::size_t NumberEnd(std::string_view text, std::size_t start) {
    std::size_t end = SkipDigits(text, start);
    std::size_t digits = end - start;
    if (end < text.size() && text[end] == '.') {
        const std::size_t fractionEnd = SkipDigits(text, end + 1);
        digits += fractionEnd - end - 1;
        if (digits > 0) {
            end = fractionEnd;
        }
    }
    if (digits == 0) {
        return start;
    }
    if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
        std::size_t exponent = end + 1;
        if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) {
            ++exponent;
        }
        const std::size_t exponentEnd = SkipDigits(text, exponent);
        if (exponentEnd > exponent) {
            end = exponentEnd;
        }
    }
    return end;
}

// Whether an out-of-range number underflowed rather than overflowed: compares the position of its first
// significant digit, shifted by the exponent, with the decimal point.
bool IsTiny(std::string_view number) {
    const std::size_t exponentSign = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, exponentSign);
    const auto point = static_cast<double>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<double>(std::min(mantissa.find_first_of("123456789"), mantissa.size()));
    double exponent = 0;
    if (exponentSign < number.size()) {
        std::string_view digits = number.substr(exponentSign + 1);
        const bool negative = digits.front() == '-';
        digits.remove_prefix(negative || digits.front() == '+' ? 1 : 0);
        for (const char digit : digits) {
            exponent = exponent * 10 + (digit - '0');
        }
        exponent = negative ? -exponent : exponent;
    }
    return point - first + exponent < 0;
}

ParsedNumber ParseNumber(std::string_view text) {
    std::size_t position = 0;
    while (position < text.size() && text[position] == ' ') {
        ++position;
    }
    bool negative = false;
    if (position < text.size() && (text[position] == '-' || text[position] == '+')) {
        negative = text[position] == '-';
        ++position;
    }
    const std::size_t end = NumberEnd(text, position);
    if (end == position) {
        return {};
    }
    double value = 0;
    const auto result = std::from_chars(text.data() + position, text.data() + end, value);
    if (result.ec == std::errc::result_out_of_range) {
        // Underflow yields 0; overflow must stay out of every integer range.
        value = IsTiny(text.substr(position, end - position)) ? 0 : std::numeric_limits<double>::infinity();
    }
    return {negative ? -value : value, end};
}

} // namespace

double LeadingNumber(std::string_view text) {
    constexpr std::size_t kShort = 9;
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (text.size() <= kShort && std::all_of(text.begin(), text.end(), isDigit)) {
        // Fast path for the usual input, a short string of digits.
        std::int32_t value = 0;
        for (const char digit : text) {
            value = value * 10 + (digit - '0');
        }
        return value;
    }
    return ParseNumber(text).value;
}

bool IsNumeric(std::string_view text) {
    const std::string_view trimmed = TrimBlanks(text);
    return !trimmed.empty() && ParseNumber(trimmed).end == trimmed.size();
}

double RequireNumber(std::string_view text) {
    if (!IsNumeric(text)) {
        throw RunTimeError(ErrorNumber::TypeMismatch);
    }
    return LeadingNumber(text);
}

double RoundHalfToEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5 || (rest == 0.5 && std::fmod(below, 2.0) == 0.0)) {
        return below;
    }
    return below + 1;
}

namespace {

template <typename Integer> Integer ToInteger(double value) {
    const double rounded = RoundHalfToEven(value);
    if (!(rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
          rounded <= static_cast<double>(std::numeric_limits<Integer>::max()))) {
        throw RunTimeError(ErrorNumber::Overflow);
    }
    return static_cast<Integer>(rounded);
}

} // namespace

std::int16_t ToInt16(double value) {
    return ToInteger<std::int16_t>(value);
}

std::int32_t ToInt32(double value) {
    return ToInteger<std::int32_t>(value);
}

std::int32_t CheckedAdd(std::int32_t a, std::int32_t b) {
    std::int32_t sum = 0;
    if (__builtin_add_overflow(a, b, &sum)) {
        throw RunTimeError(ErrorNumber::Overflow);
    }
    return sum;
}

std::string PadNumber(std::int64_t value, int digits) {
    std::string text = std::to_string(value < 0 ? -value : value);
    if (text.size() < static_cast<std::size_t>(digits)) {
        text.insert(0, static_cast<std::size_t>(digits) - text.size(), '0');
    }
    return value < 0 ? "-" + text : text;
}

} // namespace tunedex
