#include "AudioStream.h"

#include "FrameHeader.h"
#include "Mp3Builder.h"
#include "Raises.h"
#include "References.h"
#include "TagBuilder.h"

#include <gtest/gtest.h>

#include <string>

namespace tunedex {
namespace {

using namespace std::string_literals;
using test::BigEndian;
using test::FailingByteSource;
using test::Frames;
using test::OrdinaryFrames;
using test::TagOf;

AudioStream Measured(const std::string& bytes) {
    FailingByteSource file(bytes);
    return MeasureAudio(file, FindTags(file));
}

int FailureOf(const std::string& bytes) {
    return test::RaisedBy([&] { Measured(bytes); });
}

std::optional<FrameHead> HeadOf(unsigned second, unsigned third, unsigned fourth = 0) {
    const std::uint8_t bytes[] = {0xFF, static_cast<std::uint8_t>(second), static_cast<std::uint8_t>(third),
                                  static_cast<std::uint8_t>(fourth)};
    return ParseFrameHead(bytes);
}

struct TableRow {
    unsigned second;
    std::int32_t bitrates[14];
    std::int32_t frequencies[3];
    std::int32_t samples;
};

TEST(ParseFrameHead, HasThePublishedTables) {
    const TableRow rows[] = {
        {0xFF,
         {32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448},
         {44100, 48000, 32000},
         384},
        {0xFD, {32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384}, {44100, 48000, 32000}, 1152},
        {0xFB, {32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320}, {44100, 48000, 32000}, 1152},
        {0xF7, {32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256}, {22050, 24000, 16000}, 384},
        {0xF5, {8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160}, {22050, 24000, 16000}, 1152},
        {0xF3, {8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160}, {22050, 24000, 16000}, 576},
        {0xE7, {32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256}, {11025, 12000, 8000}, 384},
        {0xE5, {8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160}, {11025, 12000, 8000}, 1152},
        {0xE3, {8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160}, {11025, 12000, 8000}, 576},
    };
    for (const TableRow& row : rows) {
        for (unsigned bitrate = 0; bitrate < 16; ++bitrate) {
            for (unsigned frequency = 0; frequency < 4; ++frequency) {
                const auto head = HeadOf(row.second, bitrate << 4U | frequency << 2U);
                ASSERT_EQ(head.has_value(), bitrate < 15 && frequency < 3);
                if (!head) {
                    continue;
                }
                EXPECT_EQ(head->bitrate, bitrate == 0 ? 0 : row.bitrates[bitrate - 1]);
                EXPECT_EQ(head->frequency, row.frequencies[frequency]);
                EXPECT_EQ(head->Samples(), row.samples);
            }
        }
    }
}

TEST(ParseFrameHead, RefusesReservedValues) {
    EXPECT_FALSE(HeadOf(0xEB, 0x90)) << "version 01";
    EXPECT_FALSE(HeadOf(0xF9, 0x90)) << "layer 00";
    EXPECT_FALSE(HeadOf(0xDB, 0x90)) << "no sync";
    EXPECT_FALSE(HeadOf(0xFB, 0xF0)) << "bitrate 15";
    EXPECT_FALSE(HeadOf(0xFB, 0x9C)) << "frequency 3";
    EXPECT_FALSE(ParseFrameHead({}));
}

TEST(FrameHead, ComputesLengths) {
    EXPECT_EQ(HeadOf(0xFB, 0x90)->Length(), 417U);
    EXPECT_EQ(HeadOf(0xFB, 0x92)->Length(), 418U);
    EXPECT_EQ(HeadOf(0xFF, 0x90)->Length(), 312U);
    EXPECT_EQ(HeadOf(0xFF, 0x92)->Length(), 316U);
    EXPECT_EQ(HeadOf(0xFD, 0x80)->Length(), 417U);
    EXPECT_EQ(HeadOf(0xF3, 0x80)->Length(), 208U);
    EXPECT_EQ(HeadOf(0xE5, 0xEA)->Length(), kLongestFrame);
    EXPECT_EQ(HeadOf(0xFB, 0x00)->Length(), 0U);
}

struct StreamRow {
    const char* what;
    std::string bytes;
    double seconds;
    double bitrate;
};

std::string XingFrame(const std::string& mark, std::uint32_t flags, const std::string& fields,
                      std::size_t at = 36, std::string_view header = "\xFF\xFB\x90\x04") {
    std::string frame(header);
    frame.resize(at, '\0');
    frame += mark + BigEndian(flags) + fields;
    frame.resize(417, '\0');
    return frame;
}

std::string VbriFrame(std::uint32_t bytes, std::uint32_t frames) {
    std::string frame = "\xFF\xFB\x90\x04" + std::string(32, '\0') + "VBRI" + std::string(6, '\0') +
                        BigEndian(bytes) + BigEndian(frames);
    frame.resize(417, '\0');
    return frame;
}

constexpr double kFrameSeconds = 1152.0 / 44100;

TEST(MeasureAudio, MeasuresStreamsOfEveryKind) {
    const std::string ten = OrdinaryFrames(10);
    const std::string mono = Frames(10, 417, "\xFF\xFB\x90\xC4");
    const StreamRow rows[] = {
        {"128 kbit/s", ten, 4170 / 16000.0, 128},
        {"one frame", OrdinaryFrames(1), 417 / 16000.0, 128},
        {"a frame that is cut off", OrdinaryFrames(1).substr(0, 300), 300 / 16000.0, 128},
        {"a cut-off frame behind other bytes", "x" + OrdinaryFrames(1).substr(0, 300), 300 / 16000.0, 128},
        {"the last frame cut off", ten.substr(0, 4000), 4000 / 16000.0, 128},
        {"MPEG-1 layer I", Frames(10, 312, "\xFF\xFF\x90\x04"), 3120 / 36000.0, 288},
        {"MPEG-1 layer II", Frames(10, 417, "\xFF\xFD\x80\x04"), 4170 / 16000.0, 128},
        {"MPEG-2 layer III", Frames(10, 208, "\xFF\xF3\x80\x04"), 2080 / 8000.0, 64},
        {"MPEG-2 layer II", Frames(10, 417, "\xFF\xF5\x80\x04"), 4170 / 8000.0, 64},
        {"MPEG-2.5 layer III", Frames(10, 208, "\xFF\xE3\x40\x04"), 2080 / 4000.0, 32},
        {"Xing", XingFrame("Xing", 1, BigEndian(100)) + ten, 100 * kFrameSeconds,
         4587 * 8 / 1000.0 / (100 * kFrameSeconds)},
        {"Xing with absurd bytes", XingFrame("Xing", 3, BigEndian(100) + BigEndian(0xFFFFFFFF)) + ten,
         100 * kFrameSeconds, 4587 * 8 / 1000.0 / (100 * kFrameSeconds)},
        {"Xing in mono", XingFrame("Xing", 1, BigEndian(50), 21, "\xFF\xFB\x90\xC4") + mono,
         50 * kFrameSeconds, 4587 * 8 / 1000.0 / (50 * kFrameSeconds)},
        {"Xing behind a checksum", XingFrame("Xing", 1, BigEndian(50), 38, "\xFF\xFA\x90\x04") + ten,
         50 * kFrameSeconds, 4587 * 8 / 1000.0 / (50 * kFrameSeconds)},
        {"Xing beside a checksum", XingFrame("Xing", 1, BigEndian(50), 36, "\xFF\xFA\x90\x04") + ten,
         50 * kFrameSeconds, 4587 * 8 / 1000.0 / (50 * kFrameSeconds)},
        {"Info", XingFrame("Info", 1, BigEndian(100)) + ten, 100 * kFrameSeconds, 128},
        {"Info in a frame of another bitrate",
         Frames(1, 417, "\xFF\xFB\x90\x04").replace(36, 12, "Info" + BigEndian(1) + BigEndian(100)) +
             Frames(10, 522, "\xFF\xFB\xA0\x04"),
         100 * kFrameSeconds, 160},
        {"VBRI", VbriFrame(1000, 200) + ten, 200 * kFrameSeconds, 4587 * 8 / 1000.0 / (200 * kFrameSeconds)},
        {"Xing of 0 frames", XingFrame("Xing", 1, BigEndian(0)) + ten, 4170 / 16000.0, 128},
        {"Xing of too many frames", XingFrame("Xing", 1, BigEndian(0xFFFFFFFF)) + ten, 4170 / 16000.0, 128},
        {"Xing without a number of frames", XingFrame("Xing", 2, BigEndian(4000)) + ten, 4170 / 16000.0, 128},
        {"VBRI of 0 frames", VbriFrame(1000, 0) + ten, 4170 / 16000.0, 128},
    };
    for (const StreamRow& row : rows) {
        const AudioStream stream = Measured(row.bytes);
        EXPECT_NEAR(stream.seconds, row.seconds, 1e-6) << row.what;
        EXPECT_NEAR(stream.bitrate, row.bitrate, 1e-3) << row.what;
    }
}

TEST(MeasureAudio, TakesTheMeanOfFramesWhoseBitratesDiffer) {
    std::string bytes;
    for (int i = 0; i < 300; ++i) {
        bytes += Frames(1, 417, "\xFF\xFB\x90\x04") + Frames(1, 835, "\xFF\xFB\xD2\x04").substr(0, 836);
    }
    // 128 and 256 kbit/s, 417 and 836 bytes.
    bytes.clear();
    for (int i = 0; i < 300; ++i) {
        bytes += Frames(1, 417, "\xFF\xFB\x90\x04") + Frames(1, 836, "\xFF\xFB\xD2\x04");
    }
    const AudioStream stream = Measured(bytes);
    EXPECT_NEAR(stream.seconds, 600 * kFrameSeconds, 1e-6);
    EXPECT_NEAR(stream.bitrate, 626.5 / 125 / kFrameSeconds, 1e-3);
    // Only the first four are compared.
    EXPECT_EQ(Measured(OrdinaryFrames(4) + Frames(10, 836, "\xFF\xFB\xD2\x04")).bitrate, 128);
}

TEST(MeasureAudio, MeasuresTheFreeFormatByTheDistanceOfItsFrames) {
    for (const std::size_t length : {100U, 1000U, 4608U}) {
        const AudioStream stream = Measured(Frames(20, length, "\xFF\xFB\x00\x04"s));
        EXPECT_EQ(stream.bitrate, 0);
        EXPECT_NEAR(stream.seconds, 20 * kFrameSeconds, 1e-6) << length;
    }
    const AudioStream padded =
        Measured(Frames(1, 1001, "\xFF\xFB\x02\x04"s) + Frames(1, 1000, "\xFF\xFB\x00\x04"s) +
                 Frames(1, 1001, "\xFF\xFB\x02\x04"s));
    EXPECT_NEAR(padded.seconds, 3002 / 1001.0 * kFrameSeconds, 1e-6);
    EXPECT_EQ(FailureOf(Frames(5, 5000, "\xFF\xFB\x00\x04"s)), 62) << "longer than a frame can be";
}

TEST(MeasureAudio, LeavesOutTheTagsAtBothEnds) {
    const std::string audio = OrdinaryFrames(10);
    const std::string old = test::Id3v1Tag({"t", "a", "", "", "", 0});
    const std::string ape = test::ApeTag({{"Title", std::string(3000, 't')}});
    const std::string longEnd = ape + test::Lyrics3v2("IND") + old;
    for (const std::string& head :
         {""s, TagOf(3, std::string(100, '\0')), TagOf(2, "") + TagOf(4, "xx", 0x10) + std::string(10, '\0'),
          ape, TagOf(4, "") + ape}) {
        for (const std::string& end : {""s, old, ape, longEnd}) {
            std::string file = head;
            file.append(audio).append(end);
            const AudioStream stream = Measured(file);
            EXPECT_NEAR(stream.seconds, 4170 / 16000.0, 1e-6) << head.size() << " " << end.size();
        }
    }
}

TEST(MeasureAudio, SkipsWhatIsNoFrame) {
    const std::string audio = OrdinaryFrames(10);
    const std::string falseStarts[] = {
        "\xFF\xFB\x90\x04", // no follower
        "\xFF\xE3\x90\x04" + std::string(50, 'x'),
        std::string(5000, '\xFF'),
        std::string(100000, '\0'),
        std::string(70000, 'x') + "\xFF",
        Frames(1, 417, "\xFF\xFB\x90\x04") + Frames(1, 417, "\xFF\xFB\x94\x04"), // another frequency follows
        "\xFF\xFB\x00\x04"s + std::string(100, 'x'),
    };
    for (const std::string& start : falseStarts) {
        const AudioStream stream = Measured(start + audio);
        EXPECT_NEAR(stream.seconds, 4170 / 16000.0, 1e-6) << start.size();
    }
}

TEST(MeasureAudio, FindsTheFirstFrameWhereverAReadOfTheSearchEnds) {
    for (std::size_t before = 4080; before < 4100; ++before) {
        EXPECT_NEAR(Measured(std::string(before, 'x') + OrdinaryFrames(3)).seconds, 1251 / 16000.0, 1e-6)
            << before;
    }
    for (std::size_t before = 4096 + 65536 - 2900; before < 4096 + 65536 + 10; before += 7) {
        EXPECT_NEAR(Measured(std::string(before, 'x') + OrdinaryFrames(3)).seconds, 1251 / 16000.0, 1e-6)
            << before;
    }
}

TEST(MeasureAudio, RaisesError62WithoutAFrame) {
    const std::string rows[] = {"", "\xFF", "\xFF\xFB", std::string(10000, 'x'), std::string(10000, '\xFF'),
                                TagOf(3, std::string(500, 'x')), test::Id3v1Tag({"t", "", "", "", "", 0}),
                                "\xFF\xFB\x90",
                                // Another frame would have room behind it.
                                OrdinaryFrames(1) + std::string(4, '\0'),
                                XingFrame("Xing", 1, BigEndian(50)) + std::string(5000, '\0')};
    for (const std::string& bytes : rows) {
        EXPECT_EQ(FailureOf(bytes), 62) << bytes.size();
    }
}

TEST(MeasureAudio, SearchesATagThatDeclaresMoreThanTheFileHas) {
    std::string tag = test::Id3v2Header(1000000) + std::string(100, '\0');
    EXPECT_NEAR(Measured(tag + OrdinaryFrames(10)).seconds, 4170 / 16000.0, 1e-6);
    tag = test::Id3v2Header(2000) + std::string(100, '\0');
    EXPECT_EQ(FailureOf(tag + OrdinaryFrames(4) + std::string(1000, '\0')), 62) << "the tag is whole";
    const std::string cut = "ID3\3\0\0\0\0"s;
    EXPECT_NEAR(Measured(cut + OrdinaryFrames(10)).seconds, 4170 / 16000.0, 1e-6) << "a frame as its size";
}

TEST(MeasureAudio, ClampsTheSeconds) {
    // Free format, the shortest frames: a source that pretends to be huge.
    class Huge final : public ByteSource {
      public:
        std::uint64_t Size() const override { return 1ULL << 62U; }
        std::size_t Read(std::uint64_t offset, std::span<std::uint8_t> buffer) override {
            for (std::size_t i = 0; i < buffer.size(); ++i) {
                buffer[i] = static_cast<std::uint8_t>("\xFF\xE3\x18\x04"[0 + (offset + i) % 72 % 4] *
                                                      ((offset + i) % 72 < 4));
            }
            return buffer.size();
        }
    };
    Huge file;
    TagLayout layout;
    layout.audioEnd = file.Size();
    EXPECT_EQ(MeasureAudio(file, layout).seconds, kLongestSeconds);
}

TEST(MeasureAudio, TakesLinearTimeForHostileFiles) {
    std::string candidates;
    while (candidates.size() < 3000000) {
        candidates += "\xFF\xFB\x00\x04"s; // the free format
        candidates += "\xFF\xFB\x90\x04";
        candidates += "\xFF\xE3\x90\x04\xFF\xFD\x00\x04"s;
        candidates += std::string(candidates.size() % 7, 'x');
    }
    Measured(candidates + OrdinaryFrames(3));
}

TEST(ReadAudioStream, SetsTheTextsOfTheTrack) {
    FailingByteSource file(Frames(100, 208, "\xFF\xF3\x80\x44"));
    TrackInfo track;
    ReadAudioStream(file, FindTags(file), track);
    EXPECT_EQ(track.Bitrate, "64");
    EXPECT_EQ(track.Frequency, "22050");
    EXPECT_EQ(track.Mode, "Joint Stereo");
    EXPECT_EQ(track.MpegType, "2.0 III");
    EXPECT_EQ(track.Duration, "0:02");
    EXPECT_EQ(track.Seconds, 2);
    FailingByteSource freeFormat(Frames(100, 208, "\xFF\xFB\x00\xC4"s));
    ReadAudioStream(freeFormat, FindTags(freeFormat), track);
    EXPECT_EQ(track.Bitrate, "free");
    EXPECT_EQ(track.Mode, "Mono");
    const TrackInfo before = track;
    FailingByteSource none("no audio");
    EXPECT_EQ(test::RaisedBy([&] { ReadAudioStream(none, FindTags(none), track); }), 62);
    EXPECT_EQ(track, before);
}

TEST(ReadAudioStream, ReadsOnlyHeadersOfAnOrdinaryFile) {
    FailingByteSource file(TagOf(3, std::string(5000, '\0')) + Frames(100, 1044, "\xFF\xFB\xE0\x04"));
    const TagLayout layout = FindTags(file);
    const int before = file.Reads();
    TrackInfo track;
    ReadAudioStream(file, layout, track);
    EXPECT_LT(file.Reads() - before, 9);
}

} // namespace
} // namespace tunedex
