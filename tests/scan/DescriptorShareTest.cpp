#include "DescriptorShare.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

namespace tunedex {
namespace {

TEST(DescriptorShare, IsBoundedByItsPartOfTheLimit) {
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    struct Row {
        rlim_t limit;
        std::size_t most, part, share;
    };
    for (const Row& row : {Row{256, 64, 4, 64}, Row{256, 128, 4, 64}, Row{64, 64, 16, 4}, Row{24, 64, 16, 1},
                           Row{24, 128, 4, 6}, Row{24, 64, 100, 1}}) {
        rlimit limit = before;
        limit.rlim_cur = row.limit;
        ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
        EXPECT_EQ(DescriptorShare(row.most, row.part), row.share) << row.limit;
    }
    setrlimit(RLIMIT_NOFILE, &before);
}

} // namespace
} // namespace tunedex
