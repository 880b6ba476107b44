#include "CodePages.h"

#include "Raises.h"
#include "Text.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace tunedex {
namespace {

using namespace std::string_literals;

std::string DecodedWith(const std::string& page, std::string_view bytes) {
    std::string text = "<";
    CodePage(page).AppendDecoded(text, bytes);
    return text.substr(1);
}

std::string DecodedUtf8(std::string_view bytes) {
    std::string text;
    AppendDecodedUtf8(text, bytes);
    return text;
}

std::string DecodedUtf16(std::string_view bytes, ByteOrder order) {
    std::string text;
    AppendDecodedUtf16(text, bytes, order);
    return text;
}

struct PageRow {
    const char* page;
    std::string bytes;
    const char* text;
};

TEST(CodePage, DecodesEveryPageOfTheChoice) {
    const PageRow rows[] = {
        {"windows-1252", "na\xEFve \x80", "naïve €"},
        {"windows-1250", "\xD8\xED\x9Eka", "Řížka"},
        {"windows-1251", "\xCF\xF0\xE8\xE2\xE5\xF2", "Привет"},
        {"KOI8-R", "\xF0\xD2\xC9\xD7\xC5\xD4", "Привет"},
        {"windows-1253", "\xCA\xE1\xEB\xE7", "Καλη"},
        {"windows-1254", "\xDDstanbul\xFE", "İstanbulş"},
        {"windows-1255", "\xF9\xEC\xE5\xED", "שלום"},
        {"windows-1256", "\xE3\xD1\xCD\xC8\xC7", "مرحبا"},
        {"windows-1257", "\xD0il\xEBja", "Šilėja"},
        {"windows-1258", "Vi\xEA\xF2t a\xCC", "Việt à"},
        {"CP874", "\xCA\xC7\xD1\xCA", "สวัส"},
        {"CP932", "\x93\xFA\x96{ \xB1 \\", "日本 ｱ \\"},
        {"GB18030", "\xC4\xE3\xBA\xC3 \x81\x30\x84\x36", "你好 ¥"},
        {"BIG5", "\xA7\x41\xA6\x6E", "你好"},
        {"CP949", "\xBE\xC8\xB3\xE7 \x81\x41", "안녕 갂"},
        {"UTF-8", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", "é€😀"},
    };
    ASSERT_EQ(std::size(rows), kCodePages.size());
    for (std::size_t i = 0; i < kCodePages.size(); ++i) {
        EXPECT_STREQ(kCodePages.at(i).name, rows[i].page);
        EXPECT_EQ(DecodedWith(rows[i].page, rows[i].bytes), rows[i].text) << rows[i].page;
    }
}

TEST(CodePage, LeavesAsciiAsItIsInEveryPageOfTheChoice) {
    std::string ascii;
    for (char c = 0; c < 127; ++c) {
        ascii += c;
    }
    for (const CodePageName& page : kCodePages) {
        EXPECT_EQ(DecodedWith(page.name, ascii), ascii) << page.name;
        EXPECT_TRUE(DecodedWith(page.name, "\xFF ABC\\").ends_with(" ABC\\"))
            << page.name << ": beside others";
    }
}

TEST(CodePage, ReplacesWhatThePageDoesNotDefine) {
    const PageRow rows[] = {
        {"windows-1252", "a\x81\x8D\x8F\x90\x9Dz", "a\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDz"},
        {"CP874", "\xFF\xDBz", "\uFFFD\uFFFDz"},
        {"CP932", "a\xFF\x93\xFA", "a\uFFFD日"},
        {"CP932", "ab\x93", "ab\uFFFD"},
        {"CP932", "\x93\x20z", "\uFFFD z"},
        {"GB18030", "\x81\x30\x84", "\uFFFD"},
        {"CP949", "z\xC9", "z\uFFFD"},
        {"CP949", "z\xA2\xE8", "z\uFFFD"},
        {"windows-1258", "a\xD2\xE2", "\u1EA3â"},
        {"UTF-8", "\xE2\x82z\xFF", "\uFFFDz\uFFFD"},
        {"utf8", "\xE2\x82z\xFF", "\uFFFDz\uFFFD"},
    };
    for (const PageRow& row : rows) {
        EXPECT_EQ(DecodedWith(row.page, row.bytes), row.text) << row.page;
    }
}

TEST(CodePage, AlwaysMakesValidUtf8) {
    for (const CodePageName& page : kCodePages) {
        const CodePage codePage(page.name);
        for (int first = 0; first < 256; ++first) {
            for (int second = 0; second < 256; ++second) {
                const std::string bytes{static_cast<char>(first), static_cast<char>(second)};
                std::string text;
                codePage.AppendDecoded(text, bytes);
                ASSERT_TRUE(IsValidUtf8(text)) << page.name << " " << first << " " << second;
                ASSERT_FALSE(text.empty());
            }
        }
    }
}

TEST(CodePage, DecodesTextsOfAnyLength) {
    std::string bytes;
    std::string expected;
    for (int i = 0; i < 1500; ++i) {
        bytes += i % 3 == 0 ? "a" : "\x93\xFA";
        expected += i % 3 == 0 ? "a" : "日";
        if (i % 100 == 0) {
            EXPECT_EQ(DecodedWith("CP932", bytes), expected) << i;
        }
    }
}

TEST(CodePage, KeepsTheStateOfSevenBitEncodings) {
    EXPECT_EQ(DecodedWith("ISO-2022-JP", "\x1B$BF|\x1B(B a"), "日 a");
    EXPECT_EQ(DecodedWith("UTF-7", "a+AOk-z"), "aéz");
}

TEST(CodePage, IsSafeOnManyThreads) {
    for (const char* name : {"windows-1251", "CP932"}) {
        const CodePage page(name);
        const std::string bytes(300, '\xB1');
        std::string expected;
        page.AppendDecoded(expected, bytes);
        std::vector<std::string> texts(4);
        std::vector<std::thread> threads;
        threads.reserve(texts.size());
        for (std::string& text : texts) {
            threads.emplace_back([&] {
                for (int i = 0; i < 200; ++i) {
                    text.clear();
                    page.AppendDecoded(text, bytes);
                }
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        for (const std::string& text : texts) {
            EXPECT_EQ(text, expected);
        }
    }
}

TEST(IsCodePage, KnowsTheNamesOfIconvAndNothingElse) {
    for (const CodePageName& page : kCodePages) {
        EXPECT_TRUE(IsCodePage(page.name)) << page.name;
    }
    EXPECT_TRUE(IsCodePage(kDefaultCodePage));
    EXPECT_TRUE(IsCodePage("iso-8859-15"));
    for (const std::string& name :
         {""s, "no-such-page"s, "windows-1252//IGNORE"s, "UTF-8//"s, "//"s, "UTF-8/"s, " UTF-8"s,
          "UTF-8,CP932"s, "windows-1252\0x"s, "../UTF-8"s, "\xC3\xA9"s}) {
        EXPECT_FALSE(IsCodePage(name)) << name;
        EXPECT_EQ(test::RaisedBy([&] { CodePage page(name); }), 5) << name;
    }
}

TEST(PieceOf, SplitsNoCharacter) {
    struct PieceRow {
        const char* page;
        std::string bytes;
        std::size_t piece;
    };
    const PieceRow rows[] = {
        {"windows-1252", "abcdefgh", 8},
        {"windows-1252", "abcdefghi", 8},
        {"UTF-8", "abcdefghi", 8},
        {"UTF-8", "abcdefg\xC3\xA9", 7},
        {"UTF-8", "abcdef\xE2\x82\xAC", 6},
        {"UTF-8", "abcdef\xE2\x82z", 8},
        {"UTF-8", "abcdef\xF0\x9F\x98z", 6}, // the ill-formed sequence is one character
        {"UTF-8", "abcde\xF0\x9F\x98\x80", 5},
        {"UTF-8", "abcdefgh\xC3\xA9", 8},
        {"CP932", "a \x93\xFA\x93\xFA\x93\xFA\x93\xFA", 2},
        {"CP932", "aa\x93\xFA\x93\xFA\x93\xFA\x93\xFA.a", 11},
        {"CP932", "aa\x93\xFA\x93\xFA\x93\xFA\x93\xFA", 10},
        {"UTF-7", "abcdefg +AOk-", 13},
    };
    for (const PieceRow& row : rows) {
        EXPECT_EQ(CodePage(row.page).PieceOf(row.bytes, 8), row.piece) << row.page << " " << row.bytes;
    }
}

struct BytesRow {
    std::string bytes;
    const char* text;
};

TEST(AppendDecodedUtf8, ReplacesEachMaximalSubpartOnce) {
    const BytesRow rows[] = {
        {"", ""},
        {"plain", "plain"},
        {"\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF",
         "\x7F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF"},
        {"\x80", "\uFFFD"},
        {"\xC0\xAF", "\uFFFD\uFFFD"},
        {"\xC1\xBF\xF5\xFF", "\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xE0\x9F\x80", "\uFFFD\uFFFD\uFFFD"},
        {"\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},
        {"\xF0\x8F\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xF4\x90\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xE2\x82", "\uFFFD"},
        {"\xE2\x82\xE2\x82\xAC", "\uFFFD€"},
        {"\xF0\x9F\x98z", "\uFFFDz"},
        {"\xF0\x9F\xC3\xA9", "\uFFFDé"},
        {"\xC3", "\uFFFD"},
        // The example of the Unicode Standard, table 3-8.
        {"a\xF1\x80\x80\xE1\x80\xC2"
         "b\x80"
         "c\x80\xBF"
         "d",
         "a\uFFFD\uFFFD\uFFFDb\uFFFDc\uFFFD\uFFFDd"},
    };
    for (const BytesRow& row : rows) {
        EXPECT_EQ(DecodedUtf8(row.bytes), row.text);
    }
}

TEST(AppendDecodedUtf16, DecodesBothByteOrdersAndReplacesUnpairedSurrogates) {
    const std::pair<std::u16string, std::string> rows[] = {
        {u"", ""},
        {u"a\u00E9\u20AC\U0001F600\uFFFF", "aé€😀\uFFFF"},
        {u"\xD83D", "\uFFFD"},
        {u"\xDE00", "\uFFFD"},
        {u"\xD83Dz", "\uFFFDz"},
        {u"\xDE00\xD83D", "\uFFFD\uFFFD"},
        {u"\xD83D\xD83D\xDE00", "\uFFFD😀"},
    };
    for (const auto& [units, text] : rows) {
        std::string little;
        std::string big;
        for (const char16_t unit : units) {
            little += {static_cast<char>(unit & 0xFFU), static_cast<char>(unit >> 8U)};
            big += {static_cast<char>(unit >> 8U), static_cast<char>(unit & 0xFFU)};
        }
        EXPECT_EQ(DecodedUtf16(little, ByteOrder::LittleEndian), text);
        EXPECT_EQ(DecodedUtf16(big, ByteOrder::BigEndian), text);
        EXPECT_EQ(DecodedUtf16(big + "x", ByteOrder::BigEndian), text) << "an odd byte";
    }
}

} // namespace
} // namespace tunedex
