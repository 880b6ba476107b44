#include "MP3Info.h"

#include "Mp3Builder.h"
#include "References.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace tunedex {
namespace {

using namespace std::string_literals;
using test::Audio;
using test::FailingByteSource;
using test::Id3v1Tag;
using test::Id3v2Header;
using test::Id3v2Tag;
using test::Latin1;
using test::TestFolder;
using test::XingAudio;

constexpr const char* kPath = "/music/a.mp3";

TrackReading ReadFrom(ByteSource& file, bool moveTheArtists = false) {
    TrackReading reading;
    reading.track.FullPath = kPath;
    ReadTrackInfo(file, {moveTheArtists}, reading);
    return reading;
}

TrackReading Read(const std::string& bytes, bool moveTheArtists = false) {
    FailingByteSource file(bytes);
    return ReadFrom(file, moveTheArtists);
}

std::string V1() {
    return Id3v1Tag({"old title", "The Old Artist", "old album", "1990", "", 17});
}

TEST(ReadTrackInfo, UsesThePathAsTheArtistOfAFileWithoutTags) {
    const TrackReading reading = Read(Audio(16000));
    EXPECT_EQ(reading.track.FullPath, kPath);
    EXPECT_EQ(reading.track.Artist, kPath);
    EXPECT_EQ(reading.track.Title, "No ID3 Tags!");
    EXPECT_EQ(reading.track.Album, "");
    EXPECT_EQ(reading.track.Year, "");
    EXPECT_EQ(reading.track.Genre, "");
    EXPECT_EQ(reading.track.TagType, 0);
    EXPECT_EQ(reading.track.FileSize, 16000);
    EXPECT_EQ(reading.track.Duration, "0:01");
    EXPECT_EQ(reading.track.Seconds, 1);
    EXPECT_FALSE(reading.decodeError);
}

TEST(ReadTrackInfo, ResetsAReusedTrack) {
    const std::string full = Id3v2Tag({{"TCON", Latin1("Own genre")}}, 30) + XingAudio(1700, 3) + V1();
    for (const std::string& bytes : {std::string("no audio"), Audio(16000), V1(), Id3v2Tag({}, 30)}) {
        FailingByteSource earlier(full);
        FailingByteSource file(bytes);
        TrackReading reading = ReadFrom(earlier);
        reading.track.BaseFolder = "/music";
        ASSERT_NE(reading.track.Duration, "");
        ReadTrackInfo(file, {}, reading);
        const TrackReading fresh = Read(bytes);
        EXPECT_EQ(reading.track, fresh.track);
        EXPECT_EQ(reading.decodeError.has_value(), fresh.decodeError.has_value());
    }
    TrackReading broken = Read("no audio");
    FailingByteSource file(full);
    ReadTrackInfo(file, {}, broken);
    EXPECT_FALSE(broken.decodeError);
}

TEST(ReadTrackInfo, RecordsTheKindOfTag) {
    EXPECT_EQ(Read(Audio(500) + V1()).track.TagType, 1);
    EXPECT_EQ(Read(Id3v2Tag({}, 10) + Audio(500)).track.TagType, 2);
    EXPECT_EQ(Read(Id3v2Tag({}, 10) + Audio(500) + V1()).track.TagType, 2);
}

TEST(ReadTrackInfo, OverwritesId3v1FieldsWithId3v2Frames) {
    const TrackInfo track =
        Read(Id3v2Tag({{"TIT2", Latin1("new title")}, {"TCON", Latin1("(13)")}}) + Audio(500) + V1(), true)
            .track;
    EXPECT_EQ(track.Title, "new title");
    EXPECT_EQ(track.Genre, "(13)");
    EXPECT_EQ(track.Artist, "Old Artist, The");
    EXPECT_EQ(track.Album, "old album");
    EXPECT_EQ(track.Year, "1990");
}

TEST(ReadTrackInfo, ReplacesTheId3v1ArtistByTheDefaultForAnEmptyFrame) {
    EXPECT_EQ(Read(Id3v2Tag({{"TPE1", "\0"s}}) + Audio(500) + V1()).track.Artist, "Unknown Artist");
}

TEST(ReadTrackInfo, LeavesATitleWithoutAFrameEmpty) {
    const TrackInfo track = Read(Id3v2Tag({{"TALB", Latin1("Album")}}) + Audio(500)).track;
    EXPECT_EQ(track.Title, "");
    EXPECT_EQ(track.Artist, "");
    EXPECT_EQ(track.Album, "Album");
    EXPECT_EQ(track.TagType, 2);
}

TEST(ReadTrackInfo, SearchesTheHeaderFromTheLastByteOfTheTag) {
    // A header inside the tag is not used.
    const std::string fake = "\xFF\xF3\x90\x64";
    const std::string body = std::string(10, '\0') + fake + std::string(10, '\0');
    const TrackInfo track = Read(Id3v2Header(24) + body + Audio(500)).track;
    EXPECT_EQ(track.MpegType, "1.0 III");
    // The search starts at the tag's last byte: if it is FF, a header may start with it.
    const std::string odd =
        Id3v2Header(20) + std::string(19, '\0') + "\xFF" + "\xF3\x90\x64" + std::string(100, '\0');
    EXPECT_EQ(Read(odd).track.MpegType, "2.0 III");
}

TEST(ReadTrackInfo, CountsAPictureTowardsTheDurationAtAConstantBitrate) {
    const std::string picture = Id3v2Tag({{"APIC", std::string(160000, 'p')}});
    EXPECT_EQ(Read(Audio(160000)).track.Duration, "0:10");
    EXPECT_EQ(Read(picture + Audio(160000)).track.Duration, "0:20");
    EXPECT_EQ(Read(XingAudio(160000, 383)).track.Duration, "0:10");
    EXPECT_EQ(Read(picture + XingAudio(160000, 383)).track.Duration, "0:10");
}

TEST(ReadTrackInfo, KeepsTheTagsOfAFileWithoutAudio) {
    const TrackReading reading = Read(std::string(200, 'a') + V1());
    ASSERT_TRUE(reading.decodeError);
    EXPECT_EQ(reading.decodeError->Number(), 62);
    EXPECT_EQ(reading.track.Title, "old title");
    EXPECT_EQ(reading.track.Bitrate, "");
    EXPECT_EQ(reading.track.Frequency, "");
    EXPECT_EQ(reading.track.Mode, "");
    EXPECT_EQ(reading.track.MpegType, "");
    EXPECT_EQ(reading.track.Duration, "");
    EXPECT_EQ(reading.track.Seconds, 0);
}

// The record expected from these bytes: the frames that end within them, the ID3v1 tag if they end in one,
// and the audio header that the byte-by-byte search finds.
struct Piece {
    std::size_t end;
    std::string TrackInfo::*field;
    std::string text;
};

void ExpectCutFile(const std::string& bytes, std::uint64_t tagEnd, const std::vector<Piece>& frames,
                   bool endsInV1) {
    const TrackReading reading = Read(bytes);
    TrackInfo expected;
    expected.FullPath = kPath;
    expected.FileSize = static_cast<std::int32_t>(bytes.size());
    const bool v2 = bytes.size() >= 10 && !frames.empty();
    if (endsInV1) {
        expected.Title = "old title";
        expected.Artist = "The Old Artist";
        expected.Album = "old album";
        expected.Year = "1990";
        expected.Genre = "Rock";
        expected.TagType = 1;
    } else if (!v2) {
        expected.Title = "No ID3 Tags!";
        expected.Artist = kPath;
    }
    if (v2) {
        expected.TagType = 2;
        for (const Piece& frame : frames) {
            if (bytes.size() >= frame.end) {
                expected.*frame.field = frame.text;
            }
        }
    }
    const auto header = test::ReferenceSearch(bytes, v2 ? tagEnd : 1);
    TrackInfo withoutAudio = reading.track;
    withoutAudio.Seconds = 0;
    for (std::string TrackInfo::*field : {&TrackInfo::Bitrate, &TrackInfo::Frequency, &TrackInfo::Mode,
                                          &TrackInfo::MpegType, &TrackInfo::Duration}) {
        EXPECT_EQ((reading.track.*field).empty(), reading.decodeError.has_value());
        (withoutAudio.*field).clear();
    }
    EXPECT_EQ(withoutAudio.Title, expected.Title);
    EXPECT_EQ(withoutAudio.Artist, expected.Artist);
    EXPECT_TRUE(withoutAudio == expected);
    const bool noBitrate =
        header && header->vbr && reading.decodeError && reading.decodeError->Number() == 11;
    EXPECT_EQ(reading.decodeError.has_value(), !header || noBitrate);
}

TEST(ReadTrackInfo, ReadsWithTheModernReadersWhenGivenACodePage) {
    const CodePage codePage("windows-1251");
    const std::string tag = Id3v2Tag({{"TIT2", "\3T\xC3\xADtulo"}, {"TRCK", Latin1("3/9")}});
    FailingByteSource file(tag + Audio(417) + Audio(417) +
                           Id3v1Tag({"", "\xCC\xF3\xEC\xE8\xE9", "", "", "", 255}));
    TrackReading reading;
    reading.track.FullPath = kPath;
    ReadTrackInfo(file, {.modern = &codePage}, reading);
    EXPECT_EQ(reading.track.Title, "Título");
    EXPECT_EQ(reading.track.Artist, "Мумий");
    EXPECT_EQ(reading.track.Track, "3/9");
    EXPECT_EQ(reading.track.TagType, kId3v2Tag);
    EXPECT_FALSE(reading.modernTag);
    EXPECT_FALSE(reading.decodeError);
}

TEST(ReadTrackInfo, ListsAFileWithoutAnyModernTagAsAnUntaggedOne) {
    const CodePage codePage("windows-1252");
    FailingByteSource file("no audio");
    TrackReading reading;
    reading.track.FullPath = kPath;
    reading.track.Comment = "of the file before";
    ReadTrackInfo(file, {.modern = &codePage}, reading);
    EXPECT_EQ(reading.track.Artist, kPath);
    EXPECT_EQ(reading.track.Title, "No ID3 Tags!");
    EXPECT_EQ(reading.track.Comment, "");
    EXPECT_EQ(reading.track.TagType, kNoTag);
    ASSERT_TRUE(reading.decodeError);
    EXPECT_TRUE(reading.decodeError->Is(ErrorNumber::InputPastEnd));
    EXPECT_FALSE(reading.unread);
}

class BrokenByteSource final : public ByteSource {
  public:
    std::uint64_t Size() const override { return 16000; }
    std::size_t Read(std::uint64_t /*offset*/, std::span<std::uint8_t> /*buffer*/) override {
        throw RunTimeError(ErrorNumber::DeviceInputOutput);
    }
};

TEST(ReadTrackInfo, TellsAFileThatCannotBeReadFromOneWithoutAudio) {
    const CodePage codePage("windows-1252");
    for (const CodePage* const modern : {static_cast<const CodePage*>(nullptr), &codePage}) {
        BrokenByteSource file;
        TrackReading reading;
        ReadTrackInfo(file, {.modern = modern}, reading);
        EXPECT_TRUE(reading.unread);
    }
}

TEST(ReadTrackInfo, ReadsTheCompletePartsOfAFileTruncatedAtAnyByte) {
    const std::string title = test::Frame({"TIT2", Latin1("new title")});
    const std::string album = test::Frame({"TALB", Latin1("new album")});
    const std::string tag = Id3v2Tag({{"TIT2", Latin1("new title")}, {"TALB", Latin1("new album")}}, 30);
    const std::vector<Piece> frames = {{10 + title.size(), &TrackInfo::Title, "new title"},
                                       {10 + title.size() + album.size(), &TrackInfo::Album, "new album"}};
    struct File {
        std::string bytes;
        std::vector<Piece> frames;
        std::uint64_t tagEnd;
        bool v1;
    };
    const File files[] = {
        {tag + Audio(1500) + V1(), frames, tag.size(), true},
        {tag + XingAudio(1700, 3), frames, tag.size(), false},
        {Audio(417) + Audio(417) + V1(), {}, 1, true},
        {"leading garbage \xFF\xE0 \xFF\xFF" + XingAudio(1600, 2), {}, 1, false},
    };
    for (const File& file : files) {
        for (std::size_t length = 0; length <= file.bytes.size(); ++length) {
            SCOPED_TRACE(length);
            ExpectCutFile(file.bytes.substr(0, length), file.tagEnd, file.frames,
                          file.v1 && length == file.bytes.size());
            if (testing::Test::HasFailure()) {
                return;
            }
        }
    }
}

TEST(ReadTrackInfo, ReturnsATrackWhicheverReadFails) {
    const std::string bytes = Id3v2Tag({{"TIT2", Latin1("new title")}, {"TALB", Latin1("new album")}}, 30) +
                              std::string(3000, 'a') + XingAudio(1700, 3) + V1();
    FailingByteSource whole(bytes);
    const TrackInfo good = ReadFrom(whole).track;
    ASSERT_GT(whole.Reads(), 4);
    int harmless = 0;
    bool lostTitle = false;
    bool lostAudio = false;
    for (int failAt = 1; failAt <= whole.Reads(); ++failAt) {
        FailingByteSource file(bytes, failAt);
        const TrackReading reading = ReadFrom(file);
        const TrackInfo& track = reading.track;
        EXPECT_EQ(track.FullPath, kPath);
        EXPECT_EQ(track.FileSize, static_cast<std::int32_t>(bytes.size()));
        EXPECT_TRUE(track.Title == "new title" || track.Title == "old title") << failAt << " " << track.Title;
        EXPECT_TRUE(track.Artist == "The Old Artist" || track.Artist.empty());
        EXPECT_TRUE(track.Album == "new album" || track.Album == "old album" || track.Album.empty());
        for (std::string TrackInfo::*field : {&TrackInfo::Bitrate, &TrackInfo::Frequency, &TrackInfo::Mode,
                                              &TrackInfo::MpegType, &TrackInfo::Duration}) {
            EXPECT_EQ(track.*field, reading.decodeError ? "" : good.*field);
        }
        harmless += track == good ? 1 : 0;
        lostTitle = lostTitle || track.Title == "old title";
        lostAudio = lostAudio || reading.decodeError.has_value();
    }
    EXPECT_TRUE(lostTitle);
    EXPECT_TRUE(lostAudio);
    EXPECT_EQ(harmless, 1) << "only the read of the padding may fail without a loss";
}

class ReadTrackFileTest : public testing::Test {
  public:
    ReadTrackFileTest() : descriptor_(open(folder_.Path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}
    ReadTrackFileTest(const ReadTrackFileTest&) = delete;
    ReadTrackFileTest& operator=(const ReadTrackFileTest&) = delete;
    ~ReadTrackFileTest() override { close(descriptor_); }

  protected:
    TrackReading ReadFile(const std::string& name) const {
        TrackReading reading;
        reading.track.FullPath = folder_ / name;
        ReadTrackFile(descriptor_, name.c_str(), {}, reading);
        return reading;
    }
    int FailureOf(const std::string& name) const {
        try {
            ReadFile(name);
            return 0;
        } catch (const RunTimeError& error) {
            return error.Number();
        }
    }

    TestFolder folder_;
    int descriptor_;
};

TEST_F(ReadTrackFileTest, ReadsAFileInAnOpenFolder) {
    folder_.Write("a.mp3", Audio(16000) + V1());
    const TrackReading reading = ReadFile("a.mp3");
    EXPECT_EQ(reading.track.FullPath, folder_ / "a.mp3");
    EXPECT_EQ(reading.track.Title, "old title");
    EXPECT_EQ(reading.track.FileSize, 16128);
}

TEST_F(ReadTrackFileTest, ReportsAnEmptyFileAndKeepsIt) {
    folder_.Write("a.mp3", "");
    const TrackReading reading = ReadFile("a.mp3");
    EXPECT_EQ(reading.track.FileSize, 0);
    EXPECT_EQ(reading.track.Title, "No ID3 Tags!");
    EXPECT_EQ(reading.decodeError->Number(), 62);
}

TEST_F(ReadTrackFileTest, KeepsTheTagsOfAFileTooLargeToDecode) {
    folder_.Write("a.mp3", Audio(1000));
    std::filesystem::resize_file(folder_ / "a.mp3", 300000000 - 128);
    FILE* const file = fopen((folder_ / "a.mp3").c_str(), "ab");
    ASSERT_NE(file, nullptr);
    fwrite(V1().data(), 1, 128, file);
    fclose(file);
    const TrackReading reading = ReadFile("a.mp3");
    EXPECT_EQ(reading.track.FileSize, 300000000);
    EXPECT_EQ(reading.track.Title, "old title");
    EXPECT_EQ(reading.track.Duration, "");
    EXPECT_EQ(reading.decodeError->Number(), 6);
}

TEST_F(ReadTrackFileTest, ClampsTheFileSizeToTwoGigabytes) {
    folder_.Write("a.mp3", Audio(1000));
    std::filesystem::resize_file(folder_ / "a.mp3", 5000000000);
    const TrackReading reading = ReadFile("a.mp3");
    EXPECT_EQ(reading.track.FileSize, 2147483647);
    EXPECT_EQ(reading.decodeError->Number(), 6);
}

TEST_F(ReadTrackFileTest, FindsNoHeaderInAFileThatIsAllTag) {
    folder_.Write("a.mp3", Id3v2Header(0x7FFFFF));
    std::filesystem::resize_file(folder_ / "a.mp3", 20000000);
    EXPECT_EQ(ReadFile("a.mp3").decodeError->Number(), 62);
}

TEST_F(ReadTrackFileTest, RaisesFileNotFoundForAnythingButARegularFile) {
    folder_.Make("folder.mp3");
    ASSERT_EQ(mkfifo((folder_ / "fifo.mp3").c_str(), 0600), 0);
    EXPECT_EQ(FailureOf("folder.mp3"), 53);
    EXPECT_EQ(FailureOf("fifo.mp3"), 53) << "opening a FIFO must not block";
    EXPECT_EQ(FailureOf("gone.mp3"), 53);
}

} // namespace
} // namespace tunedex
