#include "TagTexts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tunedex {
namespace {

using namespace std::string_literals;

struct SplitRow {
    std::string bytes;
    TagEncoding encoding;
    std::vector<std::string> values;
};

// The values of a text as TagTexts decodes them.
std::vector<std::string> SplitAndDecoded(const std::string& bytes, TagEncoding encoding) {
    const CodePage page(kDefaultCodePage);
    TrackInfo track;
    const TagTexts texts(track, page, false, nullptr);
    std::vector<std::string> decoded;
    TagValues values(bytes, encoding);
    while (const auto value = values.Next()) {
        decoded.push_back(texts.Decoded(*value));
    }
    return decoded;
}

TEST(TagValues, SplitAtNulsAndDropBlanksAtTheEndAndEmptyValues) {
    const SplitRow rows[] = {
        {"", TagEncoding::CodePage, {}},
        {"a", TagEncoding::CodePage, {"a"}},
        {"a\0"s, TagEncoding::CodePage, {"a"}},
        {"a\0b"s, TagEncoding::CodePage, {"a", "b"}},
        {"\0\0a \0 \0  b  \0\0"s, TagEncoding::CodePage, {"a", "  b"}},
        {"\xE9\x81", TagEncoding::CodePage, {"é\uFFFD"}},
        {"a\t\r\n", TagEncoding::CodePage, {"a\t\r\n"}},
        {"\xC3\xA9\0\xE2\x82"s, TagEncoding::Utf8, {"é", "\uFFFD"}},
        {"\xFF\xFE"
         "a\0"s,
         TagEncoding::Utf16,
         {"a"}},
        {"\xFE\xFF\0a"s, TagEncoding::Utf16, {"a"}},
        {"a\0b\0"s, TagEncoding::Utf16, {"ab"}},
        {"\xFF\xFE"
         "a\0 \0\0\0\xFE\xFF\0b\0 "s,
         TagEncoding::Utf16,
         {"a", "b"}},
        {"\xFE\xFF\0a\0\0\0b"s, TagEncoding::Utf16, {"a", "b"}},
        {"\xFF\xFE\0\0"s, TagEncoding::Utf16, {}},
        {"\xFF\xFE"s, TagEncoding::Utf16, {}},
        {"\xFF\xFE\x00\x01\x01\x00"s, TagEncoding::Utf16, {"\u0100\u0001"}},
        {"\xFF\xFE"
         "a\0b"s,
         TagEncoding::Utf16,
         {"a"}},
        {"a\0\0\0\0"s, TagEncoding::Utf16, {"a"}},
        {"\0a\0\0\0b"s, TagEncoding::Utf16BigEndian, {"a", "b"}},
        {"\xFE\xFF\0a"s, TagEncoding::Utf16BigEndian, {"a"}},
        {"\0a\0"s, TagEncoding::Utf16BigEndian, {"a"}},
    };
    for (const SplitRow& row : rows) {
        EXPECT_EQ(SplitAndDecoded(row.bytes, row.encoding), row.values) << testing::PrintToString(row.bytes);
    }
}

TEST(BehindTerminator, FindsTheFirstTerminatorOfTheEncoding) {
    EXPECT_EQ(BehindTerminator("ab\0c"s, TagEncoding::CodePage), 3U);
    EXPECT_EQ(BehindTerminator("abc", TagEncoding::Utf8), 3U);
    EXPECT_EQ(BehindTerminator("a\0\0\0\0\0"s, TagEncoding::Utf16), 4U);
    EXPECT_EQ(BehindTerminator("\0a\0\0"s, TagEncoding::Utf16BigEndian), 4U);
    EXPECT_EQ(BehindTerminator("a\0b\0\0"s, TagEncoding::Utf16), 5U) << "half a terminator";
    EXPECT_EQ(BehindTerminator("", TagEncoding::Utf16), 0U);
}

class TagTextsTest : public testing::Test {
  protected:
    TagTexts Texts(LongTextPool* pool = nullptr, bool moveTheArtists = false) {
        return {track_, page_, moveTheArtists, pool};
    }
    std::string LongView(TagField field) const {
        for (const LongField& held : track_.LongFields) {
            if (held.field == field) {
                return std::string(held.text->View());
            }
        }
        return "not long";
    }

    const CodePage page_{kDefaultCodePage};
    TrackInfo track_;
    LongTextPool pool_;
};

TEST_F(TagTextsTest, JoinValuesAndAddOnlyNewOnesOfALaterFrame) {
    TagTexts texts = Texts();
    texts.Add(&TrackInfo::Artist, TagValues("A\0A\0B"s, TagEncoding::CodePage));
    EXPECT_EQ(track_.Artist, "A; A; B");
    texts.Add(&TrackInfo::Artist, TagValues("B\0C\0A\0C\0; "s, TagEncoding::CodePage));
    EXPECT_EQ(track_.Artist, "A; A; B; C; ;");
    texts.Add(&TrackInfo::Artist, TagValues("", TagEncoding::CodePage));
    EXPECT_EQ(track_.Artist, "A; A; B; C; ;");
}

TEST_F(TagTextsTest, ResolveGenres) {
    TagTexts texts = Texts();
    texts.Add(&TrackInfo::Genre, TagValues("(4)X\00017\0(RX)"s, TagEncoding::CodePage), ValueKind::Genre);
    EXPECT_EQ(track_.Genre, "Disco; X; Rock; Remix");
    texts.Add(&TrackInfo::Genre, TagValues("17\0Own"s, TagEncoding::CodePage), ValueKind::Genre);
    EXPECT_EQ(track_.Genre, "Disco; X; Rock; Remix; Own");
    texts.Clear();
    texts.Add(&TrackInfo::Genre, TagValues("(4)" + std::string(2000, 'x'), TagEncoding::CodePage),
              ValueKind::Genre);
    EXPECT_EQ(track_.Genre, "Disco; " + std::string(2000, 'x')) << "also in a long text";
    texts.Add(&TrackInfo::Title, TagValues("17", TagEncoding::CodePage));
    EXPECT_EQ(track_.Title, "17") << "only a genre is resolved";
}

TEST_F(TagTextsTest, ShareLongTextsAndKeepTheFirst) {
    TagTexts texts = Texts(&pool_);
    const std::string almost(kLongTextBytes - 1, 'x');
    texts.Add(&TrackInfo::Title, TagValues(almost, TagEncoding::CodePage));
    EXPECT_EQ(track_.Title, almost);
    EXPECT_TRUE(track_.LongFields.empty());
    texts.Add(&TrackInfo::Title, TagValues("y", TagEncoding::CodePage));
    EXPECT_EQ(LongView(&TrackInfo::Title), almost + "; y");
    EXPECT_EQ(track_.Title, "");
    EXPECT_FALSE(texts.Lacks(&TrackInfo::Title));
    texts.Add(&TrackInfo::Title, TagValues("z", TagEncoding::CodePage));
    EXPECT_EQ(LongView(&TrackInfo::Title), almost + "; y");
    texts.Add(&TrackInfo::Comment, TagValues(almost + "; y", TagEncoding::CodePage));
    EXPECT_EQ(track_.LongFields[0].text, track_.LongFields[1].text);
    EXPECT_LT(track_.Title.capacity(), kLongTextBytes) << "a record in a queue holds no memory";
    texts.Clear();
    EXPECT_TRUE(texts.Lacks(&TrackInfo::Title));
}

// Long values are decoded in pieces; no boundary may show.
TEST_F(TagTextsTest, DecodeAValueOfAnyLengthInEveryEncoding) {
    struct LengthRow {
        const char* page;
        TagEncoding encoding;
        std::string bytes;
        std::string text;
    };
    const LengthRow rows[] = {
        {"windows-1252", TagEncoding::CodePage, "a\xE9", "aé"},
        {"CP932", TagEncoding::CodePage, "a\x93\xFA", "a日"},
        {"CP932", TagEncoding::CodePage, "\x93\xFA\x93\xFA ", "日日 "},
        {"windows-1252", TagEncoding::Utf8, "\xE2\x82\xAC", "€"},
        {"windows-1252", TagEncoding::Utf8, "a\xF0\x9F\x98\x80", "a😀"},
        {"windows-1252", TagEncoding::Utf16, "\x3D\xD8\x00\xDE"s, "😀"},
        {"windows-1252", TagEncoding::Utf16BigEndian, "\0a\xD8\x3D\xDE\0"s, "a😀"},
    };
    for (const LengthRow& row : rows) {
        const CodePage page(row.page);
        for (const std::size_t count : {1U, 500U, 1364U, 1365U, 1366U, 5000U, 30001U}) {
            std::string bytes;
            std::string expected;
            for (std::size_t i = 0; i < count; ++i) {
                bytes += row.bytes;
                expected += row.text;
            }
            bytes += row.encoding == TagEncoding::Utf16            ? "z\0"s
                     : row.encoding == TagEncoding::Utf16BigEndian ? "\0z"s
                                                                   : "z"s;
            TrackInfo track;
            TagTexts(track, page, false, nullptr).Add(&TrackInfo::Title, TagValues(bytes, row.encoding));
            EXPECT_TRUE(track.Title == expected + "z") << row.page << " " << count;
        }
    }
}

TEST_F(TagTextsTest, FinishMovesTheArticleOfBothArtistsAndFillsInDefaults) {
    TagTexts texts = Texts(nullptr, true);
    texts.Finish();
    EXPECT_EQ(track_.Artist, "Unknown Artist");
    EXPECT_EQ(track_.Title, "Unknown Title");
    EXPECT_EQ(track_.AlbumArtist, "");
    texts.Clear();
    texts.Add(&TrackInfo::Artist, TagValues("The A\0The B"s, TagEncoding::CodePage));
    texts.Add(&TrackInfo::AlbumArtist, TagValues("the A", TagEncoding::CodePage));
    texts.Finish();
    EXPECT_EQ(track_.Artist, "A; The B, The");
    EXPECT_EQ(track_.AlbumArtist, "A, The");
    const std::string artist(2000, 'x');
    TagTexts pooled = Texts(&pool_, true);
    pooled.Clear();
    pooled.Add(&TrackInfo::Artist, TagValues("The " + artist, TagEncoding::CodePage));
    pooled.Finish();
    EXPECT_EQ(LongView(&TrackInfo::Artist), artist + ", The");
    TagTexts unpooled = Texts(nullptr, true);
    unpooled.Clear();
    unpooled.Add(&TrackInfo::Artist, TagValues("The " + artist, TagEncoding::CodePage));
    unpooled.Finish();
    EXPECT_EQ(track_.Artist, artist + ", The");
}

} // namespace
} // namespace tunedex
