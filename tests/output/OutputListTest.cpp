#include "OutputList.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace tunedex {
namespace {

TEST(OutputTypeOf, DependsOnTheExtension) {
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

TEST(ListingPath, AppendsAMissingExtension) {
    struct Row {
        int type;
        const char* outputFile;
        const char* path;
    };
    for (const auto& [type, outputFile, path] : std::vector<Row>{{0, "a.htm", "a.htm"},
                                                                 {0, "a.HTML", "a.HTML"},
                                                                 {0, "a", "a.htm"},
                                                                 {0, "a.mp3", "a.mp3.htm"},
                                                                 {3, "a.xml", "a.xml.htm"},
                                                                 {1, "a.Txt", "a.Txt"},
                                                                 {1, "a.text", "a.text.txt"},
                                                                 {2, "a.M3U", "a.M3U"},
                                                                 {2, "a", "a.m3u"}}) {
        EXPECT_EQ(ListingPath(type, outputFile), path);
    }
}

} // namespace
} // namespace tunedex
