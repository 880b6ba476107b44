#include "ReaderPolicy.h"

#include <gtest/gtest.h>

namespace tunedex {
namespace {

constexpr unsigned kMost = ReaderPolicy::kMostReaders;

TEST(ReaderPolicy, StartsWithOneReaderPerProcessorUpToTheLimit) {
    struct Row {
        unsigned fixedReaders;
        unsigned processors;
        unsigned wanted;
    };
    const Row rows[] = {{0, 0, 1},        {0, 1, 1},    {0, 2, 2}, {0, kMost, kMost}, {0, kMost + 1, kMost},
                        {0, 1024, kMost}, {1, 1024, 1}, {2, 8, 2}, {40, 8, 40}};
    for (const Row& row : rows) {
        EXPECT_EQ(ReaderPolicy(row.fixedReaders, row.processors).Wanted(), row.wanted)
            << row.fixedReaders << " of " << row.processors;
    }
}

TEST(ReaderPolicy, AddsAReaderAfterEachSlowBatchUpToTheLimit) {
    ReaderPolicy policy(0, 2);
    EXPECT_FALSE(policy.SlowDisk());
    for (unsigned wanted = 3; wanted <= kMost; ++wanted) {
        EXPECT_TRUE(policy.AfterSlowBatch(true));
        EXPECT_EQ(policy.Wanted(), wanted);
        EXPECT_TRUE(policy.SlowDisk());
    }
    policy.AfterSlowBatch(true);
    EXPECT_EQ(policy.Wanted(), kMost);
}

TEST(ReaderPolicy, AddsNoReaderWhenNothingIsLeftToRead) {
    ReaderPolicy policy(0, 2);
    EXPECT_FALSE(policy.AfterSlowBatch(false));
    EXPECT_EQ(policy.Wanted(), 2U);
    EXPECT_TRUE(policy.SlowDisk());
}

TEST(ReaderPolicy, ReturnsToTheInitialStateAfterFastBatches) {
    for (const unsigned processors : {1U, 2U, 31U, 32U, 33U, 64U, 1024U}) {
        ReaderPolicy policy(0, processors);
        const unsigned first = policy.Wanted();
        policy.AfterSlowBatch(true);
        policy.AfterSlowBatch(true);
        EXPECT_TRUE(policy.SlowDisk()) << processors;
        for (unsigned i = 0; i < 3 * ReaderPolicy::kFastBatches; ++i) {
            policy.AfterFastBatch();
        }
        EXPECT_EQ(policy.Wanted(), first) << processors;
        EXPECT_FALSE(policy.SlowDisk()) << processors;
    }
}

TEST(ReaderPolicy, RestartsTheCountOfFastBatchesAfterASlowOne) {
    ReaderPolicy policy(0, 2);
    policy.AfterSlowBatch(true);
    for (unsigned i = 0; i + 1 < ReaderPolicy::kFastBatches; ++i) {
        policy.AfterFastBatch();
    }
    policy.AfterSlowBatch(false);
    policy.AfterFastBatch();
    EXPECT_EQ(policy.Wanted(), 3U);
}

TEST(ReaderPolicy, KeepsAFixedNumber) {
    ReaderPolicy policy(4, 2);
    EXPECT_FALSE(policy.AfterSlowBatch(true));
    for (unsigned i = 0; i < 3 * ReaderPolicy::kFastBatches; ++i) {
        policy.AfterFastBatch();
    }
    EXPECT_EQ(policy.Wanted(), 4U);
}

} // namespace
} // namespace tunedex
