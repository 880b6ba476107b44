#include "RunRate.h"

#include <gtest/gtest.h>

#include <limits>

namespace tunedex {
namespace {

using std::chrono::milliseconds;

TEST(RateOf, CountsFilesASecondAndTheTimeLeft) {
    const struct {
        std::int32_t done;
        std::int32_t total;
        int milliseconds;
        std::int32_t rate;
        std::int32_t left;
    } rows[] = {
        {50, 100, 1000, 50, 1},
        {1, 1000, 2000, 0, 1998},
        {100, 100, 5000, 20, 0},
        {120, 100, 1000, 120, 0},
        {1, std::numeric_limits<std::int32_t>::max(), 1000000, 0, std::numeric_limits<std::int32_t>::max()},
    };
    for (const auto& row : rows) {
        const auto rate = RateOf(row.done, row.total, milliseconds(row.milliseconds));
        ASSERT_TRUE(rate.has_value());
        EXPECT_EQ(rate->filesPerSecond, row.rate);
        EXPECT_EQ(rate->secondsLeft, row.left);
    }
}

TEST(RateOf, SaysNothingWithinTheFirstSecondOrWithoutAFile) {
    EXPECT_FALSE(RateOf(50, 100, milliseconds(999)).has_value());
    EXPECT_FALSE(RateOf(0, 100, milliseconds(5000)).has_value());
}

} // namespace
} // namespace tunedex
