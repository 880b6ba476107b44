#include "PlayTime.h"

#include <gtest/gtest.h>

#include <string_view>

namespace tunedex {
namespace {

struct PlayTimeRow {
    std::int64_t seconds;
    std::string_view minutes;
    std::string_view hours;
};

TEST(PlayTime, HasTwoDigitsOfSecondsAndHoursOnlyIfAskedFor) {
    const PlayTimeRow rows[] = {
        {0, "0:00", "0:00"},
        {9, "0:09", "0:09"},
        {59, "0:59", "0:59"},
        {60, "1:00", "1:00"},
        {245, "4:05", "4:05"},
        {3599, "59:59", "59:59"},
        {3600, "60:00", "1:00:00"},
        {4503, "75:03", "1:15:03"},
        {36000, "600:00", "10:00:00"},
        {360000, "6000:00", "100:00:00"},
        {8640000001, "144000000:01", "2400000:00:01"},
    };
    for (const PlayTimeRow& row : rows) {
        EXPECT_EQ(MinutesAndSeconds(row.seconds), row.minutes);
        EXPECT_EQ(HoursMinutesAndSeconds(row.seconds), row.hours);
    }
}

} // namespace
} // namespace tunedex
