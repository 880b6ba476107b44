#include "OutputList.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace tunedex {
namespace {

TEST(OutputTypeOf, LooksAtWhatFollowsTheLastFullStop) {
    for (const auto& [name, type] : std::vector<std::pair<std::string, int>>{{"a.htm", 0},
                                                                             {"a.html", 0},
                                                                             {"a.TXT", 1},
                                                                             {"a.text", 1},
                                                                             {"a.m3u", 2},
                                                                             {"a.M3U", 2},
                                                                             {"a", 0},
                                                                             {"txt", 0},
                                                                             {"", 0},
                                                                             {"a.txt.htm", 0},
                                                                             {"a.htm.txt", 1},
                                                                             {"/x.txt/a", 0},
                                                                             {"a.m3u8", 0},
                                                                             {".txt", 1}}) {
        EXPECT_EQ(OutputTypeOf(name), type) << name;
    }
}

} // namespace
} // namespace tunedex
