#include "ModernTags.h"

#include "Mp3Builder.h"
#include "References.h"
#include "TagBuilder.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace tunedex {
namespace {

using namespace std::string_literals;
using test::ApeItem;
using test::ApeTag;
using test::ApeTagOf;
using test::FailingByteSource;
using test::FrameOf;
using test::OrdinaryFrames;
using test::TagOf;

struct ReadTags {
    TagKind kind;
    TrackInfo track;
};

ReadTags TagsOf(const std::string& bytes, const char* pageName = kDefaultCodePage,
                bool moveTheArtists = false) {
    FailingByteSource file(bytes);
    const CodePage page(pageName);
    ReadTags read{};
    read.kind = ReadModernTags(file, FindTags(file), {page, moveTheArtists}, read.track);
    return read;
}

std::string OldTagOf(const test::Id3v1Fields& fields) {
    return test::Id3v1Tag(fields);
}

TEST(ReadModernTags, FillsInWhatATagLacksFromTheNextKind) {
    const std::string id3v2 = TagOf(3, FrameOf(3, "TIT2", "\0v2 title"s) + FrameOf(3, "TALB", "\0 "s));
    const std::string ape =
        ApeTag({{"Title", "ape title"}, {"Album", "ape album"}, {"Composer", "ape composer"}});
    const std::string old = OldTagOf({"v1 title", "v1 artist", "v1 album", "1990", "v1 comment", 17});
    const ReadTags all = TagsOf(id3v2 + OrdinaryFrames(5) + ape + old);
    EXPECT_EQ(all.kind, kId3v2Tag);
    EXPECT_EQ(all.track.Title, "v2 title");
    EXPECT_EQ(all.track.Album, "ape album") << "an empty text is lacking";
    EXPECT_EQ(all.track.Composer, "ape composer");
    EXPECT_EQ(all.track.Artist, "v1 artist");
    EXPECT_EQ(all.track.Year, "1990");
    EXPECT_EQ(all.track.Genre, "Rock");
    EXPECT_EQ(all.track.Comment, "v1 comment");
    EXPECT_EQ(TagsOf(OrdinaryFrames(5) + ape + old).kind, kApeTag);
    EXPECT_EQ(TagsOf(OrdinaryFrames(5) + ape + old).track.Title, "ape title");
    EXPECT_EQ(TagsOf(OrdinaryFrames(5) + old).kind, kId3v1Tag);
    EXPECT_EQ(TagsOf(id3v2 + OrdinaryFrames(5)).track.Artist, "Unknown Artist");
    EXPECT_EQ(TagsOf(ApeTag({{"Genre", "x"}})).track.Title, "Unknown Title");
}

TEST(ReadModernTags, FindsNoTagInAFileWithoutOneThatCanBeRead) {
    for (const std::string& bytes :
         {""s, OrdinaryFrames(5), TagOf(5, FrameOf(3, "TIT2", "\0x"s)) + OrdinaryFrames(5),
          TagOf(2, "", 0x40)}) {
        const ReadTags read = TagsOf(bytes);
        EXPECT_EQ(read.kind, kNoTag);
        EXPECT_EQ(read.track, TrackInfo());
    }
    const std::string old = OldTagOf({"v1 title", "", "", "", "", 255});
    EXPECT_EQ(TagsOf(TagOf(5, "") + OrdinaryFrames(5) + old).kind, kId3v1Tag);
}

TEST(ReadModernTags, ReadsTheFirstOfSeveralId3v2Tags) {
    const ReadTags read = TagsOf(TagOf(3, FrameOf(3, "TIT2", "\0first"s)) +
                                 TagOf(3, FrameOf(3, "TIT2", "\0second"s) + FrameOf(3, "TALB", "\0second"s)));
    EXPECT_EQ(read.track.Title, "first");
    EXPECT_EQ(read.track.Album, "");
}

struct OldRow {
    test::Id3v1Fields fields;
    const char* page;
    const char* title;
    const char* comment;
    const char* track;
    const char* genre;
};

TEST(ReadModernTags, ReadsId3v1InTheCodePageWithTheTrackOfVersion11) {
    const std::string eleven = std::string(28, 'c') + '\0';
    const OldRow rows[] = {
        {{"\xCF\xF0\xE8\xE2\xE5\xF2", "", "", "", "", 17}, "windows-1251", "Привет", "", "", "Rock"},
        {{"\x93\xFA\x96{", "", "", "", "", 148}, "CP932", "日本", "", "", "Abstract"},
        {{"na\xEFve", "", "", "", "", 255}, kDefaultCodePage, "naïve", "", "", ""},
        {{"title \0rest"s, "", "", "", eleven + "\x07", 0},
         kDefaultCodePage,
         "title",
         "cccccccccccccccccccccccccccc",
         "7",
         "Blues"},
        {{"  t  ", "", "", "", eleven + "\xFF", 192},
         kDefaultCodePage,
         "  t",
         "cccccccccccccccccccccccccccc",
         "255",
         ""},
        {{"t", "", "", "", std::string(30, 'c'), 0},
         kDefaultCodePage,
         "t",
         "cccccccccccccccccccccccccccccc",
         "",
         "Blues"},
        {{"t", "", "", "", "c", 0}, kDefaultCodePage, "t", "c", "", "Blues"},
        {{"t", "", "", "", "c" + std::string(28, '\0') + " ", 0}, kDefaultCodePage, "t", "c", "32", "Blues"},
        {{std::string(30, 't'), "", "", "", "", 0},
         kDefaultCodePage,
         "tttttttttttttttttttttttttttttt",
         "",
         "",
         "Blues"},
    };
    for (const OldRow& row : rows) {
        const ReadTags read = TagsOf(OldTagOf(row.fields), row.page);
        EXPECT_EQ(read.kind, kId3v1Tag);
        EXPECT_EQ(read.track.Title, row.title);
        EXPECT_EQ(read.track.Comment, row.comment);
        EXPECT_EQ(read.track.Track, row.track);
        EXPECT_EQ(read.track.Genre, row.genre);
    }
}

TEST(ReadModernTags, ReadsEncoding0InTheCodePage) {
    const std::string tag = TagOf(3, FrameOf(3, "TIT2", "\0\xCF\xF0"s) + FrameOf(3, "TALB", "\3\xC3\xA9"s));
    EXPECT_EQ(TagsOf(tag, "windows-1251").track.Title, "Пр");
    EXPECT_EQ(TagsOf(tag, "windows-1251").track.Album, "é");
}

TEST(ReadModernTags, ReadsApeKeysInAnyCaseAndOnlyTexts) {
    const std::string items = ApeItem("TITLE", "t") + ApeItem("artist", "a\0b "s) + ApeItem("aLbUm", "al") +
                              ApeItem("Year", "2001-02") + ApeItem("Genre", "(17)") +
                              ApeItem("Track", "3/12") + ApeItem("Disc", "1/2") +
                              ApeItem("Album Artist", "aa") + ApeItem("Composer", "c") +
                              ApeItem("Comment", "\xC3\xA9\xFF") + ApeItem("Title", "later");
    const TrackInfo track = TagsOf(ApeTagOf(items, 11)).track;
    EXPECT_EQ(track.Title, "t");
    EXPECT_EQ(track.Artist, "a; b");
    EXPECT_EQ(track.Album, "al");
    EXPECT_EQ(track.Year, "2001-02");
    EXPECT_EQ(track.Genre, "(17)");
    EXPECT_EQ(track.Track, "3/12");
    EXPECT_EQ(track.Disc, "1/2");
    EXPECT_EQ(track.AlbumArtist, "aa");
    EXPECT_EQ(track.Composer, "c");
    EXPECT_EQ(track.Comment, "é\uFFFD");
    EXPECT_EQ(TagsOf(ApeTag({{"AlbumArtist", "one word"}})).track.AlbumArtist, "one word");
    const std::string others = ApeItem("Title", "binary", 2) + ApeItem("Title", "link", 4) +
                               ApeItem("Subtitle", "x") + ApeItem("Title", "text", 1);
    EXPECT_EQ(TagsOf(ApeTagOf(others, 4)).track.Title, "text");
}

TEST(ReadModernTags, ReadsApeItemsUpToABrokenOne) {
    const std::string title = ApeItem("Title", "t");
    const std::string artist = ApeItem("Artist", "a");
    const std::string broken[] = {
        "\xFF\xFF\xFF\xFF\0\0\0\0Album\0x"s,                  // longer than the tag
        "\1\0\0\0\0\0\0\0"s + std::string(300, 'k') + "\0x"s, // a key longer than 255 bytes
        "\1\0\0\0"s,                                          // no whole item
        "\1\0\0\0\0\0\0\0Album"s,                             // no end of the key
    };
    for (const std::string& item : broken) {
        std::string items = title;
        items += item;
        const TrackInfo track = TagsOf(OrdinaryFrames(3) + ApeTagOf(items, 9)).track;
        EXPECT_EQ(track.Title, "t");
        EXPECT_EQ(track.Album, "");
        EXPECT_EQ(TagsOf(OrdinaryFrames(3) + ApeTagOf(items.append(artist), 9)).track.Title, "t");
    }
    EXPECT_EQ(TagsOf(ApeTagOf(ApeItem("", "") + title, 1)).track.Title, "t") << "an empty key";
    const std::string large(100000, 'l');
    EXPECT_EQ(TagsOf(ApeTag({{"Title", large}, {"Album", "al"}})).track.Title, large);
}

TEST(ReadModernTags, MovesTheArticle) {
    const std::string tag = TagOf(3, FrameOf(3, "TPE1", "\0The Band"s) + FrameOf(3, "TPE2", "\0THE others"s));
    EXPECT_EQ(TagsOf(tag, kDefaultCodePage, true).track.Artist, "Band, The");
    EXPECT_EQ(TagsOf(tag, kDefaultCodePage, true).track.AlbumArtist, "others, The");
    EXPECT_EQ(TagsOf(tag).track.Artist, "The Band");
}

TEST(ReadModernTags, KeepsWhatCanBeReadWhicheverReadFails) {
    const std::string bytes = TagOf(3, FrameOf(3, "TIT2", "\0v2 title"s)) + OrdinaryFrames(5) +
                              ApeTag({{"Album", "ape album"}}) + OldTagOf({"", "v1 artist", "", "", "", 0});
    const CodePage page(kDefaultCodePage);
    FailingByteSource whole(bytes);
    TrackInfo good;
    ReadModernTags(whole, FindTags(whole), {page}, good);
    for (int failAt = 1; failAt <= whole.Reads(); ++failAt) {
        FailingByteSource file(bytes, failAt);
        TrackInfo track;
        ReadModernTags(file, FindTags(file), {page}, track);
        for (const auto field : {&TrackInfo::Title, &TrackInfo::Artist, &TrackInfo::Album}) {
            const std::string& text = track.*field;
            EXPECT_TRUE(text == good.*field || text.empty() || text.starts_with("Unknown "))
                << failAt << text;
        }
    }
}

TEST(ReadModernTags, ResetsTheTextsOfAReusedTrack) {
    const CodePage page(kDefaultCodePage);
    TrackInfo track;
    for (const std::string& bytes :
         {OldTagOf({"title", "artist", "album", "1990", "comment", 1}), OrdinaryFrames(2)}) {
        FailingByteSource file(bytes);
        ReadModernTags(file, FindTags(file), {page}, track);
    }
    EXPECT_EQ(track, TrackInfo());
}

} // namespace
} // namespace tunedex
