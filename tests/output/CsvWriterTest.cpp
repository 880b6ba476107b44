#include "CsvWriter.h"

#include "ListingFixture.h"

namespace tunedex {
namespace {

class CsvWriterTest : public ListingTest {
  protected:
    CsvWriterTest() {
        settings.Modern = true;
        settings.Merge = 0;
        settings.OutputFile = folder / "list.csv";
    }
    // The lines below the header of a listing of one track.
    std::string Line(const TrackInfo& track, const std::string& columns) {
        Use({track});
        settings.ActiveColumns = columns;
        EXPECT_FALSE(Write(kCsvOutput));
        const std::string written = Written("list.csv");
        return written.substr(written.find("\r\n") + 2);
    }
};

TEST_F(CsvWriterTest, WritesEveryColumnOfEveryTrack) {
    auto tracks = SevenTracks();
    tracks[0].Track = "3/12";
    tracks[0].Disc = "1";
    tracks[0].AlbumArtist = "Various, Artists";
    tracks[0].Composer = "B. Andersson";
    tracks[0].Comment = "first line\nsecond \"line\"";
    Use({tracks[0], tracks[3], tracks[4], tracks[5]});
    settings.ActiveColumns =
        "Number|Artist|Album|Title|Year|Genre|MPEG Type|Mode|Bitrate|Frequency|Duration|"
        "File Size|Filename|Folder Path|Full Path|Track|Disc|Album Artist|Composer|Comment";
    settings.SizeType = 2;
    EXPECT_FALSE(Write(kCsvOutput));
    EXPECT_EQ(
        Written("list.csv"),
        "\xEF\xBB\xBFNumber,Artist,Album,Title,Year,Genre,MPEG Type,Mode,Bitrate,Frequency,Duration,File "
        "Size,Filename,Folder Path,Full Path,Track,Disc,Album Artist,Composer,Comment\r\n"
        "1,Abba,Waterloo,Waterloo,1974,Pop,1.0 III,Joint Stereo,128,44100,0:04:10,4000000,01 "
        "Waterloo.mp3,/music/Abba,/music/Abba/01 Waterloo.mp3,3/12,1,\"Various, Artists\",B. "
        "Andersson,\"first line\nsecond \"\"line\"\"\"\r\n"
        "2,\"R&B \"\"All\"\" <Stars>\",A&B,1 < 2 & 3 > 2,2001,R&B,1.0 II,Dual "
        "Channel,320,32000,1:15:03,2097152,\"\"\"quoted\"\" "
        "<b>.mp3\",/music/R&B,\"/music/R&B/\"\"quoted\"\" <b>.mp3\",,,,,\r\n"
        "3,/music/untagged.mp3,,No ID3 Tags!,,,,,,,,0,untagged.mp3,/music,/music/untagged.mp3,,,,,\r\n"
        "4,日本,Мир,あ € 5,(1999),JPop,2.5 III,Joint "
        "Stereo,919,44100,0:26:08,2147483647,あ.mp3,/music/日本,/music/日本/あ.mp3,,,,,\r\n");
    EXPECT_EQ(monitor.positions, (std::vector<std::int32_t>{1, 2, 3, 4}));
}

struct CsvRow {
    std::string text;
    std::string field;
};

TEST_F(CsvWriterTest, QuotesOnlyWhatNeedsIt) {
    for (const CsvRow& row :
         {CsvRow{"", ""}, CsvRow{" a;b\t'c' ", " a;b\t'c' "}, CsvRow{"a,b", "\"a,b\""},
          CsvRow{"\"", "\"\"\"\""}, CsvRow{"a\"b\"", "\"a\"\"b\"\"\""}, CsvRow{"a\rb", "\"a\rb\""},
          CsvRow{"a\nb", "\"a\nb\""}, CsvRow{"\xFF\xE3\x81", "\xFF\xE3\x81"}}) {
        TrackInfo track = SevenTracks()[0];
        track.Title = row.text;
        EXPECT_EQ(Line(track, "Title|Year"), row.field + ",1974\r\n");
    }
}

TEST_F(CsvWriterTest, QuotesAMergedFieldAsAWhole) {
    settings.Merge = 2;
    TrackInfo track = SevenTracks()[0];
    track.Title = "Waterloo, \"live\"";
    EXPECT_EQ(Line(track, "Number|Artist|Album|Title"), "1,\"Abba (Waterloo): Waterloo, \"\"live\"\"\"\r\n");
}

TEST_F(CsvWriterTest, WritesDurationsWithHours) {
    for (const CsvRow& row :
         {CsvRow{"0:00", "0:00:00"}, CsvRow{"59:59", "0:59:59"}, CsvRow{"60:00", "1:00:00"},
          CsvRow{"559240:31", "9320:40:31"}, CsvRow{"", ""}}) {
        TrackInfo track = SevenTracks()[0];
        track.Duration = row.text;
        EXPECT_EQ(Line(track, "Duration|Year"), row.field + ",1974\r\n");
    }
}

TEST_F(CsvWriterTest, HasAFieldForEachColumnEvenAnUnknownOne) {
    EXPECT_EQ(Line(SevenTracks()[0], "Foo, Bar|Year||Year"), ",1974,,1974\r\n");
    EXPECT_TRUE(Written("list.csv").starts_with("\xEF\xBB\xBF\"Foo, Bar\",Year,,Year\r\n"));
}

TEST_F(CsvWriterTest, WritesLongTextsInPieces) {
    TrackInfo track = SevenTracks()[0];
    track.Title = std::string(3 * TextFile::kPieceBytes, '"') + "あ";
    EXPECT_TRUE(Line(track, "Title") == "\"" + std::string(6 * TextFile::kPieceBytes, '"') + "あ\"\r\n");
}

TEST_F(CsvWriterTest, KeepsTheTracksBeforeAnAbort) {
    UseMany(5);
    settings.ActiveColumns = "Number|Title";
    monitor.abortAtQuestion = 2;
    EXPECT_TRUE(Write(kCsvOutput));
    EXPECT_EQ(Written("list.csv"), "\xEF\xBB\xBFNumber,Title\r\n1,Title 1\r\n2,Title 2\r\n");
}

TEST_F(CsvWriterTest, RaisesError5WithoutColumnsAndKeepsTheOldFile) {
    Use(SevenTracks());
    folder.Write("list.csv", "old");
    settings.ActiveColumns = "";
    EXPECT_EQ(ErrorOf(kCsvOutput), 5);
    EXPECT_EQ(Written("list.csv"), "old");
}

TEST_F(CsvWriterTest, AppendsAMissingExtension) {
    for (const CsvRow& row : {CsvRow{"a.csv", "a.csv"}, CsvRow{"b.CSV", "b.CSV"}, CsvRow{"c", "c.csv"}}) {
        settings.OutputFile = folder / row.text;
        EXPECT_FALSE(Write(kCsvOutput));
        EXPECT_TRUE(folder.Exists(row.field)) << row.text;
        EXPECT_EQ(settings.OutputFile, folder / row.field);
    }
}

} // namespace
} // namespace tunedex
