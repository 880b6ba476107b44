#include "ListingFixture.h"

namespace tunedex {
namespace {

using TextWriterTest = ListingTest;
using M3uWriterTest = ListingTest;

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
    EXPECT_EQ(settings.ActiveColumns, "Number|Artist|Album|Title|Duration") << "the setting stays";
}

TEST_F(TextWriterTest, ShowsTheAlbumInAMergedColumnThoughItIsNotActive) {
    Use({SevenTracks()[0]});
    settings.OutputFile = folder / "list.txt";
    settings.ActiveColumns = "Title|Artist";
    EXPECT_FALSE(Write(kTextOutput));
    EXPECT_EQ(Written("list.txt"), "Artist (Album): Title\r\nAbba (Waterloo): Waterloo\r\n");
}

TEST_F(TextWriterTest, NamesAnUnknownColumnAndWritesNoFieldForIt) {
    Use({SevenTracks()[0]});
    settings.OutputFile = folder / "list.txt";
    settings.ActiveColumns = "Number|Foo|year";
    EXPECT_FALSE(Write(kTextOutput));
    EXPECT_EQ(Written("list.txt"), "Number\tFoo\tyear\r\n1\t1974\r\n");
}

struct NameRow {
    const char* name;
    const char* written;
};

TEST_F(TextWriterTest, AppendsItsExtensionWhereItIsMissing) {
    const NameRow rows[] = {{"a.txt", "a.txt"}, {"a.TXT", "a.TXT"},       {"a.tXt", "a.tXt"},
                            {"a", "a.txt"},     {"a.text", "a.text.txt"}, {"a.txt.htm", "a.txt.htm.txt"},
                            {"txt", "txt.txt"}};
    for (const NameRow& row : rows) {
        settings.OutputFile = folder / row.name;
        EXPECT_FALSE(Write(kTextOutput));
        EXPECT_TRUE(folder.Exists(row.written)) << row.name;
        EXPECT_EQ(settings.OutputFile, folder / row.written) << "the run's setting has it too";
    }
}

TEST_F(TextWriterTest, WritesNothingButTheHeaderWithoutTracks) {
    settings.OutputFile = folder / "list.txt";
    EXPECT_FALSE(Write(kTextOutput));
    EXPECT_EQ(Written("list.txt"), "Number\tArtist (Album): Title\tDuration\r\n");
    EXPECT_TRUE(monitor.positions.empty());
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

TEST_F(M3uWriterTest, WritesLengthNameAndPathOfEveryTrack) {
    auto tracks = SevenTracks();
    Use({tracks[0], tracks[2], tracks[3], tracks[6]});
    settings.OutputFile = folder / "list.m3u";
    settings.ActiveColumns = "";
    EXPECT_FALSE(Write(kPlaylistOutput));
    EXPECT_EQ(Written("list.m3u"),
              "#EXTM3U\r\n"
              "#EXTINF:250,Abba: Waterloo\r\n/music/Abba/01 Waterloo.mp3\r\n"
              "#EXTINF:0,Nobody: Alone\r\n/music/no album.mp3\r\n"
              "#EXTINF:4503,R&B \"All\" <Stars>: 1 < 2 & 3 > 2\r\n/music/R&B/\"quoted\" <b>.mp3\r\n"
              "#EXTINF:65,Zz Top: La Grange\r\n/music/Zz Top/La Grange.mp3\r\n");
    EXPECT_EQ(monitor.positions, (std::vector<std::int32_t>{1, 2, 3, 4}));
}

TEST_F(M3uWriterTest, IsInWindows1252WhileAllPathsAreAscii) {
    TrackInfo track = SevenTracks()[5];
    track.FullPath = "/music/a.mp3";
    track.Artist = "Bj\xC3\xB6rk \xE3\x81\x82";
    Use({track});
    settings.OutputFile = folder / "list.m3u";
    EXPECT_FALSE(Write(kPlaylistOutput));
    EXPECT_EQ(Written("list.m3u"), "#EXTM3U\r\n#EXTINF:1568,Bj\xF6rk ?: ? \x80 5\r\n/music/a.mp3\r\n");
}

TEST_F(M3uWriterTest, IsInUtf8AsSoonAsOnePathIsNotAscii) {
    TrackInfo first = SevenTracks()[1];
    first.FullPath = "/music/a.mp3";
    TrackInfo last = SevenTracks()[5];
    TrackInfo stray = first;
    stray.FullPath = "/music/J\xF3ga.mp3"; // an old name, in Latin-1
    settings.OutputFile = folder / "list.m3u";
    Use({first, last});
    EXPECT_FALSE(Write(kPlaylistOutput));
    EXPECT_EQ(Written("list.m3u"), "#EXTM3U\r\n#EXTINF:51,Bj\xC3\xB6rk: J\xC3\xB3ga\r\n/music/a.mp3\r\n"
                                   "#EXTINF:1568,\xE6\x97\xA5\xE6\x9C\xAC: \xE3\x81\x82 \xE2\x82\xAC 5\r\n"
                                   "/music/\xE6\x97\xA5\xE6\x9C\xAC/\xE3\x81\x82.mp3\r\n");
    Use({first, stray});
    EXPECT_FALSE(Write(kPlaylistOutput));
    EXPECT_EQ(Written("list.m3u"), "#EXTM3U\r\n#EXTINF:51,Bj\xC3\xB6rk: J\xC3\xB3ga\r\n/music/a.mp3\r\n"
                                   "#EXTINF:51,Bj\xC3\xB6rk: J\xC3\xB3ga\r\n/music/J\xF3ga.mp3\r\n");
}

struct LengthRow {
    const char* duration;
    const char* seconds;
};

TEST_F(M3uWriterTest, TakesTheLengthFromTheDurationText) {
    settings.OutputFile = folder / "list.m3u";
    for (const LengthRow& row : {LengthRow{"4:05", "245"}, LengthRow{"0:00", "0"}, LengthRow{"75:03", "4503"},
                                 LengthRow{":7", "7"}, LengthRow{"1:", "60"}, LengthRow{"x:y", "0"},
                                 LengthRow{"1:02:03", "62"}, LengthRow{"2x:3y", "123"}}) {
        TrackInfo track = SevenTracks()[0];
        track.Duration = row.duration;
        Use({track});
        EXPECT_FALSE(Write(kPlaylistOutput));
        EXPECT_EQ(Written("list.m3u"), std::string("#EXTM3U\r\n#EXTINF:") + row.seconds +
                                           ",Abba: Waterloo\r\n/music/Abba/01 Waterloo.mp3\r\n");
    }
}

TEST_F(M3uWriterTest, RaisesError5ForATrackWithoutDurationAndKeepsTheOldFile) {
    Use(SevenTracks()); // the untagged one has none
    settings.OutputFile = folder.Write("list.m3u", "old");
    EXPECT_EQ(ErrorOf(kPlaylistOutput), 5);
    EXPECT_EQ(Written("list.m3u"), "old");
}

TEST_F(M3uWriterTest, LeavesAnEmptyArtistEmpty) {
    TrackInfo track = SevenTracks()[0];
    track.Artist = "";
    Use({track});
    settings.OutputFile = folder / "list.m3u";
    EXPECT_FALSE(Write(kPlaylistOutput));
    EXPECT_EQ(Written("list.m3u"), "#EXTM3U\r\n#EXTINF:250,: Waterloo\r\n/music/Abba/01 Waterloo.mp3\r\n");
}

TEST_F(M3uWriterTest, HoldsOnlyItsFirstLineWithoutTracks) {
    settings.OutputFile = folder / "list.m3u";
    EXPECT_FALSE(Write(kPlaylistOutput));
    EXPECT_EQ(Written("list.m3u"), "#EXTM3U\r\n");
}

TEST_F(M3uWriterTest, AppendsItsExtensionWhereItIsMissing) {
    for (const NameRow& row : {NameRow{"a.m3u", "a.m3u"}, NameRow{"a.M3U", "a.M3U"}, NameRow{"a", "a.m3u"},
                               NameRow{"a.m3u8", "a.m3u8.m3u"}}) {
        settings.OutputFile = folder / row.name;
        EXPECT_FALSE(Write(kPlaylistOutput));
        EXPECT_TRUE(folder.Exists(row.written)) << row.name;
        EXPECT_EQ(settings.OutputFile, folder / row.written);
    }
}

TEST_F(M3uWriterTest, KeepsTheTracksBeforeAnAbort) {
    UseMany(5);
    settings.OutputFile = folder / "list.m3u";
    monitor.abortAtQuestion = 2;
    EXPECT_TRUE(Write(kPlaylistOutput));
    EXPECT_EQ(Written("list.m3u"), "#EXTM3U\r\n#EXTINF:250,Abba: Title 1\r\n/music/Abba/01 Waterloo.mp3\r\n"
                                   "#EXTINF:250,Abba: Title 2\r\n/music/Abba/01 Waterloo.mp3\r\n");
}

TEST(OutputTypeOf, LooksAtWhatFollowsTheLastFullStop) {
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
        EXPECT_EQ(OutputTypeOf(name), type) << name;
    }
}

} // namespace
} // namespace tunedex
