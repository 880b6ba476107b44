#include "ReaderPolicy.h"

#include <gtest/gtest.h>

namespace tunedex {
namespace {

using std::chrono::microseconds;

constexpr unsigned kMost = ReaderPolicy::kMostReaders;
constexpr ReadTiming kSlow{16, microseconds(320000), 64};
constexpr ReadTiming kFast{16, microseconds(200), 0};

TEST(ReaderPolicy, StartsWithOneReaderPerProcessorUpToTheLimit) {
    struct Row {
        unsigned fixedReaders;
        unsigned processors;
        unsigned wanted;
    };
    const Row rows[] = {{0, 0, 1},        {0, 1, 1},    {0, 2, 2}, {0, kMost, kMost}, {0, kMost + 1, kMost},
                        {0, 1024, kMost}, {1, 1024, 1}, {2, 8, 2}, {80, 8, 80}};
    for (const Row& row : rows) {
        EXPECT_EQ(ReaderPolicy(row.fixedReaders, row.processors).Wanted(), row.wanted)
            << row.fixedReaders << " of " << row.processors;
    }
}

TEST(ReaderPolicy, CallsReadingSlowIfFilesTakeLongAndBlock) {
    struct Row {
        ReadTiming timing;
        bool slow;
    };
    const Row rows[] = {
        {{1, microseconds(5000), 4}, true},     // a network drive
        {{16, microseconds(1601), 4}, true},    // a fast disk
        {{16, microseconds(1600), 4}, false},   // just quick enough
        {{16, microseconds(1601), 3}, false},   // too few blocked
        {{16, microseconds(500000), 0}, false}, // a busy CPU
        {{16, microseconds(200), 16}, false},   // contention for a lock
        {{2, microseconds(201), 1}, true},      {{2, microseconds(201), 0}, false},
    };
    for (const Row& row : rows) {
        ReaderPolicy policy(0, 2);
        EXPECT_EQ(policy.Report(row.timing, true), row.slow);
        EXPECT_EQ(policy.SlowDisk(), row.slow);
        EXPECT_EQ(policy.Wanted(), row.slow ? 3U : 2U);
    }
}

TEST(ReaderPolicy, AddsAReaderAfterEachSlowTimingUpToTheLimit) {
    ReaderPolicy policy(0, 2);
    EXPECT_FALSE(policy.SlowDisk());
    EXPECT_EQ(policy.FilesAtATime(), ReaderPolicy::kBatchFiles);
    for (unsigned wanted = 3; wanted <= kMost; ++wanted) {
        EXPECT_TRUE(policy.Report(kSlow, true));
        EXPECT_EQ(policy.Wanted(), wanted);
        EXPECT_TRUE(policy.SlowDisk());
        EXPECT_EQ(policy.FilesAtATime(), ReaderPolicy::kSlowFiles);
    }
    policy.Report(kSlow, true);
    EXPECT_EQ(policy.Wanted(), kMost);
}

TEST(ReaderPolicy, StaysBelowALowerLimit) {
    EXPECT_EQ(ReaderPolicy(0, 8, 6).Wanted(), 6U);
    ReaderPolicy policy(0, 2, 6);
    for (int i = 0; i < 20; ++i) {
        policy.Report(kSlow, true);
    }
    EXPECT_EQ(policy.Wanted(), 6U);
}

TEST(ReaderPolicy, AddsNoReaderWhenNothingIsLeftToRead) {
    ReaderPolicy policy(0, 2);
    EXPECT_FALSE(policy.Report(kSlow, false));
    EXPECT_EQ(policy.Wanted(), 2U);
    EXPECT_TRUE(policy.SlowDisk());
}

TEST(ReaderPolicy, ReturnsToTheInitialStateAfterFastTimings) {
    for (const unsigned processors : {1U, 2U, 31U, 32U, 63U, 64U, 1024U}) {
        ReaderPolicy policy(0, processors);
        const unsigned first = policy.Wanted();
        policy.Report(kSlow, true);
        policy.Report(kSlow, true);
        EXPECT_TRUE(policy.SlowDisk()) << processors;
        for (unsigned i = 0; i < 3 * ReaderPolicy::kFastTimings; ++i) {
            EXPECT_FALSE(policy.Report(kFast, true));
        }
        EXPECT_EQ(policy.Wanted(), first) << processors;
        EXPECT_FALSE(policy.SlowDisk()) << processors;
    }
}

TEST(ReaderPolicy, RestartsTheCountOfFastTimingsAfterASlowOne) {
    ReaderPolicy policy(0, 2);
    policy.Report(kSlow, true);
    for (unsigned i = 0; i + 1 < ReaderPolicy::kFastTimings; ++i) {
        policy.Report(kFast, true);
    }
    policy.Report(kSlow, false);
    policy.Report(kFast, true);
    EXPECT_EQ(policy.Wanted(), 3U);
}

TEST(ReaderPolicy, KeepsAFixedNumber) {
    ReaderPolicy policy(4, 2);
    EXPECT_FALSE(policy.Report(kSlow, true));
    for (unsigned i = 0; i < 3 * ReaderPolicy::kFastTimings; ++i) {
        policy.Report(kFast, true);
    }
    EXPECT_EQ(policy.Wanted(), 4U);
}

} // namespace
} // namespace tunedex
