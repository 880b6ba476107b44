#include "Id3v1.h"

#include "Genres.h"
#include "Mp3Builder.h"
#include "References.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tunedex {
namespace {

using namespace std::string_literals;
using test::FailingByteSource;
using test::Id3v1Fields;
using test::Id3v1Tag;

struct Result {
    bool found = false;
    TrackInfo track;
};

Result ReadV1Tag(const std::string& bytes, bool moveTheArtists = false) {
    FailingByteSource file(bytes);
    Result result;
    result.found = ReadId3v1(file, moveTheArtists, result.track);
    return result;
}

TrackInfo ReadFields(const Id3v1Fields& fields, bool moveTheArtists = false) {
    const Result result = ReadV1Tag("sound" + Id3v1Tag(fields), moveTheArtists);
    EXPECT_TRUE(result.found);
    return result.track;
}

TEST(ReadId3v1, ReadsEachFieldAtItsOffsetInTheLast128Bytes) {
    // Each byte of a field differs from the others, so that a wrong offset or width shows.
    const std::string title = "abcdefghijklmnopqrstuvwxyz1234";
    const std::string artist = "ABCDEFGHIJKLMNOPQRSTUVWXYZ5678";
    const std::string album = "zyxwvutsrqponmlkjihgfedcba4321";
    const std::string comment = "comment comment comment commen";
    const TrackInfo track = ReadFields({title, artist, album, "1987", comment, 17});
    EXPECT_EQ(track.Title, title);
    EXPECT_EQ(track.Artist, artist);
    EXPECT_EQ(track.Album, album);
    EXPECT_EQ(track.Year, "1987");
    EXPECT_EQ(track.Genre, "Rock");
}

TEST(ReadId3v1, MapsEveryGenreByteToItsName) {
    for (unsigned number = 0; number < 256; ++number) {
        const TrackInfo track = ReadFields({"t", "a", "b", "", "", static_cast<std::uint8_t>(number)});
        EXPECT_EQ(track.Genre, GenreName(number)) << number;
    }
}

struct TrimRow {
    std::string bytes;
    std::string_view text;
};

TEST(ReadId3v1, TrimsTrailingBlanksBeforeItRemovesNuls) {
    const TrimRow rows[] = {
        {"Abc", "Abc"},
        {"Abc"s + std::string(27, ' '), "Abc"},
        {"Abc  \0\0"s, "Abc  "}, // the blanks precede the padding
        {"Abc\0\0  "s + std::string(23, ' '), "Abc"},
        {"  Abc", "  Abc"},
        {"A\0b\0c"s, "Abc"},
        {"\0\0Abc"s, "Abc"},
        {"Abc\tdef\t", "Abc\tdef\t"}, // a TAB is not a blank
        {"\xA0x\xA0", "\xC2\xA0x\xC2\xA0"},
    };
    for (const TrimRow& row : rows) {
        const TrackInfo track = ReadFields({row.bytes, row.bytes, row.bytes, "", "", 0});
        EXPECT_EQ(track.Title, row.text);
        EXPECT_EQ(track.Artist, row.text);
        EXPECT_EQ(track.Album, row.text);
    }
    EXPECT_EQ(ReadFields({"", "", "", "19  ", "", 0}).Year, "19");
    EXPECT_EQ(ReadFields({"", "", "", "19 \0"s, "", 0}).Year, "19 ");
}

TEST(ReadId3v1, HasDefaultsForAnEmptyArtistAndTitleOnly) {
    for (const std::string& empty : {""s, std::string(30, ' '), std::string(30, '\0')}) {
        const TrackInfo track = ReadFields({empty, empty, empty, empty.substr(0, 4), "", 255});
        EXPECT_EQ(track.Title, "Unknown Title");
        EXPECT_EQ(track.Artist, "Unknown Artist");
        EXPECT_EQ(track.Album, "");
        EXPECT_EQ(track.Year, "");
        EXPECT_EQ(track.Genre, "");
    }
    // Blanks in front of NULs are text.
    EXPECT_EQ(ReadFields({" \0"s, " \0"s, "", "", "", 0}).Artist, " ");
    EXPECT_EQ(ReadFields({" \0"s, " \0"s, "", "", "", 0}).Title, " ");
}

TEST(ReadId3v1, ReadsATagOfNulsAsDefaultsWithGenreBlues) {
    const TrackInfo track = ReadFields({"", "", "", "", "", 0});
    EXPECT_EQ(track.Artist, "Unknown Artist");
    EXPECT_EQ(track.Title, "Unknown Title");
    EXPECT_EQ(track.Album, "");
    EXPECT_EQ(track.Year, "");
    EXPECT_EQ(track.Genre, "Blues");
}

struct ArtistRow {
    std::string bytes;
    std::string_view moved;
    std::string_view left;
};

TEST(ReadId3v1, MovesALeadingTheOnlyWhenEnabled) {
    const ArtistRow rows[] = {
        {"The Beatles", "Beatles, The", "The Beatles"},
        {"THE WHO", "WHO, The", "THE WHO"},
        {"the the", "the, The", "the the"},
        {"Theatre", "Theatre", "Theatre"},
        {"The", "The", "The"},
        {"The" + std::string(27, ' '), "The", "The"}, // trimmed first

        {"The \0"s, ", The", "The "}, // the blank before the NUL stays
        {"T\0he Cure"s, "Cure, The", "The Cure"},
        {" The Jam", " The Jam", " The Jam"},
        {"The  Jam", " Jam, The", "The  Jam"},
        {"The\tJam", "The\tJam", "The\tJam"},
        {"The \xC4rzte", "\xC3\x84rzte, The", "The \xC3\x84rzte"},
        {"", "Unknown Artist", "Unknown Artist"},
    };
    for (const ArtistRow& row : rows) {
        EXPECT_EQ(ReadFields({"t", row.bytes, "The Album", "", "", 0}, true).Artist, row.moved);
        EXPECT_EQ(ReadFields({"t", row.bytes, "The Album", "", "", 0}, false).Artist, row.left);
        EXPECT_EQ(ReadFields({"The Title", row.bytes, "The Album", "", "", 0}, true).Album, "The Album");
        EXPECT_EQ(ReadFields({"The Title", row.bytes, "The Album", "", "", 0}, true).Title, "The Title");
    }
}

TEST(ReadId3v1, DecodesBytesAsWindows1252) {
    const TrackInfo track =
        ReadFields({"\x80uro \x9F \x81\x8D\x8F\x90\x9D", "Bj\xF6rk", "\xFF\xA0\xE9", "", "", 0});
    EXPECT_EQ(track.Title, "\xE2\x82\xACuro \xC5\xB8 \xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
    EXPECT_EQ(track.Artist, "Bj\xC3\xB6rk");
    EXPECT_EQ(track.Album, "\xC3\xBF\xC2\xA0\xC3\xA9");
}

TEST(ReadId3v1, LeavesTheTrackUnchangedWithoutATag) {
    const std::string tag = Id3v1Tag({"t", "a", "b", "1999", "c", 1});
    const std::string cases[] = {"",
                                 "TAG",
                                 tag.substr(0, 127),
                                 tag.substr(1),
                                 "tag" + tag.substr(3),
                                 tag + "x",
                                 std::string(500, 'x')};
    for (const std::string& bytes : cases) {
        FailingByteSource file(bytes);
        TrackInfo track;
        track.Artist = "before";
        const TrackInfo before = track;
        EXPECT_FALSE(ReadId3v1(file, true, track)) << bytes.size();
        EXPECT_EQ(track, before);
    }
    EXPECT_TRUE(ReadV1Tag(tag).found) << "a file may consist of its tag alone";
}

TEST(ReadId3v1, TreatsAFailedReadAsNoTag) {
    FailingByteSource file(Id3v1Tag({"t", "a", "b", "", "", 1}), 1);
    TrackInfo track;
    EXPECT_FALSE(ReadId3v1(file, false, track));
    EXPECT_EQ(track, TrackInfo());
}

} // namespace
} // namespace tunedex
