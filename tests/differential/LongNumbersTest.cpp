// Compares the parsing of numbers with strtod().
#include "Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace tunedex {
namespace {

void Compare(const std::string& text) {
    char* end = nullptr;
    const double expected = std::strtod(text.c_str(), &end);
    const double value = LeadingNumber(text);
    if (std::abs(expected) < 1e-300) {
        EXPECT_LT(std::abs(value), 1e-300) << text;
    } else {
        EXPECT_EQ(value, expected) << text;
    }
    EXPECT_EQ(IsNumeric(text), end == text.c_str() + text.size() && !text.empty()) << text;
}

TEST(Numbers, AreParsedAsByTheCLibrary) {
    constexpr std::string_view kCharacters = "0011223459.e+-E";
    std::mt19937 random(5);
    for (int i = 0; i < 200000; ++i) {
        std::string text;
        for (unsigned length = static_cast<unsigned>(random() % 9); length > 0; --length) {
            text += kCharacters[random() % kCharacters.size()];
        }
        Compare(text);
    }
}

// Numbers with the given run of zeros before and after the decimal point.
std::vector<std::string> NumbersWith(const std::string& zeros) {
    return {"0." + zeros + "1", "1" + zeros, "-00" + zeros + "1." + zeros + "1", "0" + zeros};
}

TEST(Numbers, OfHundredsOfDigitsAreParsedWithoutOverflowOrLoss) {
    for (const std::size_t zeros : {100U, 300U, 330U, 500U}) {
        for (const char* exponent :
             {"", "e5", "e-5", "e400", "e-400", "e-99999999999999999999", "e99999999999999999999"}) {
            for (const std::string& number : NumbersWith(std::string(zeros, '0'))) {
                Compare(std::string(number).append(exponent));
            }
        }
    }
}

} // namespace
} // namespace tunedex
