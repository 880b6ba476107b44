#include "Numbers.h"

#include "RunTimeError.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace tunedex {
namespace {

struct LeadingRow {
    const char* text;
    double value;
};

TEST(LeadingNumber, TakesWhatATextBeginsWithAndIgnoresTheRest) {
    const LeadingRow rows[] = {
        {"", 0},         {"yes", 0},     {"-", 0},    {"+", 0},       {".", 0},
        {"12", 12},      {"  12", 12},   {"-1", -1},  {"+7", 7},      {"12abc", 12},
        {"3.75x", 3.75}, {"5.", 5},      {".5", 0.5}, {"1e3", 1000},  {"1e", 1},
        {"1e+", 1},      {"1E-2", 0.01}, {"- 1", 0},  {"0x10", 0},    {"1,234", 1},
        {"2 3", 2},      {"1e-999", 0},  {"007", 7},  {"1.2.3", 1.2}, {"\xEF\xBC\x91", 0},
    };
    for (const LeadingRow& row : rows) {
        EXPECT_EQ(LeadingNumber(row.text), row.value) << '"' << row.text << '"';
    }
    EXPECT_EQ(LeadingNumber("1e999"), std::numeric_limits<double>::infinity());
}

TEST(IsNumeric, AsksForAWholeNumberTextBlanksAside) {
    for (const char* text : {"1", " 12 ", "-3.5", "1e4", "+0"}) {
        EXPECT_TRUE(IsNumeric(text)) << text;
    }
    for (const char* text : {"", " ", "12a", "1 2", "e4", "--1"}) {
        EXPECT_FALSE(IsNumeric(text)) << text;
    }
}

TEST(ToInt16, RoundsHalvesToEvenAndRaisesOverflow) {
    EXPECT_EQ(ToInt16(0.5), 0);
    EXPECT_EQ(ToInt16(1.5), 2);
    EXPECT_EQ(ToInt16(2.5), 2);
    EXPECT_EQ(ToInt16(-0.5), 0);
    EXPECT_EQ(ToInt16(-1.5), -2);
    EXPECT_EQ(ToInt16(32767.4), 32767);
    EXPECT_EQ(ToInt16(-32768.5), -32768);
    for (const double value : {32767.5, 32768.0, -32769.0, 1e300, std::numeric_limits<double>::infinity()}) {
        try {
            ToInt16(value);
            ADD_FAILURE() << value;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), 6);
        }
    }
}

} // namespace
} // namespace tunedex
