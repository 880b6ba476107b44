#include "ProgressText.h"

#include <gtest/gtest.h>

namespace tunedex {
namespace {

using std::chrono::milliseconds;

TEST(ProgressText, ShowsBarCountRateAndTimeLeft) {
    const struct {
        Progress progress;
        const char* text;
    } rows[] = {
        {{"Searching...", 0, 0, milliseconds(0)}, "Searching..."},
        {{"Searching...", 1234, 0, milliseconds(5000)}, "1234  Searching..."},
        {{"Reading...", 0, 100, milliseconds(0)}, "[....................] 0/100  Reading..."},
        {{"Reading...", 50, 100, milliseconds(999)}, "[##########..........] 50/100  Reading..."},
        {{"Reading...", 50, 100, milliseconds(2000)},
         "[##########..........] 50/100  25/s  0:02 left  Reading..."},
        {{"Reading...", 100, 100, milliseconds(2000)},
         "[####################] 100/100  50/s  0:00 left  Reading..."},
        {{"Reading...", 120, 100, milliseconds(2000)},
         "[####################] 120/100  60/s  0:00 left  Reading..."},
        {{"Reading...", 1000, 1000000, milliseconds(10000)},
         "[....................] 1000/1000000  100/s  166:30 left  Reading..."},
        {{"Reading...", 2147483647, 2147483647, milliseconds(1000)},
         "[####################] 2147483647/2147483647  2147483647/s  0:00 left  Reading..."},
        {{"Reading \x1b[2J", 1, 2, milliseconds(0)}, "[##########..........] 1/2  Reading ?[2J"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ProgressText(row.progress, 0, false), row.text);
    }
}

TEST(ProgressText, StaysWithinTheWidthOfTheTerminal) {
    const Progress progress{"Reading", 50, 100, milliseconds(2000)};
    EXPECT_EQ(ProgressText(progress, 31, false), "[##########..........] 50/100 ");
    EXPECT_EQ(ProgressText(progress, 6, false), "[####");
    EXPECT_EQ(ProgressText(progress, 1, false), "");
}

TEST(ProgressText, ColoursTheBarOnlyWhereAsked) {
    const Progress progress{"Reading", 50, 100, milliseconds(0)};
    EXPECT_EQ(ProgressText(progress, 40, true), "[\x1b[32m##########\x1b[0m..........] 50/100  Reading");
    EXPECT_EQ(ProgressText(progress, 6, true), "[####");
    EXPECT_EQ(ProgressText({"Reading", 0, 100, milliseconds(0)}, 40, true),
              "[....................] 0/100  Reading");
}

} // namespace
} // namespace tunedex
