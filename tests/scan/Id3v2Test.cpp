#include "Id3v2.h"

#include "Mp3Builder.h"
#include "References.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace tunedex {
namespace {

using namespace std::string_literals;
using test::FailingByteSource;
using test::Frame;
using test::Id3v2Header;
using test::Id3v2Tag;
using test::Latin1;

Id3v2Location Detect(const std::string& bytes) {
    FailingByteSource file(bytes);
    return DetectId3v2(file);
}

// The fields as an ID3v1 tag has set them.
TrackInfo Before() {
    TrackInfo track;
    track.Artist = "old artist";
    track.Title = "old title";
    track.Album = "old album";
    track.Year = "1";
    track.Genre = "old genre";
    return track;
}

TrackInfo ReadV2Tag(const std::string& bytes, bool moveTheArtists = false) {
    FailingByteSource file(bytes);
    const Id3v2Location location = DetectId3v2(file);
    EXPECT_TRUE(location.present);
    TrackInfo track = Before();
    ReadId3v2(file, location, moveTheArtists, track);
    return track;
}

struct SizeRow {
    std::string sizeBytes;
    std::uint64_t searchPosition;
};

TEST(DetectId3v2, ReadsSevenBitsOfThreeBytesAndEightOfTheLast) {
    const SizeRow rows[] = {
        {"\x00\x00\x02\x01"s, 267},
        {"\x00\x00\x00\xFF"s, 265},
        {"\x00\x00\x00\x00"s, 10},
        {"\x00\x00\x00\x7F"s, 137},
        {"\x00\x00\x80\x00"s, 10},
        {"\x80\x80\x80\x80"s, 138},
        {"\x00\x01\x00\x00"s, 16394},
        {"\x01\x00\x00\x00"s, 2097162},
        {"\xFF\xFF\xFF\xFF"s, 268435328 + 255 + 10},
    };
    for (const SizeRow& row : rows) {
        for (const std::string& version :
             {"\x03\x00\x00"s, "\x02\x00\x00"s, "\x04\x00\x80"s, "\xFF\xFF\xFF"s}) {
            const Id3v2Location location = Detect("ID3" + version + row.sizeBytes);
            EXPECT_TRUE(location.present);
            EXPECT_EQ(location.searchPosition, row.searchPosition);
        }
    }
}

TEST(DetectId3v2, FindsNoTagInAFileWithoutOneOrAfterAFailedRead) {
    const std::string header = Id3v2Header(0);
    for (const std::string& bytes :
         {""s, "ID"s, "ID3"s, header.substr(0, 9), "id3" + header.substr(3), " " + header,
          "ID2" + header.substr(3), "IDE" + header.substr(3), "AD3" + header.substr(3)}) {
        const Id3v2Location location = Detect(bytes);
        EXPECT_FALSE(location.present) << bytes;
        EXPECT_EQ(location.searchPosition, 1U);
    }
    EXPECT_TRUE(Detect(header).present);
    FailingByteSource failing(header, 1);
    EXPECT_FALSE(DetectId3v2(failing).present);
}

TEST(ReadId3v2, ReadsTheFiveFramesAndSkipsTheOthers) {
    const TrackInfo track = ReadV2Tag(Id3v2Tag({{"TXXX", Latin1("skipped")},
                                                {"TIT2", Latin1("Song")},
                                                {"TIT1", Latin1("skipped")},
                                                {"TPE1", Latin1("Artist")},
                                                {"TPE2", Latin1("skipped")},
                                                {"TALB", Latin1("Album")},
                                                {"TYER", Latin1("2001")},
                                                {"TDRC", Latin1("skipped")},
                                                {"tit2", Latin1("skipped")},
                                                {"TCON", Latin1("Genre")}}));
    EXPECT_EQ(track.Title, "Song");
    EXPECT_EQ(track.Artist, "Artist");
    EXPECT_EQ(track.Album, "Album");
    EXPECT_EQ(track.Year, "2001");
    EXPECT_EQ(track.Genre, "Genre");
}

TEST(ReadId3v2, KeepsTheLastOfSeveralEqualFrames) {
    EXPECT_EQ(ReadV2Tag(Id3v2Tag({{"TIT2", Latin1("one")}, {"TIT2", Latin1("two")}})).Title, "two");
}

TEST(ReadId3v2, LeavesFieldsWithoutAFrameUnchanged) {
    TrackInfo expected = Before();
    expected.Album = "Album";
    EXPECT_EQ(ReadV2Tag(Id3v2Tag({{"TALB", Latin1("Album")}})), expected);
}

struct ContentRow {
    std::string content;
    std::string_view text;
};

TEST(ReadId3v2, DropsEveryNulAndDecodesNoEncoding) {
    const ContentRow rows[] = {
        {"\0Song"s, "Song"},
        {"Song", "Song"},
        {"\0So\0ng\0\0"s, "Song"},
        {"\x01\xFF\xFES\0o\0n\0g\0"s, "\x01\xC3\xBF\xC3\xBESong"},
        {"\x02\0S\0o"s, "\x02So"},
        {"\x03S\xC3\xB6ng"s, "\x03S\xC3\x83\xC2\xB6ng"},
        {"\0 Song "s, " Song "},
        {"\0\x80\x81"s, "\xE2\x82\xAC\xC2\x81"},
        {"\0(13)"s, "(13)"},
        {"\0(17)Rock"s, "(17)Rock"},
        {"\0line\r\nline\ttab"s, "line\r\nline\ttab"},
    };
    for (const ContentRow& row : rows) {
        const TrackInfo track = ReadV2Tag(Id3v2Tag({{"TIT2", row.content},
                                                    {"TPE1", row.content},
                                                    {"TALB", row.content},
                                                    {"TYER", row.content},
                                                    {"TCON", row.content}}));
        EXPECT_EQ(track.Title, row.text);
        EXPECT_EQ(track.Artist, row.text);
        EXPECT_EQ(track.Album, row.text);
        EXPECT_EQ(track.Year, row.text);
        EXPECT_EQ(track.Genre, row.text);
    }
}

// Frames are read whole or in pieces; no boundary between pieces may show.
TEST(ReadId3v2, ReadsAFrameOfAnyLengthWithoutItsNuls) {
    for (const std::size_t length : {511U, 512U, 513U, 65535U, 65536U, 65537U, 200000U}) {
        std::string content;
        std::string text;
        for (std::size_t i = 0; content.size() < length; ++i) {
            content += i % 3 == 0 ? '\0' : static_cast<char>('a' + i % 26);
            if (content.back() != '\0') {
                text += content.back();
            }
        }
        const std::string bytes = Id3v2Tag({{"TIT2", content}, {"TALB", "next"}});
        const TrackInfo track = ReadV2Tag(bytes);
        EXPECT_TRUE(track.Title == text) << length;
        EXPECT_EQ(track.Album, "next") << length;
        // If the last of its reads fails, the field is unchanged.
        FailingByteSource file(bytes, length > 131072 ? 5 : length > 65536 ? 3 : 2);
        TrackInfo failed = Before();
        ReadId3v2(file, {true, bytes.size()}, false, failed);
        EXPECT_EQ(failed.Title, "old title") << length;
        EXPECT_EQ(failed.Album, "old album") << length;
    }
}

TEST(ReadId3v2, SharesLongTextsInThePool) {
    const std::string text(kLongTextBytes, 't');
    const std::string bytes = Id3v2Tag({{"TIT2", "short"},
                                        {"TIT2", text},
                                        {"TPE1", "The " + text},
                                        {"TALB", text},
                                        {"TYER", text},
                                        {"TYER", std::string(text.size() - 1, 't')},
                                        {"TCON", std::string(5000, '\0')}});
    LongTextPool pool;
    MemoryByteSource file({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
    TrackInfo track;
    ReadId3v2(file, {true, bytes.size()}, true, track, &pool);
    ASSERT_EQ(track.LongFields.size(), 3U);
    EXPECT_EQ(track.LongFields[0].field, &TrackInfo::Title);
    EXPECT_EQ(track.LongFields[0].text->View(), text);
    EXPECT_EQ(track.LongFields[1].text->View(), text + ", The");
    EXPECT_EQ(track.LongFields[2].field, &TrackInfo::Album);
    EXPECT_EQ(track.LongFields[2].text, track.LongFields[0].text);
    EXPECT_EQ(track.Title + track.Artist + track.Album + track.Genre, "");
    EXPECT_EQ(track.Year, text.substr(1)) << "a later, shorter text replaces the long one";
}

TEST(ReadId3v2, UsesDefaultsForAnEmptyArtistAndTitleAndEmptiesTheRest) {
    for (const std::string& empty : {""s, "\0"s, "\0\0\0"s}) {
        const TrackInfo track = ReadV2Tag(
            Id3v2Tag({{"TIT2", empty}, {"TPE1", empty}, {"TALB", empty}, {"TYER", empty}, {"TCON", empty}}));
        EXPECT_EQ(track.Title, "Unknown Title");
        EXPECT_EQ(track.Artist, "Unknown Artist");
        EXPECT_EQ(track.Album, "");
        EXPECT_EQ(track.Year, "");
        EXPECT_EQ(track.Genre, "");
    }
    EXPECT_EQ(ReadV2Tag(Id3v2Tag({{"TIT2", "\0 "s}})).Title, " ") << "blanks are not trimmed here";
}

TEST(ReadId3v2, MovesALeadingTheOnlyWhenEnabled) {
    const std::string tag = Id3v2Tag({{"TPE1", Latin1("the Who")}, {"TIT2", Latin1("The Seeker")}});
    EXPECT_EQ(ReadV2Tag(tag, true).Artist, "Who, The");
    EXPECT_EQ(ReadV2Tag(tag, true).Title, "The Seeker");
    EXPECT_EQ(ReadV2Tag(tag, false).Artist, "the Who");
    EXPECT_EQ(ReadV2Tag(Id3v2Tag({{"TPE1", Latin1("Theatre")}}), true).Artist, "Theatre");
}

TEST(ReadId3v2, StopsAtPadding) {
    const std::string late = Frame({"TIT2", Latin1("too late")});
    for (const std::string& id : {"\0\0\0\0"s, "TIT\0"s, "T\0T2"s, "\0IT2"s}) {
        std::string body = Frame({"TALB", Latin1("Album")});
        body.append(id).append(6, '\0').append(late);
        const TrackInfo track = ReadV2Tag(Id3v2Header(static_cast<std::uint32_t>(body.size())) + body);
        EXPECT_EQ(track.Album, "Album");
        EXPECT_EQ(track.Title, "old title");
    }
}

TEST(ReadId3v2, ContinuesWhileThePositionIsBelowTheSearchPosition) {
    const std::string first = Frame({"TALB", Latin1("Album")});
    const std::string second = Frame({"TIT2", Latin1("Song")});
    const auto end = static_cast<std::uint32_t>(first.size());
    // The search position is the tag's last byte, so a tag one byte longer than its first frame ends there.
    EXPECT_EQ(ReadV2Tag(Id3v2Header(end) + first + second).Title, "old title");
    EXPECT_EQ(ReadV2Tag(Id3v2Header(end + 1) + first + second).Title, "old title");
    EXPECT_EQ(ReadV2Tag(Id3v2Header(end + 2) + first + second).Title, "Song");
    EXPECT_EQ(ReadV2Tag(Id3v2Header(0) + first + second).Album, "Album")
        << "an empty tag still reads one frame";
    EXPECT_EQ(ReadV2Tag(Id3v2Header(0) + first + second).Title, "old title");
}

TEST(ReadId3v2, EndsSilentlyAtAFrameLongerThanTheFile) {
    const std::string album = Frame({"TALB", Latin1("Album")});
    const std::string title = Frame({"TIT2", Latin1("Song")});
    for (std::size_t cut = 1; cut <= title.size(); ++cut) {
        const std::string body = album + title.substr(0, title.size() - cut);
        const TrackInfo track = ReadV2Tag(Id3v2Header(500) + body);
        EXPECT_EQ(track.Album, "Album");
        EXPECT_EQ(track.Title, "old title") << cut;
    }
    // A skipped frame with too large a size also ends the walk.
    const TrackInfo track = ReadV2Tag(Id3v2Header(500) + album + "PRIV\x00\x00\x10\x00\x00\x00"s + title);
    EXPECT_EQ(track.Album, "Album");
    EXPECT_EQ(track.Title, "old title");
}

TEST(ReadId3v2, ReadsFrameSizesAsBigEndianNumbersWithoutTheTopBit) {
    const std::string text(300, 'x');
    const std::string tag =
        Id3v2Header(1000) + "TIT2\x00\x00\x01\x2C\x00\x00"s + text + Frame({"TALB", Latin1("A")});
    EXPECT_EQ(ReadV2Tag(tag).Title, text);
    EXPECT_EQ(ReadV2Tag(tag).Album, "A");
    const std::string high =
        Id3v2Header(1000) + "TIT2\x80\x00\x00\x04\xFF\xFF"s + "Song"s + Frame({"TALB", Latin1("A")});
    EXPECT_EQ(ReadV2Tag(high).Title, "Song");
    EXPECT_EQ(ReadV2Tag(high).Album, "A");
}

TEST(ReadId3v2, MissesTheFramesAfterAnUnsynchronisedOne) {
    // Unsynchronised, each FF is followed by a zero that the picture's size does not count.
    const std::string picture = "APIC\x00\x00\x00\x04\x00\x00"s + "\xFF\x00\xE0\xFF\x00\xFB"s;
    const TrackInfo track = ReadV2Tag(Id3v2Header(500) + Frame({"TALB", Latin1("Album")}) + picture +
                                      Frame({"TIT2", Latin1("Song")}));
    EXPECT_EQ(track.Album, "Album");
    EXPECT_EQ(track.Title, "old title");
}

TEST(ReadId3v2, ReadsAFrameThatExtendsBeyondTheTag) {
    EXPECT_EQ(ReadV2Tag(Id3v2Header(12) + Frame({"TIT2", Latin1("longer than declared")})).Title,
              "longer than declared");
}

TEST(ReadId3v2, ReadsNoFieldFromAnId3v22Tag) {
    const std::string frames = "TT2\x00\x00\x05\x00Song"s + "TP1\x00\x00\x07\x00Artist"s;
    EXPECT_EQ(
        ReadV2Tag("ID3\x02\x00\x00"s + std::string(3, '\0') + static_cast<char>(frames.size()) + frames),
        Before());
}

TEST(ReadId3v2, KeepsTheFieldsReadBeforeAFailedRead) {
    const std::string tag = Id3v2Tag({{"TALB", Latin1("Album")}, {"TIT2", Latin1("Song")}});
    FailingByteSource whole(tag);
    const Id3v2Location location = DetectId3v2(whole);
    TrackInfo track;
    ReadId3v2(whole, location, false, track);
    const int reads = whole.Reads() - 1;
    bool partly = false;
    for (int failAt = 1; failAt <= reads; ++failAt) {
        FailingByteSource file(tag, failAt);
        track = Before();
        ReadId3v2(file, location, false, track);
        EXPECT_EQ(track.Title, "old title") << failAt;
        EXPECT_TRUE(track.Album == "old album" || track.Album == "Album");
        partly = partly || track.Album == "Album";
    }
    EXPECT_TRUE(partly);
}

} // namespace
} // namespace tunedex
