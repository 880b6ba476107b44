#include "TextLines.h"

#include "OrdinaryUser.h"
#include "Raises.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace tunedex {
namespace {

using Lines = std::vector<std::string>;

TEST(SplitTextLines, AcceptsEveryKindOfLineEnd) {
    const std::vector<std::pair<std::string, Lines>> rows = {
        {"", {}},
        {"a", {"a"}},
        {"a\r\n", {"a"}},
        {"a\n", {"a"}},
        {"a\r", {"a"}},
        {"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
        {"\r\n", {""}},
        {"\n\n", {"", ""}},
        {"\n\r", {"", ""}},
        {"\r\r\n", {"", ""}},
        {"a\r\n\r\nb\r\n", {"a", "", "b"}},
        {"a\r\n ", {"a", " "}},
    };
    for (const auto& [bytes, lines] : rows) {
        EXPECT_EQ(SplitTextLines(bytes), lines) << testing::PrintToString(bytes);
    }
}

TEST(SplitTextLines, DecodesEachLineSeparately) {
    EXPECT_EQ(SplitTextLines("Caf\xE9\r\nCaf\xC3\xA9\r\n\x81\xC3\xA9"),
              (Lines{"Café", "Café", "\xC2\x81Ã©"}));
}

TEST(SplitTextLines, SkipsTheByteOrderMark) {
    EXPECT_EQ(SplitTextLines("\xEF\xBB\xBF"
                             "Key=1\r\n\xEF\xBB\xBFx"),
              (Lines{"Key=1", "\uFEFFx"}));
    EXPECT_EQ(SplitTextLines("\xEF\xBB\xBF"), Lines());
    EXPECT_EQ(SplitTextLines("\xEF\xBB"), Lines{"ï»"});
}

TEST(ReadTextLines, ReadsAFileOfAnyLengthToItsEnd) {
    const test::TestFolder folder;
    for (const std::size_t length : {0U, 1U, 65535U, 65536U, 65537U, 300000U}) {
        const std::string line(length, 'x');
        const std::string path = folder.Write("f", line + "\r\nlast");
        EXPECT_EQ(ReadTextLines(path), (Lines{line, "last"})) << length;
    }
    EXPECT_EQ(ReadTextLines(folder.Write("empty", "")), Lines());
}

TEST(ReadTextLines, RaisesTheErrorOfAFileThatCannotBeRead) {
    const test::TestFolder folder;
    EXPECT_EQ(test::RaisedBy([&] { ReadTextLines(folder / "none"); }), 53);
    EXPECT_EQ(test::RaisedBy([&] { ReadTextLines(folder.Make("folder")); }), 53);
    EXPECT_EQ(test::RaisedBy([&] { ReadTextLines(folder / std::string(256, 'n')); }), 52);
    ASSERT_EQ(mkfifo((folder / "fifo").c_str(), 0600), 0);
    EXPECT_EQ(test::RaisedBy([&] { ReadTextLines(folder / "fifo"); }), 53);
}

TEST(ReadTextLines, RaisesErrorSeventyFiveWhereReadingIsForbidden) {
    const test::TestFolder folder;
    const std::string path = folder.Write("secret", "x");
    std::filesystem::permissions(path, std::filesystem::perms::none);
    test::AsOrdinaryUser(folder, [&] { EXPECT_EQ(test::RaisedBy([&] { ReadTextLines(path); }), 75); });
}

} // namespace
} // namespace tunedex
