#include "Numbers.h"

#include "Raises.h"
#include "RunTimeError.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>

namespace tunedex {
namespace {

struct LeadingRow {
    const char* text;
    double value;
};

TEST(LeadingNumber, ParsesTheNumberAtTheStartAndIgnoresTheRest) {
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

TEST(LeadingNumber, DistinguishesOverflowFromUnderflow) {
    const double infinity = std::numeric_limits<double>::infinity();
    const std::string zeros(400, '0');
    const std::pair<std::string, double> rows[] = {
        {"1" + zeros, infinity},
        {"-1" + zeros, -infinity},
        {"0." + zeros + "1", 0},
        {"1" + zeros + "e-5", infinity},
        {"1" + zeros + "e-400", 1},
        {"0." + zeros + "1e+5", 0},
        {"0." + zeros + "1e401", 1},
        {"1e99999999999999999999", infinity},
        {"1e-99999999999999999999", 0},
        {"0e99999999999999999999", 0},
        {"0." + zeros + "1e999", infinity},
        {zeros + "1e-999", 0},
    };
    for (const auto& [text, value] : rows) {
        EXPECT_EQ(LeadingNumber(text), value) << text;
    }
}

TEST(LeadingNumber, SkipsOnlyLeadingBlanks) {
    EXPECT_EQ(LeadingNumber("\t7"), 0);
    EXPECT_EQ(LeadingNumber("\n7"), 0);
}

TEST(RequireNumber, RaisesTypeMismatchForAnyOtherText) {
    EXPECT_EQ(RequireNumber(" 12 "), 12);
    for (const char* text : {"", "x", "12x", "1 2"}) {
        EXPECT_EQ(test::RaisedBy([text] { RequireNumber(text); }), 13) << text;
    }
}

TEST(IsNumeric, AcceptsOnlyANumberWithBlanksAround) {
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

TEST(ToInt32, RoundsHalvesToEvenAndRaisesOverflow) {
    EXPECT_EQ(ToInt32(2147483647.4), 2147483647);
    EXPECT_EQ(ToInt32(-2147483648.5), -2147483648);
    EXPECT_EQ(ToInt32(100000.5), 100000);
    for (const double value : {2147483647.5, -2147483649.0, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(test::RaisedBy([value] { ToInt32(value); }), 6) << value;
    }
}

TEST(CheckedAdd, RaisesOverflowInsteadOfWrapping) {
    EXPECT_EQ(CheckedAdd(2147483646, 1), 2147483647);
    EXPECT_EQ(CheckedAdd(-2147483647, -1), -2147483648);
    EXPECT_EQ(test::RaisedBy([] { CheckedAdd(2147483647, 1); }), 6);
    EXPECT_EQ(test::RaisedBy([] { CheckedAdd(-2147483648, -1); }), 6);
}

TEST(PadNumber, PadsWithZerosAfterTheSign) {
    EXPECT_EQ(PadNumber(7, 3), "007");
    EXPECT_EQ(PadNumber(1234, 3), "1234");
    EXPECT_EQ(PadNumber(0, 1), "0");
    EXPECT_EQ(PadNumber(-7, 3), "-007");
}

} // namespace
} // namespace tunedex
