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
        EXPECT_EQ(OutputTypeOf(name, ListingStyle::Classic), type) << name;
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
        EXPECT_EQ(ListingPath(type, outputFile, ListingStyle::Classic), path);
    }
}

TEST(OutputTypeOf, KnowsTwoMoreExtensionsInModernStyle) {
    for (const auto& [name, type] : std::vector<std::pair<std::string, int>>{{"a.csv", kCsvOutput},
                                                                             {"a.Csv", kCsvOutput},
                                                                             {"a.m3u8", kPlaylistOutput},
                                                                             {"a.M3U8", kPlaylistOutput},
                                                                             {"a.m3u", kPlaylistOutput},
                                                                             {"a.text", kTextOutput},
                                                                             {"a.csv.htm", kHtmlOutput},
                                                                             {"a.m3u9", kHtmlOutput},
                                                                             {"csv", kHtmlOutput},
                                                                             {"", kHtmlOutput}}) {
        EXPECT_EQ(OutputTypeOf(name, ListingStyle::Modern), type) << name;
    }
    for (const char* name : {"a.csv", "a.m3u8"}) {
        EXPECT_EQ(OutputTypeOf(name, ListingStyle::Classic), kHtmlOutput) << name;
    }
}

TEST(ListingPath, KeepsTheExtensionsOfModernStyle) {
    struct Row {
        int type;
        const char* outputFile;
        const char* classic;
        const char* modern;
    };
    for (const Row& row : std::vector<Row>{{kCsvOutput, "a.Csv", "a.Csv.htm", "a.Csv"},
                                           {kCsvOutput, "a", "a.htm", "a.csv"},
                                           {kPlaylistOutput, "a.m3u8", "a.m3u8.m3u", "a.m3u8"},
                                           {kPlaylistOutput, "a.m3u", "a.m3u", "a.m3u"},
                                           {kPlaylistOutput, "a", "a.m3u", "a.m3u"},
                                           {kTextOutput, "a.text", "a.text.txt", "a.text.txt"},
                                           {kHtmlOutput, "a.csv.htm", "a.csv.htm", "a.csv.htm"}}) {
        EXPECT_EQ(ListingPath(row.type, row.outputFile, ListingStyle::Classic), row.classic);
        EXPECT_EQ(ListingPath(row.type, row.outputFile, ListingStyle::Modern), row.modern);
    }
}

} // namespace
} // namespace tunedex
