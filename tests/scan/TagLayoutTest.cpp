#include "TagLayout.h"

#include "Mp3Builder.h"
#include "References.h"
#include "TagBuilder.h"

#include <gtest/gtest.h>

#include <string>

namespace tunedex {
namespace {

using namespace std::string_literals;
using test::ApeTag;
using test::ApeTagOf;
using test::FailingByteSource;
using test::Lyrics3v1;
using test::Lyrics3v2;
using test::TagOf;

TagLayout LayoutOf(const std::string& bytes) {
    FailingByteSource file(bytes);
    return FindTags(file);
}

std::string OldTag() {
    return test::Id3v1Tag({"title", "artist", "album", "1990", "", 17});
}

struct EndRow {
    const char* what;
    std::string end; // behind 1000 bytes of audio
    std::size_t removed;
    bool apev2;
    bool id3v1;
};

TEST(FindTags, RemovesTagsOfEveryKindFromTheEnd) {
    const std::string ape = ApeTag({{"Title", "T"}});
    const std::string lyrics = Lyrics3v2("IND0000200");
    std::string footer = TagOf(4, "", 0x10);
    footer.replace(0, 3, "3DI");
    const std::string appended = TagOf(4, "", 0x10) + footer;
    const auto whole = [](const char* what, const std::string& end, bool apev2, bool id3v1) {
        return EndRow{what, end, end.size(), apev2, id3v1};
    };
    const EndRow rows[] = {
        whole("nothing", "", false, false),
        whole("ID3v1", OldTag(), false, true),
        whole("two ID3v1", OldTag() + OldTag(), false, true),
        whole("APEv2", ape, true, false),
        whole("APEv2, ID3v1", ape + OldTag(), true, true),
        whole("APEv2 without a header", ApeTagOf("", 0, false), true, false),
        whole("Lyrics3 v2, ID3v1", lyrics + OldTag(), false, true),
        whole("Lyrics3 v1, ID3v1", Lyrics3v1("la la"s) + OldTag(), false, true),
        whole("Lyrics3 v1 of 5100 bytes", Lyrics3v1(std::string(5100, 'x')) + OldTag(), false, true),
        whole("APEv2, Lyrics3 v2, ID3v1", ape + lyrics + OldTag(), true, true),
        whole("Lyrics3 v2, APEv2, ID3v1", lyrics + ape + OldTag(), true, true),
        whole("APEv2 behind ID3v1", OldTag() + ape, true, false),
        whole("ID3v2 with a footer", appended, false, false),
        whole("APEv2, ID3v2 with a footer", ape + appended, true, false),
        {"Lyrics3 without a beginning", "x000005LYRICS200", 0, false, false},
        {"Lyrics3 with too short a size", "LYRICSBEGIN000005LYRICS200", 0, false, false},
        {"Lyrics3 with a size that is none", "LYRICSBEGIN00x011LYRICS200", 0, false, false},
        {"Lyrics3 v1 without a beginning", "LYRICSEND", 0, false, false},
        {"an APEv2 footer of size 0", "APETAGEX" + std::string(24, '\0'), 0, false, false},
        {"an APEv2 footer longer than the file", "APETAGEX\xD0\x07\0\0\xFF\xFF\0\0"s + std::string(16, '\0'),
         0, false, false},
        {"a cut ID3v1", OldTag().substr(0, 127), 0, false, false},
    };
    for (const EndRow& row : rows) {
        const std::string file = std::string(1000, 'a') + row.end;
        const TagLayout layout = LayoutOf(file);
        EXPECT_EQ(layout.audioEnd, file.size() - row.removed) << row.what;
        EXPECT_EQ(layout.apev2.has_value(), row.apev2) << row.what;
        EXPECT_EQ(layout.id3v1.has_value(), row.id3v1) << row.what;
        if (layout.id3v1) {
            EXPECT_EQ(std::string(layout.id3v1->begin(), layout.id3v1->end()), OldTag()) << row.what;
        }
        if (layout.apev2) {
            EXPECT_EQ(file.substr(layout.apev2->end, 8), "APETAGEX") << row.what;
        }
    }
}

TEST(FindTags, DoesNotTakeTheMiddleOfAnApeMarkForAnId3v1Tag) {
    // "TAG" of "APETAGEX" is 128 bytes from the end.
    const std::string items = test::ApeItem("Title", std::string(131 - 32 - 14 - 32, 'x'));
    const std::string tag = ApeTagOf(items, 1);
    ASSERT_EQ(tag.substr(tag.size() - 128, 3), "TAG");
    const TagLayout layout = LayoutOf(std::string(1000, 'a') + tag);
    EXPECT_FALSE(layout.id3v1);
    EXPECT_TRUE(layout.apev2);
    EXPECT_EQ(layout.audioEnd, 1000U);
}

TEST(FindTags, FindsTagsAtTheStart) {
    const TagLayout id3v2 = LayoutOf(TagOf(4, std::string(20, '\0')) + std::string(100, 'a'));
    ASSERT_TRUE(id3v2.id3v2);
    EXPECT_EQ(id3v2.id3v2->tagBytes, 30U);
    EXPECT_FALSE(id3v2.apev2);
    const std::string ape = ApeTag({{"Title", "start"}});
    const TagLayout atStart = LayoutOf(ape + std::string(1000, 'a'));
    ASSERT_TRUE(atStart.apev2);
    EXPECT_EQ(atStart.apev2->start, 32U);
    EXPECT_EQ(atStart.apev2->end, ape.size() - 32);
    EXPECT_FALSE(LayoutOf(TagOf(9, "")).id3v2->version != 9);
    const TagLayout both = LayoutOf(ape + std::string(1000, 'a') + ape);
    EXPECT_EQ(both.apev2->start, ape.size() + 1000 + 32) << "the tag at the end comes first";
}

TEST(FindTags, FindsNothingInFilesThatAreTooShortOrCannotBeRead) {
    for (const std::string& bytes :
         {""s, "T"s, "TAG"s, "ID3"s, "APETAGEX"s, "LYRICS200"s, "LYRICSEND"s, "3DI"s}) {
        const TagLayout layout = LayoutOf(bytes);
        EXPECT_FALSE(layout.id3v1 || layout.id3v2 || layout.apev2) << bytes;
        EXPECT_EQ(layout.audioEnd, bytes.size());
    }
    FailingByteSource failing(TagOf(3, "") + OldTag(), 1);
    EXPECT_FALSE(FindTags(failing).id3v2);
}

TEST(FindTags, ReadsTheHeadAndOneBlockAtTheEndOfAnOrdinaryFile) {
    FailingByteSource file(TagOf(3, std::string(100, '\0')) + std::string(5000, 'a') + OldTag());
    FindTags(file);
    EXPECT_EQ(file.Reads(), 3);
}

TEST(FindTags, EndsOnAFileThatIsAllTags) {
    std::string bytes;
    for (int i = 0; i < 1000; ++i) {
        bytes += Lyrics3v1("") + OldTag();
    }
    FailingByteSource file(bytes);
    EXPECT_GT(FindTags(file).audioEnd, 0U);
    EXPECT_LT(file.Reads(), 200);
}

TEST(LeadingTagBytes, MeasuresId3v2AndApev2) {
    const auto bytesOf = [](const std::string& bytes) {
        return LeadingTagBytes({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
    };
    EXPECT_EQ(bytesOf(TagOf(3, std::string(200, 'x'))), 210U);
    EXPECT_EQ(bytesOf(TagOf(4, std::string(200, 'x'), 0x10)), 220U);
    const std::string ape = ApeTag({{"Title", "T"}});
    EXPECT_EQ(bytesOf(ape), ape.size());
    EXPECT_EQ(bytesOf("\xFF\xFB\x90\x04"), 0U);
    EXPECT_EQ(bytesOf(""), 0U);
}

} // namespace
} // namespace tunedex
