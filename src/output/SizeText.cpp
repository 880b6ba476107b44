#include "SizeText.h"

#include "Numbers.h"

namespace tunedex {

namespace {

std::string Grouped(std::int64_t value, const std::string& separator) {
    const std::string digits = std::to_string(value);
    std::string text;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) {
            text += separator;
        }
        text += digits[i];
    }
    return text;
}

// bytes / unit with two decimals. Integer arithmetic keeps ties exact.
std::string TwoDecimals(std::int64_t bytes, std::int64_t unit, const Locale& locale) {
    const std::int64_t whole = bytes / unit;
    const std::int64_t hundredths = ((bytes % unit) * 200 + unit) / (2 * unit);
    return Grouped(whole + hundredths / 100, locale.ThousandsSeparator()) + locale.DecimalPoint() +
           PadNumber(hundredths % 100, 2);
}

} // namespace

std::string SizeText(std::int64_t bytes, std::int16_t sizeType, const Locale& locale) {
    switch (sizeType) {
    case 0:
        return Grouped(bytes, locale.ThousandsSeparator()) + " b.";
    case 1:
        return TwoDecimals(bytes, 1024, locale) + " kB";
    case 2:
        return TwoDecimals(bytes, 1024LL * 1024, locale) + " MB";
    default:
        return {};
    }
}

} // namespace tunedex
