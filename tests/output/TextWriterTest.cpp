#include "TextWriter.h"

#include "ListingFixture.h"

namespace tunedex {
namespace {

using TextWriterTest = ListingTest;

constexpr const char* kAllColumns =
    "Number|Artist|Album|Title|Year|Genre|MPEG Type|Mode|Bitrate|Frequency|Duration|"
    "File Size|Filename|Folder Path|Full Path";

TEST_F(TextWriterTest, WritesEveryColumnOfEveryTrack) {
    Use(SevenTracks());
    settings.OutputFile = folder / "list.txt";
    settings.ActiveColumns = kAllColumns;
    settings.Merge = 0;
    settings.SizeType = 0;
    EXPECT_FALSE(Write(kTextOutput));
    EXPECT_EQ(
        Written("list.txt"),
        "Number\tArtist\tAlbum\tTitle\tYear\tGenre\tMPEG Type\tMode\tBitrate\tFrequency\tDuration\tFile "
        "Size\tFilename\tFolder Path\tFull Path\r\n"
        "1\tAbba\tWaterloo\tWaterloo\t1974\tPop\t1.0 III\tJoint Stereo\t128\t44100\t4:10\t4,000,000 b.\t01 "
        "Waterloo.mp3\t/music/Abba\t/music/Abba/01 Waterloo.mp3\r\n"
        "2\tBj\xF6rk\tHomog\xE9nic\tJ\xF3ga\t1997\tTrip Hop\t1.0 III\tStereo\t192\t48000\t0:51\t1,234,567 "
        "b.\tJ\xF3ga.mp3\t/music/Bj\xF6rk\t/music/Bj\xF6rk/J\xF3ga.mp3\r\n"
        "3\tNobody\t\tAlone\t\t\t2.0 III\tMono\t64\t22050\t0:00\t128 b.\tno album.mp3\t/music\t/music/no "
        "album.mp3\r\n"
        "4\tR&B \"All\" <Stars>\tA&B\t1 < 2 & 3 > 2\t2001\tR&B\t1.0 II\tDual "
        "Channel\t320\t32000\t75:03\t2,097,152 "
        "b.\t\"quoted\" <b>.mp3\t/music/R&B\t/music/R&B/\"quoted\" <b>.mp3\r\n"
        "5\t/music/untagged.mp3\t\tNo ID3 Tags!\t\t\t\t\t\t\t\t0 "
        "b.\tuntagged.mp3\t/music\t/music/untagged.mp3\r\n"
        "6\t?\?\t?\?\?\t? \x80 5\t(1999)\tJPop\t2.5 III\tJoint Stereo\t919\t44100\t26:08\t2,147,483,647 "
        "b.\t?.mp3\t/music/?\?\t/music/?\?/?.mp3\r\n"
        "7\tZz Top\tTres Hombres\tLa Grange\t1973\tRock\t1.0 III\tStereo\t128\t44100\t1:05\t1,048,576 b.\tLa "
        "Grange.mp3\t/music/Zz Top\t/music/Zz Top/La Grange.mp3\r\n");
}

TEST_F(TextWriterTest, MergesArtistAlbumAndTitle) {
    Use({SevenTracks()[0], SevenTracks()[2]});
    settings.OutputFile = folder / "list.txt";
    EXPECT_FALSE(Write(kTextOutput));
    EXPECT_EQ(Written("list.txt"), "Number\tArtist (Album): Title\tDuration\r\n"
                                   "1\tAbba (Waterloo): Waterloo\t4:10\r\n"
                                   "2\tNobody: Alone\t0:00\r\n");
    settings.Merge = 1;
    EXPECT_FALSE(Write(kTextOutput));
    EXPECT_EQ(Written("list.txt"), "Number\tArtist: Title\tAlbum\tDuration\r\n"
                                   "1\tAbba: Waterloo\tWaterloo\t4:10\r\n"
                                   "2\tNobody: Alone\t\t0:00\r\n");
    EXPECT_EQ(settings.ActiveColumns, "Number|Artist|Album|Title|Duration") << "the setting is unchanged";
}

TEST_F(TextWriterTest, ShowsAnInactiveAlbumInAMergedColumn) {
    Use({SevenTracks()[0]});
    settings.OutputFile = folder / "list.txt";
    settings.ActiveColumns = "Title|Artist";
    EXPECT_FALSE(Write(kTextOutput));
    EXPECT_EQ(Written("list.txt"), "Artist (Album): Title\r\nAbba (Waterloo): Waterloo\r\n");
}

TEST_F(TextWriterTest, WritesAHeaderButNoFieldForAnUnknownColumn) {
    Use({SevenTracks()[0]});
    settings.OutputFile = folder / "list.txt";
    settings.ActiveColumns = "Number|Foo|year";
    EXPECT_FALSE(Write(kTextOutput));
    EXPECT_EQ(Written("list.txt"), "Number\tFoo\tyear\r\n1\t1974\r\n");
}

struct TextName {
    const char* name;
    const char* written;
};

TEST_F(TextWriterTest, AppendsAMissingExtension) {
    const TextName rows[] = {{"a.txt", "a.txt"}, {"a.TXT", "a.TXT"},       {"a.tXt", "a.tXt"},
                             {"a", "a.txt"},     {"a.text", "a.text.txt"}, {"a.txt.htm", "a.txt.htm.txt"},
                             {"txt", "txt.txt"}};
    for (const TextName& row : rows) {
        settings.OutputFile = folder / row.name;
        EXPECT_FALSE(Write(kTextOutput));
        EXPECT_TRUE(folder.Exists(row.written)) << row.name;
        EXPECT_EQ(settings.OutputFile, folder / row.written) << "the run's setting gets it too";
    }
}

TEST_F(TextWriterTest, WritesOnlyTheHeaderLineWithoutTracks) {
    settings.OutputFile = folder / "list.txt";
    EXPECT_FALSE(Write(kTextOutput));
    EXPECT_EQ(Written("list.txt"), "Number\tArtist (Album): Title\tDuration\r\n");
    EXPECT_TRUE(monitor.positions.empty());
}

TEST_F(TextWriterTest, WritesEveryLineOfALongList) {
    constexpr std::size_t kTracks = 20000; // more than two pieces
    UseMany(kTracks);
    settings.OutputFile = folder / "list.txt";
    settings.ActiveColumns = "Number|Title|Full Path";
    EXPECT_FALSE(Write(kTextOutput));
    std::string expected = "Number\tTitle\tFull Path\r\n";
    for (std::size_t i = 1; i <= kTracks; ++i) {
        const std::string number = std::to_string(i);
        expected.append(number).append("\tTitle ").append(number).append("\t/music/Abba/01 Waterloo.mp3\r\n");
    }
    EXPECT_GT(expected.size(), 2 * TextFile::kPieceBytes);
    EXPECT_TRUE(Written("list.txt") == expected);
}

TEST_F(TextWriterTest, KeepsTheTracksBeforeAnAbort) {
    UseMany(10);
    settings.OutputFile = folder / "list.txt";
    settings.ActiveColumns = "Number|Title|Year";
    for (int entry = 1; entry <= 3; ++entry) {
        monitor.asked = 0;
        monitor.abortAtQuestion = 4 * 3 + entry; // within track 5
        monitor.positions.clear();
        EXPECT_TRUE(Write(kTextOutput));
        EXPECT_EQ(Written("list.txt"),
                  "Number\tTitle\tYear\r\n1\tTitle 1\t1974\r\n2\tTitle 2\t1974\r\n3\tTitle "
                  "3\t1974\r\n4\tTitle 4\t1974\r\n");
        EXPECT_EQ(monitor.positions, (std::vector<std::int32_t>{1, 2, 3, 4}));
    }
}

TEST_F(TextWriterTest, RaisesError5ForALineWithoutColumnsAndKeepsTheOldFile) {
    Use(SevenTracks());
    settings.OutputFile = folder.Write("list.txt", "old");
    for (const char* columns : {"", "Foo", "Foo|Bar"}) {
        settings.ActiveColumns = columns;
        EXPECT_EQ(ErrorOf(kTextOutput), 5) << columns;
        EXPECT_EQ(Written("list.txt"), "old");
    }
}

TEST_F(TextWriterTest, RaisesTheErrorOfAFileThatCannotBeWritten) {
    settings.OutputFile = folder / "missing/list.txt";
    EXPECT_EQ(ErrorOf(kTextOutput), 76);
    EXPECT_EQ(ErrorOf(kPlaylistOutput), 76);
    EXPECT_EQ(ErrorOf(kHtmlOutput), 76);
    folder.Make("folder.txt");
    settings.OutputFile = folder / "folder.txt";
    EXPECT_EQ(ErrorOf(kTextOutput), 75);
}

TEST_F(TextWriterTest, KeepsTabsLineBreaksAndStrayBytes) {
    TrackInfo track = SevenTracks()[0];
    track.Title = "a\tb\r\nc";
    track.FullPath = "/music/\xFF\xE3\x81.mp3";
    Use({track});
    settings.OutputFile = folder / "list.txt";
    settings.ActiveColumns = "Title|Filename";
    settings.Merge = 0;
    EXPECT_FALSE(Write(kTextOutput));
    EXPECT_EQ(Written("list.txt"), "Title\tFilename\r\na\tb\r\nc\t\xFF\xE3\x81.mp3\r\n");
}

TEST_F(TextWriterTest, WritesNoPartOfAnAbortedLongLine) {
    std::vector<TrackInfo> infos = {SevenTracks()[0], SevenTracks()[0]};
    infos[1].Title.assign(4 * TextFile::kPieceBytes, 't');
    Use(infos);
    settings.OutputFile = folder / "list.txt";
    settings.ActiveColumns = "Title|Year";
    EXPECT_FALSE(Write(kTextOutput));
    EXPECT_TRUE(Written("list.txt") == "Title\tYear\r\nWaterloo\t1974\r\n" + infos[1].Title + "\t1974\r\n");
    monitor.asked = 0;
    monitor.abortAtQuestion = 4;
    EXPECT_TRUE(Write(kTextOutput));
    EXPECT_EQ(Written("list.txt"), "Title\tYear\r\nWaterloo\t1974\r\n");
}

class ModernTextTest : public ListingTest {
  protected:
    ModernTextTest() {
        settings.Modern = true;
        settings.Merge = 0;
        settings.OutputFile = folder / "list.txt";
    }
};

TEST_F(ModernTextTest, IsUtf8WithAByteOrderMark) {
    TrackInfo track = SevenTracks()[5];
    track.Composer = "Вяч. Бутусов";
    Use({track});
    settings.ActiveColumns = "Artist|Title|Duration|File Size|Full Path|Composer|Comment";
    EXPECT_FALSE(Write(kTextOutput));
    EXPECT_EQ(Written("list.txt"),
              "\xEF\xBB\xBF"
              "Artist\tTitle\tDuration\tFile Size\tFull Path\tComposer\tComment\r\n"
              "日本\tあ € 5\t26:08\t2,048.00 MB\t/music/日本/あ.mp3\tВяч. Бутусов\t\r\n");
}

TEST_F(ModernTextTest, HasABlankForEachTabAndLineBreakInAField) {
    TrackInfo track = SevenTracks()[0];
    track.Artist = "\tA";
    track.Title = "a\tb\r\nc\n";
    track.FullPath = "/music/\n\v\xFF.mp3";
    Use({track});
    settings.ActiveColumns = "Tab\tled|Title|Filename";
    EXPECT_FALSE(Write(kTextOutput));
    EXPECT_EQ(Written("list.txt"), "\xEF\xBB\xBFTab led\tTitle\tFilename\r\n"
                                   "a b  c \t \v\xFF.mp3\r\n");
    settings.ActiveColumns = "Artist|Title";
    settings.Merge = 1;
    EXPECT_FALSE(Write(kTextOutput));
    EXPECT_EQ(Written("list.txt"), "\xEF\xBB\xBF"
                                   "Artist: Title\r\n A: a b  c \r\n");
}

TEST_F(ModernTextTest, WritesLongTextsInPieces) {
    TrackInfo track = SevenTracks()[0];
    track.Title = std::string(TextFile::kPieceBytes, 't') + "\t" + std::string(TextFile::kPieceBytes, 'u');
    Use({track});
    settings.ActiveColumns = "Title";
    EXPECT_FALSE(Write(kTextOutput));
    track.Title[TextFile::kPieceBytes] = ' ';
    EXPECT_TRUE(Written("list.txt") == "\xEF\xBB\xBFTitle\r\n" + track.Title + "\r\n");
}

} // namespace
} // namespace tunedex
