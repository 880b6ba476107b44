#include "RecentPaths.h"

#include "Fakes.h"
#include "HomeFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tunedex {
namespace {

TEST(RecentPaths, KeepsTheLatestTenWithTheLatestFirst) {
    test::FakeRegistry registry;
    RecentPaths paths(registry, kRecentFoldersValue);
    EXPECT_TRUE(paths.Paths().empty());
    paths.Add("/a");
    paths.Add("/b");
    paths.Add("");
    paths.Add("/a");
    EXPECT_EQ(paths.Paths(), (std::vector<std::string>{"/a", "/b"}));
    for (int i = 0; i < 12; ++i) {
        paths.Add("/" + std::to_string(i));
    }
    EXPECT_EQ(paths.Paths().size(), RecentPaths::kMost);
    EXPECT_EQ(paths.Paths().front(), "/11");
    EXPECT_EQ(paths.Paths().back(), "/2");
    EXPECT_TRUE(RecentPaths(registry, kRecentOutputsValue).Paths().empty());
    paths.Clear();
    EXPECT_TRUE(paths.Paths().empty());
}

TEST(RecentPaths, KeepsEveryCharacterOfAPath) {
    test::FakeRegistry registry;
    RecentPaths paths(registry, kRecentFoldersValue);
    const std::vector<std::string> hostile = {"/a|b", "/100%", "/%7C", "/%25|", "/line\nbreak", "/\xFF"};
    for (auto path = hostile.rbegin(); path != hostile.rend(); ++path) {
        paths.Add(*path);
    }
    EXPECT_EQ(paths.Paths(), hostile);
}

TEST(ExpandHome, ReplacesALeadingTildeOnly) {
    setenv("HOME", "/home/lea", 1);
    EXPECT_EQ(ExpandHome("~"), "/home/lea");
    EXPECT_EQ(ExpandHome("~/Music"), "/home/lea/Music");
    for (const char* path : {"", "/~", "~lea", "a~", "./~", "~~/x"}) {
        EXPECT_EQ(ExpandHome(path), path);
    }
}

} // namespace
} // namespace tunedex
