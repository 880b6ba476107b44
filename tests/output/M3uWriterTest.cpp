#include "M3uWriter.h"

#include "ListingFixture.h"

namespace tunedex {
namespace {

using M3uWriterTest = ListingTest;

struct PlaylistName {
    const char* name;
    const char* written;
};

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

TEST_F(M3uWriterTest, WritesEveryTrackOfALongList) {
    constexpr std::size_t kTracks = 20000; // more than two pieces
    UseMany(kTracks);
    settings.OutputFile = folder / "list.m3u";
    EXPECT_FALSE(Write(kPlaylistOutput));
    std::string expected = "#EXTM3U\r\n";
    for (std::size_t i = 1; i <= kTracks; ++i) {
        expected.append("#EXTINF:250,Abba: Title ").append(std::to_string(i));
        expected.append("\r\n/music/Abba/01 Waterloo.mp3\r\n");
    }
    EXPECT_GT(expected.size(), 2 * TextFile::kPieceBytes);
    EXPECT_TRUE(Written("list.m3u") == expected);
}

TEST_F(M3uWriterTest, IsWindows1252IfAllPathsAreAscii) {
    TrackInfo track = SevenTracks()[5];
    track.FullPath = "/music/a.mp3";
    track.Artist = "Bj\xC3\xB6rk \xE3\x81\x82";
    Use({track});
    settings.OutputFile = folder / "list.m3u";
    EXPECT_FALSE(Write(kPlaylistOutput));
    EXPECT_EQ(Written("list.m3u"), "#EXTM3U\r\n#EXTINF:1568,Bj\xF6rk ?: ? \x80 5\r\n/music/a.mp3\r\n");
}

TEST_F(M3uWriterTest, IsUtf8IfAnyPathIsNotAscii) {
    TrackInfo first = SevenTracks()[1];
    first.FullPath = "/music/a.mp3";
    TrackInfo last = SevenTracks()[5];
    TrackInfo stray = first;
    stray.FullPath = "/music/J\xF3ga.mp3"; // a name in Latin-1
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

TEST_F(M3uWriterTest, WritesTheLengthInSeconds) {
    settings.OutputFile = folder / "list.m3u";
    for (const LengthRow& row : {LengthRow{"4:05", "245"}, LengthRow{"0:00", "0"}, LengthRow{"75:03", "4503"},
                                 LengthRow{"35791:23", "2147483"}}) {
        TrackInfo track = SevenTracks()[0];
        track.Duration = row.duration;
        Use({track});
        EXPECT_FALSE(Write(kPlaylistOutput));
        EXPECT_EQ(Written("list.m3u"), std::string("#EXTM3U\r\n#EXTINF:") + row.seconds +
                                           ",Abba: Waterloo\r\n/music/Abba/01 Waterloo.mp3\r\n");
    }
}

TEST_F(M3uWriterTest, RaisesError5ForATrackWithoutDurationAndKeepsTheOldFile) {
    Use(SevenTracks()); // the untagged track has none
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

TEST_F(M3uWriterTest, WritesOnlyTheHeaderLineWithoutTracks) {
    settings.OutputFile = folder / "list.m3u";
    EXPECT_FALSE(Write(kPlaylistOutput));
    EXPECT_EQ(Written("list.m3u"), "#EXTM3U\r\n");
}

TEST_F(M3uWriterTest, AppendsAMissingExtension) {
    for (const PlaylistName& row : {PlaylistName{"a.m3u", "a.m3u"}, PlaylistName{"a.M3U", "a.M3U"},
                                    PlaylistName{"a", "a.m3u"}, PlaylistName{"a.m3u8", "a.m3u8.m3u"}}) {
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

TEST_F(M3uWriterTest, StopsOnAnAbortBeforeItHasCheckedEveryPath) {
    UseMany(100000);
    settings.OutputFile = folder / "list.m3u";
    monitor.abortAtQuestion = 1;
    EXPECT_TRUE(Write(kPlaylistOutput));
    EXPECT_EQ(Written("list.m3u"), "#EXTM3U\r\n#EXTINF:250,Abba: Title 1\r\n/music/Abba/01 Waterloo.mp3\r\n");
    EXPECT_EQ(monitor.asked, 2) << "once while checking paths, once after the track";
}

class ModernM3uTest : public ListingTest {
  protected:
    ModernM3uTest() {
        settings.Modern = true;
        settings.OutputFile = folder / "list.m3u8";
    }
    std::string Entry(const TrackInfo& track) {
        Use({track});
        EXPECT_FALSE(Write(kPlaylistOutput));
        const std::string written = Written("list.m3u8");
        EXPECT_TRUE(written.starts_with("#EXTM3U\r\n"));
        return written.substr(std::string("#EXTM3U\r\n").size());
    }
};

TEST_F(ModernM3uTest, NamesArtistAndTitleInUtf8) {
    auto tracks = SevenTracks();
    EXPECT_EQ(Entry(tracks[0]), "#EXTINF:250,Abba - Waterloo\r\n/music/Abba/01 Waterloo.mp3\r\n");
    EXPECT_EQ(Entry(tracks[5]), "#EXTINF:1568,日本 - あ € 5\r\n/music/日本/あ.mp3\r\n");
    tracks[5].FullPath = "/music/a.mp3";
    EXPECT_EQ(Entry(tracks[5]), "#EXTINF:1568,日本 - あ € 5\r\n/music/a.mp3\r\n");
}

TEST_F(ModernM3uTest, HasALengthOfMinusOneWithoutADuration) {
    EXPECT_EQ(Entry(SevenTracks()[4]),
              "#EXTINF:-1,/music/untagged.mp3 - No ID3 Tags!\r\n/music/untagged.mp3\r\n");
}

TEST_F(ModernM3uTest, KeepsANameOnItsLine) {
    TrackInfo track = SevenTracks()[0];
    track.Artist = "a\nb\r";
    track.Title = "c\td\r\n";
    EXPECT_EQ(Entry(track), "#EXTINF:250,a b  - c\td  \r\n/music/Abba/01 Waterloo.mp3\r\n");
    track.Artist = "/music/\xE3\x81\xFF.mp3"; // a file without a tag
    EXPECT_EQ(Entry(track),
              "#EXTINF:250,/music/\uFFFD\uFFFD.mp3 - c\td  \r\n/music/Abba/01 Waterloo.mp3\r\n");
}

TEST_F(ModernM3uTest, WritesAPathThatPlayersCouldMisreadAsAUri) {
    const PlaylistName rows[] = {
        {"/music/ a&b;'\"[1]\\.mp3", "/music/ a&b;'\"[1]\\.mp3"},
        {"/music/花\t.mp3", "/music/花\t.mp3"},
        {"/music/a\nb c.mp3", "file:///music/a%0Ab%20c.mp3"},
        {"/music/a\r.mp3", "file:///music/a%0D.mp3"},
        {"/music/#1.mp3", "file:///music/%231.mp3"},
        {"/music/Who?.mp3", "file:///music/Who%3F.mp3"},
        {"/music/50%.mp3", "file:///music/50%25.mp3"},
        {"/music/J\xF3ga.mp3", "file:///music/J%F3ga.mp3"},
        {"/music/花#[1].mp3", "file:///music/%E8%8A%B1%23%5B1%5D.mp3"},
    };
    TrackInfo track = SevenTracks()[0];
    for (const PlaylistName& row : rows) {
        track.FullPath = row.name;
        EXPECT_EQ(Entry(track), std::string("#EXTINF:250,Abba - Waterloo\r\n") + row.written + "\r\n");
    }
}

TEST_F(ModernM3uTest, KeepsTheTracksBeforeAnAbort) {
    UseMany(5);
    monitor.abortAtQuestion = 2;
    EXPECT_TRUE(Write(kPlaylistOutput));
    EXPECT_EQ(CountOf(Written("list.m3u8"), "#EXTINF"), 2U);
}

} // namespace
} // namespace tunedex
