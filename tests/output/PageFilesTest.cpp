#include "PageFiles.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tunedex {
namespace {

struct PagesRow {
    std::size_t tracks;
    std::int16_t spanning;
    std::int32_t pages;
};

const std::vector<PagesRow> kPagesRows = {{0, 100, 1},   {99, 100, 1},  {100, 100, 1}, {101, 100, 2},
                                          {200, 100, 2}, {250, 100, 3}, {250, 0, 1},   {250, -5, 1},
                                          {0, 0, 1},     {3, 1, 3},     {1, 1, 1},     {1000, 1, 1000}};

TEST(PageFiles, SplitTheTracksIntoPages) {
    for (const PagesRow& row : kPagesRows) {
        EXPECT_EQ(PageFiles("list.htm", row.spanning, row.tracks).Count(), row.pages)
            << row.tracks << " " << row.spanning;
    }
}

TEST(PageFiles, HoldEveryTrackOnceInOrder) {
    for (const PagesRow& row : kPagesRows) {
        const PageFiles files("list.htm", row.spanning, row.tracks);
        std::size_t next = 1;
        for (std::int32_t page = 1; page <= files.Count(); ++page) {
            const auto [first, last] = files.TracksOf(page);
            EXPECT_EQ(first, next);
            next = last + 1;
        }
        EXPECT_EQ(next, row.tracks + 1) << row.tracks << " " << row.spanning;
    }
    const auto [first, last] = PageFiles("list.htm", 100, 250).TracksOf(3);
    EXPECT_EQ(first, 201U);
    EXPECT_EQ(last, 250U);
}

TEST(PageFiles, AreNumberedOnlyIfThereAreSeveral) {
    EXPECT_EQ(PageFiles("/out/my.list.html", 100, 100).PathOf(1), "/out/my.list.html");
    const PageFiles several("/out/my.list.html", 1, 1000);
    EXPECT_EQ(several.PathOf(1), "/out/my.list.001.html");
    EXPECT_EQ(several.PathOf(999), "/out/my.list.999.html");
    EXPECT_EQ(several.PathOf(1000), "/out/my.list.1000.html");
}

TEST(PageFiles, AreLinkedByTheirNamesWithoutTheFolder) {
    EXPECT_EQ(PageFiles("/out/list.htm", 1, 2).LinkTo(2, PathStyle::Unix()), "list.002.htm");
    EXPECT_EQ(PageFiles("C:\\out\\list.htm", 1, 2).LinkTo(1, PathStyle::Windows()), "list.001.htm");
}

} // namespace
} // namespace tunedex
