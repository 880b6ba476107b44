#include "ShippedFiles.h"

#include "EntityTable.h"
#include "Escaper.h"
#include "Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {
namespace {

std::string_view Shipped(std::string_view path) {
    const auto files = ShippedFiles();
    const auto found = std::find_if(files.begin(), files.end(),
                                    [path](const ShippedFile& file) { return file.path == path; });
    EXPECT_NE(found, files.end()) << path;
    return found == files.end() ? std::string_view() : found->bytes;
}

std::string OnDisk(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    EXPECT_TRUE(file) << path;
    return bytes.str();
}

// The lines of a file; every line must end in CR LF.
std::vector<std::string> Lines(std::string_view bytes) {
    EXPECT_TRUE(bytes.ends_with("\r\n"));
    std::vector<std::string> lines = Split(bytes.substr(0, bytes.size() - 2), "\r\n");
    for (const std::string& line : lines) {
        EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos) << line;
    }
    return lines;
}

EntityTable ShippedTable() {
    EntityTable table;
    std::ostringstream faults;
    table.Load(Lines(Shipped("html_entities.lst")), "html_entities.lst", faults);
    EXPECT_EQ(faults.str(), "");
    return table;
}

std::string Character(unsigned code) {
    std::string text;
    AppendUtf8(text, FromWindows1252(static_cast<unsigned char>(code)));
    return text;
}

TEST(ShippedFiles, EqualTheSourceFilesByteForByte) {
    std::vector<std::string> expected = {"html_entities.lst", "tips.lst"};
    if (std::filesystem::is_directory(SHIPPED_FOLDER "Themes")) {
        for (const auto& entry : std::filesystem::directory_iterator(SHIPPED_FOLDER "Themes")) {
            if (entry.path().extension() == ".thm") {
                expected.push_back("Themes/" + entry.path().filename().string());
            }
        }
    }
    std::sort(expected.begin(), expected.end());
    std::vector<std::string> paths;
    for (const ShippedFile& file : ShippedFiles()) {
        paths.emplace_back(file.path);
        EXPECT_EQ(file.bytes, OnDisk(SHIPPED_FOLDER + paths.back())) << file.path;
        EXPECT_EQ(file.bytes, OnDisk(BUILD_FOLDER + paths.back())) << "next to the program: " << file.path;
    }
    EXPECT_EQ(paths, expected);
}

TEST(ShippedEntityTable, EndsInAnEntry) {
    const std::string last = Lines(Shipped("html_entities.lst")).back();
    ASSERT_FALSE(last.empty());
    EXPECT_NE(last.front(), '#');
    EXPECT_NE(last.find('\t'), std::string::npos);
}

TEST(ShippedEntityTable, StartsWithTheAmpersandAndHasNoDuplicates) {
    const EntityTable table = ShippedTable();
    EXPECT_EQ(table.Slots().front().code, 38);
    std::set<int> codes;
    for (const EntityTable::Slot& slot : table.Slots()) {
        if (slot.code != 0) {
            EXPECT_TRUE(codes.insert(slot.code).second) << slot.code;
        }
    }
    // 4 HTML metacharacters, 96 of ISO-8859-1, 32 only in Windows-1252, 29 control characters.
    EXPECT_EQ(codes.size(), 4U + 96U + 32U + 29U);
}

TEST(ShippedEntityTable, EscapesEverythingThatHtmlForbids) {
    const Escaper escaper(ShippedTable());
    for (unsigned code = 1; code < 256; ++code) {
        const std::string escaped = escaper.EscapeEntities(Character(code));
        EXPECT_TRUE(IsAscii(escaped)) << code;
        const bool whiteSpace = code == 9 || code == 10 || code == 13;
        const bool control = (code < 32 || code == 127) && !whiteSpace;
        EXPECT_EQ(escaped.empty(), control) << code;
        const bool plain =
            (code >= 32 && code < 127 &&
             std::string_view("&<>\"").find(static_cast<char>(code)) == std::string_view::npos) ||
            whiteSpace;
        EXPECT_EQ(escaped == Character(code), plain) << code << ": " << escaped;
    }
}

struct Escape {
    const char* text;
    const char* escaped;
};

TEST(ShippedEntityTable, NamesCharacters) {
    const Escaper escaper(ShippedTable());
    const Escape rows[] = {
        {"a<b & \"c\">", "a&lt;b &amp; &quot;c&quot;&gt;"},
        {"&amp;", "&amp;amp;"},
        {"Où vas-tu, Zoë?", "O&ugrave; vas-tu, Zo&euml;?"},
        {"Straße\u00A0÷ÿ", "Stra&szlig;e&nbsp;&divide;&yuml;"},
        {"2 € – Cœur…", "2 &#8364; &#8211; C&#339;ur&#8230;"},
        {"\u0081", "&#65533;"},
        {"a\u0007b\u007Fc", "abc"},
        {"it's\ta\r\ntab", "it's\ta\r\ntab"},
        {"桜", "桜"},
    };
    for (const Escape& row : rows) {
        EXPECT_EQ(escaper.EscapeEntities(row.text), row.escaped) << row.text;
    }
}

TEST(ShippedTips, AreManyAndOnePerLine) {
    const std::vector<std::string> tips = Lines(Shipped("tips.lst"));
    EXPECT_GE(tips.size(), 30U);
    std::set<std::string> different(tips.begin(), tips.end());
    EXPECT_EQ(different.size(), tips.size());
    for (const std::string& tip : tips) {
        EXPECT_TRUE(IsAscii(tip)) << tip;
        EXPECT_GT(tip.size(), 30U) << tip;
        EXPECT_LT(tip.size(), 220U) << "too long for the window: " << tip;
        EXPECT_NE(std::string_view(".!?").find(tip.back()), std::string_view::npos) << tip;
        EXPECT_EQ(tip.find('\t'), std::string::npos) << tip;
    }
}

} // namespace
} // namespace tunedex
