#include "MpegHeader.h"

#include "Mp3Builder.h"
#include "References.h"
#include "RunTimeError.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>

namespace tunedex {
namespace {

using namespace std::string_literals;
using test::FailingByteSource;
using test::XingAudio;

const std::string kHeader = "\xFF\xFB\x90\x64"; // MPEG-1 layer III, 128 kbit/s, 44,100 Hz, joint stereo

int ErrorOf(const std::string& bytes, std::uint64_t searchPosition = 1) {
    FailingByteSource file(bytes);
    try {
        FindMpegHeader(file, searchPosition);
        return 0;
    } catch (const RunTimeError& error) {
        return error.Number();
    }
}

MpegHeader Find(const std::string& bytes, std::uint64_t searchPosition = 1) {
    FailingByteSource file(bytes);
    return FindMpegHeader(file, searchPosition);
}

struct Decoded {
    TrackInfo track;
    int error = 0;
};

// Decodes `bytes` as the start of a file of `fileSize` bytes.
Decoded Decode(const std::string& bytes, std::int32_t fileSize) {
    FailingByteSource file(bytes);
    Decoded decoded;
    decoded.track.FileSize = fileSize;
    try {
        DecodeMpegHeader(file, 1, decoded.track);
    } catch (const RunTimeError& error) {
        decoded.error = error.Number();
    }
    return decoded;
}

std::string HeaderOf(unsigned version, unsigned layer, unsigned bitrate, unsigned frequency, unsigned mode) {
    std::string header = "\xFF";
    header += static_cast<char>(0xE0U | (version << 3U) | (layer << 1U) | 1U);
    header += static_cast<char>((bitrate << 4U) | (frequency << 2U));
    header += static_cast<char>(mode << 6U);
    return header;
}

struct BitrateRow {
    unsigned index;
    int version1LayerIII;
    int layerII;
    int layerI;
    int version2LayerIII;
    int version25;
};

// Index 15 cannot be tested with a file: such a header is skipped.
constexpr BitrateRow kBitrates[] = {
    {0, 128, 128, 128, 128, 128},  {1, 32, 32, 32, 8, 8},         {2, 40, 48, 64, 128, 16},
    {3, 48, 56, 96, 24, 24},       {4, 56, 64, 128, 16, 32},      {5, 64, 80, 160, 64, 64},
    {6, 80, 96, 192, 80, 80},      {7, 96, 112, 224, 56, 56},     {8, 112, 128, 256, 64, 64},
    {9, 128, 160, 288, 128, 128},  {10, 160, 192, 320, 160, 160}, {11, 192, 224, 352, 112, 112},
    {12, 224, 256, 384, 128, 128}, {13, 256, 320, 416, 256, 256}, {14, 320, 384, 448, 320, 320},
};

TEST(DecodeMpegHeader, UsesItsOwnBitrateTables) {
    constexpr unsigned kV1 = 3;
    constexpr unsigned kV2 = 2;
    constexpr unsigned kV25 = 0;
    constexpr unsigned kI = 3;
    constexpr unsigned kII = 2;
    constexpr unsigned kIII = 1;
    const auto bitrate = [](unsigned version, unsigned layer, unsigned index) {
        const Decoded decoded = Decode(HeaderOf(version, layer, index, 0, 0), 1000000);
        EXPECT_EQ(decoded.error, 0);
        return decoded.track.Bitrate;
    };
    for (const BitrateRow& row : kBitrates) {
        SCOPED_TRACE(row.index);
        EXPECT_EQ(bitrate(kV1, kIII, row.index), std::to_string(row.version1LayerIII));
        EXPECT_EQ(bitrate(kV1, kII, row.index), std::to_string(row.layerII));
        EXPECT_EQ(bitrate(kV2, kII, row.index), std::to_string(row.layerII));
        EXPECT_EQ(bitrate(kV1, kI, row.index), std::to_string(row.layerI));
        EXPECT_EQ(bitrate(kV2, kI, row.index), std::to_string(row.layerI));
        EXPECT_EQ(bitrate(kV2, kIII, row.index), std::to_string(row.version2LayerIII));
        for (const unsigned layer : {kI, kII, kIII}) {
            EXPECT_EQ(bitrate(kV25, layer, row.index), std::to_string(row.version25));
        }
    }
}

TEST(TableBitrate, Returns128ForIndex15) {
    for (const MpegVersion version : {MpegVersion::V1, MpegVersion::V2, MpegVersion::V25}) {
        for (const MpegLayer layer : {MpegLayer::I, MpegLayer::II, MpegLayer::III}) {
            EXPECT_EQ(TableBitrate(version, layer, 15), 128);
        }
    }
}

TEST(DecodeMpegHeader, DecodesVersionLayerFrequencyAndMode) {
    constexpr std::string_view kVersions[] = {"2.5", "", "2.0", "1.0"};
    constexpr std::string_view kLayers[] = {"", "III", "II", "I"};
    constexpr int kFrequencies[4][3] = {
        {11025, 12000, 8000}, {}, {22050, 24000, 16000}, {44100, 48000, 32000}};
    constexpr std::string_view kModes[] = {"Stereo", "Joint Stereo", "Dual Channel", "Mono"};
    for (const unsigned version : {0U, 2U, 3U}) {
        for (const unsigned layer : {1U, 2U, 3U}) {
            for (const unsigned frequency : {0U, 1U, 2U}) {
                for (const unsigned mode : {0U, 1U, 2U, 3U}) {
                    const TrackInfo track = Decode(HeaderOf(version, layer, 9, frequency, mode), 1000).track;
                    EXPECT_EQ(track.MpegType,
                              std::string(kVersions[version]) + " " + std::string(kLayers[layer]));
                    EXPECT_EQ(track.Frequency, std::to_string(kFrequencies[version][frequency]));
                    EXPECT_EQ(track.Mode, kModes[mode]);
                }
            }
        }
    }
}

TEST(DecodeMpegHeader, IgnoresAllOtherBits) {
    const TrackInfo expected = Decode(kHeader, 4000000).track;
    // Protection; padding and private; mode extension, copyright, original and emphasis.
    for (const std::string& header : {"\xFF\xFA\x90\x64"s, "\xFF\xFB\x93\x64"s, "\xFF\xFB\x90\x7F"s}) {
        EXPECT_EQ(Decode(header, 4000000).track, expected);
    }
}

TEST(DecodeMpegHeader, ComputesTheDurationFromSizeAndBitrate) {
    const Decoded decoded = Decode(kHeader, 4000000);
    EXPECT_EQ(decoded.track.Bitrate, "128");
    EXPECT_EQ(decoded.track.Frequency, "44100");
    EXPECT_EQ(decoded.track.Mode, "Joint Stereo");
    EXPECT_EQ(decoded.track.MpegType, "1.0 III");
    EXPECT_EQ(decoded.track.Duration, "4:10");
    EXPECT_EQ(decoded.track.Seconds, 250);
}

struct DurationRow {
    std::int32_t fileSize;
    std::string_view duration;
    std::int64_t seconds;
};

TEST(DecodeMpegHeader, TruncatesSecondsAndDoesNotLimitMinutes) {
    const DurationRow rows[] = {
        {4, "0:00", 0},
        {15999, "0:00", 0},
        {16000, "0:01", 1},
        {31999, "0:01", 1},
        {16000 * 59, "0:59", 59},
        {16000 * 60, "1:00", 60},
        {16000 * 4503, "75:03", 4503},
        {268435455, "279:37", 16777},
    };
    for (const DurationRow& row : rows) {
        const Decoded decoded = Decode(kHeader, row.fileSize);
        EXPECT_EQ(decoded.track.Duration, row.duration);
        EXPECT_EQ(decoded.track.Seconds, row.seconds);
    }
}

TEST(DecodeMpegHeader, RaisesOverflowFrom268435456BytesOn) {
    for (const std::int32_t size : {268435456, 300000000, 2147483647}) {
        const Decoded decoded = Decode(kHeader, size);
        EXPECT_EQ(decoded.error, 6);
        TrackInfo untouched;
        untouched.FileSize = size;
        EXPECT_EQ(decoded.track, untouched);
    }
}

struct XingRow {
    std::string header;
    std::int32_t fileSize;
    std::uint32_t frames;
    std::string_view bitrate;
    std::string_view duration;
};

TEST(DecodeMpegHeader, ComputesTheBitrateOfAXingFileFromItsFrameCount) {
    const XingRow rows[] = {
        {kHeader, 3000000, 1000, "919", "0:26"},
        // The same constant for every version and layer.
        {"\xFF\xF3\x90\x64", 3000000, 1000, "459", "0:52"}, // 459.375, 22,050 Hz
        {"\xFF\xE3\x90\x64", 3000000, 1000, "230", "1:44"}, // 229.6875, 11,025 Hz
        {"\xFF\xFD\x90\x64", 3000000, 1000, "919", "0:26"},
        // 48,000 Hz: size / (3 x frames); halves are rounded to even.
        {"\xFF\xFB\x94\x64", 30003, 4, "2500", "0:00"},
        {"\xFF\xFB\x94\x64", 15, 2, "2", "0:00"},
        {"\xFF\xFB\x94\x64", 21, 2, "4", "0:00"},
        // All 32 bits of the frame count.
        {"\xFF\xFB\x94\x64", 200000000, 0x01020304, "4", "6666:40"},
        // The bitrate index of the header is ignored and may be one that no table lists.
        {"\xFF\xFB\x04\x64", 30003, 4, "2500", "0:00"},
    };
    for (const XingRow& row : rows) {
        const Decoded decoded = Decode(XingAudio(2000, row.frames, row.header), row.fileSize);
        EXPECT_EQ(decoded.error, 0);
        EXPECT_EQ(decoded.track.Bitrate, row.bitrate) << row.fileSize << "/" << row.frames;
        EXPECT_EQ(decoded.track.Duration, row.duration) << row.fileSize << "/" << row.frames;
    }
    EXPECT_EQ(Find(XingAudio(2000, 0xFEDCBA98)).frameCount, 0xFEDCBA98U);
}

TEST(DecodeMpegHeader, RaisesDivisionByZeroForAFrameCountOrBitrateOfZero) {
    EXPECT_EQ(Decode(XingAudio(2000, 0), 3000000).error, 11);
    EXPECT_EQ(Decode(XingAudio(2000, 1000000), 2000).error, 11);
    EXPECT_EQ(Decode(XingAudio(2000, 1, "\xFF\xFB\x94\x64"), 1).error, 11) << "1/3 rounds to 0";
    EXPECT_EQ(Decode(XingAudio(2000, 2, "\xFF\xFB\x94\x64"), 3).error, 11) << "1/2 rounds to 0";
    EXPECT_EQ(Decode(XingAudio(2000, 1000000), 2000).track.Frequency, "") << "no field is set";
}

struct SearchRow {
    std::string_view what;
    std::string bytes;
    std::uint64_t offset;
};

TEST(FindMpegHeader, RejectsInvalidHeaders) {
    const std::string good = "\xFF\xFB\x90\x64";
    const SearchRow rows[] = {
        {"at the start", good, 0},
        {"after other bytes", "abc" + good, 3},
        {"second byte E0", "\xFF\xE0\x90\x64" + good, 4},
        {"second byte 00", "\xFF"s + '\0' + good, 2},
        {"second byte E1 is layer 00", "\xFF\xE1\x90\x64" + good, 4},
        {"second byte E2 is accepted", "\xFF\xE2\x90\x64" + good, 0},
        {"version 01", "\xFF\xEB\x90\x64" + good, 4},
        {"layer 00", "\xFF\xF9\x90\x64" + good, 4},
        {"third byte EC", "\xFF\xFB\xEC\x64" + good, 4},
        {"third byte F0", "\xFF\xFB\xF0\x64" + good, 4},
        {"third byte EB", "\xFF\xFB\xEB\x64" + good, 0},
        {"sample rate 11", "\xFF\xFB\x9C\x64" + good, 4},
        {"FF in second place of a rejected header", "\xFF\xFF\xFB\x90\x64", 1},
        {"FF as second, third and fourth byte", "\xFF\xFF\xFF\xFF\xFB\x90\x64", 3},
        {"a header inside a rejected one", "\xFF\xF9\xFF\xFB\x90\x64", 2},
        {"search resumes at the second byte", "\xFF\xE0\xFF\xFB\x90\x64", 2},
    };
    for (const SearchRow& row : rows) {
        EXPECT_EQ(Find(row.bytes).offset, row.offset) << row.what;
    }
}

TEST(FindMpegHeader, StartsAtTheSearchPosition) {
    const std::string bytes = kHeader + "abc" + kHeader;
    EXPECT_EQ(Find(bytes, 1).offset, 0U);
    EXPECT_EQ(Find(bytes, 2).offset, 7U);
    EXPECT_EQ(Find(bytes, 8).offset, 7U);
    EXPECT_EQ(ErrorOf(bytes, 9), 62);
    EXPECT_EQ(ErrorOf(bytes, 1000), 62);
    EXPECT_EQ(ErrorOf(bytes, 268435328 + 265), 62);
}

TEST(FindMpegHeader, RaisesPastEndIfTheFileEndsBeforeAHeader) {
    for (const std::string& bytes :
         {""s, "a"s, "\xFF"s, "\xFF\xFB"s, "\xFF\xFB\x90"s, "\xFF\xE0"s, "\xFF\xFB\xEC"s,
          std::string(5000, 'a'), std::string(200000, '\xFF'), "\xFF\xF9\x90\x64"s}) {
        EXPECT_EQ(ErrorOf(bytes), 62) << bytes.size();
    }
}

TEST(FindMpegHeader, FindsAHeaderFarAfterTheTag) {
    for (const std::size_t before :
         {2044U, 2045U, 2046U, 2047U, 2048U, 65535U, 67580U, 67583U, 67584U, 500000U}) {
        EXPECT_EQ(Find(std::string(before, 'a') + kHeader).offset, before);
        // Every byte before it is a candidate that is rejected.
        EXPECT_EQ(Find(std::string(before, '\xFF') + kHeader).offset, before);
    }
}

// A header with "Xing" `distance` bytes after its first byte, and `after` bytes following "Xing".
std::string WithXingAt(std::size_t distance, std::size_t after) {
    std::string bytes = kHeader;
    bytes.resize(distance, 'a');
    return bytes + "Xing" + std::string("\0\0\0\x01\0\0\x01\0\0\0\0\0", 12).substr(0, after) +
           std::string(after > 12 ? after - 12 : 0, 'a');
}

TEST(FindMpegHeader, FindsXingWithin1400Bytes) {
    EXPECT_TRUE(Find(WithXingAt(4, 12)).vbr);
    EXPECT_TRUE(Find(WithXingAt(1396, 12)).vbr) << "its last letter is the last byte searched";
    EXPECT_FALSE(Find(WithXingAt(1397, 12)).vbr);
    EXPECT_EQ(Find(WithXingAt(1396, 12)).frameCount, 256U);
    EXPECT_FALSE(Find(kHeader + "xing" + std::string(20, 'a')).vbr);
    EXPECT_FALSE(Find(kHeader + std::string(500, 'a') + "LAME" + std::string(900, 'a')).vbr);
}

TEST(FindMpegHeader, RaisesPastEndIfTheBytesAfterXingAreMissing) {
    EXPECT_EQ(ErrorOf(WithXingAt(36, 12)), 0) << "none is missing";
    for (std::size_t after = 0; after < 12; ++after) {
        EXPECT_EQ(ErrorOf(WithXingAt(36, after)), 62) << after;
    }
    // They are read before the candidate is checked: a rejected one ends the search too.
    EXPECT_EQ(ErrorOf("\xFF\xF9\x90\x64" + kHeader + "Xing" + "1234567"), 62);
}

TEST(FindMpegHeader, DoesNotSearchXingAfterASecondByteE0OrAThirdByteEC) {
    // If this were a candidate, the bytes missing after "Xing" would end the search.
    for (const char* refused : {"\xFF\xE0\x90\x64", "\xFF\xFB\xEC\x64"}) {
        EXPECT_EQ(Find(refused + "Xing"s + kHeader).offset, 8U);
    }
    EXPECT_EQ(ErrorOf("\xFF\xE1\x90\x64" + "Xing"s + kHeader), 62);
}

TEST(FindMpegHeader, FindsXingThatTheWindowOfARejectedCandidateCut) {
    for (std::size_t distance = 1385; distance < 1415; ++distance) {
        std::string bytes = "\xFF\xF9\x90\x64"
                            "aaaa" +
                            kHeader;
        bytes.resize(distance, 'a');
        bytes += "Xing\0\0\0\x01\0\0\x01\0\0\0\0\0"s;
        const MpegHeader header = Find(bytes);
        EXPECT_EQ(header.offset, 8U);
        EXPECT_EQ(header.vbr, distance + 4 <= 8 + 1400) << distance;
    }
}

TEST(FindMpegHeader, UsesTheFirstXingAfterTheAcceptedHeader) {
    // The rejected candidate matches the first "Xing", the accepted header only the second.
    const std::string count1 = "Xing\0\0\0\x01\0\0\0\x01\0\0\0\0"s;
    const std::string count2 = "Xing\0\0\0\x01\0\0\0\x02\0\0\0\0"s;
    const std::string bytes = "\xFF\xF9\x90\x64" + count1 + kHeader + count2 + count1;
    const MpegHeader header = Find(bytes);
    EXPECT_EQ(header.offset, 20U);
    EXPECT_TRUE(header.vbr);
    EXPECT_EQ(header.frameCount, 2U);
    // A "Xing" that precedes the accepted header is not used.
    const MpegHeader none = Find("\xFF\xF9\x90\x64" + count1 + kHeader + std::string(2000, 'a'));
    EXPECT_FALSE(none.vbr);
}

void ExpectLikeReference(const std::string& bytes, std::uint64_t position) {
    const auto expected = test::ReferenceSearch(bytes, position);
    FailingByteSource file(bytes);
    if (!expected) {
        EXPECT_EQ(ErrorOf(bytes, position), 62);
        return;
    }
    const MpegHeader header = FindMpegHeader(file, position);
    ASSERT_EQ(header.offset, expected->offset);
    ASSERT_EQ(header.vbr, expected->vbr);
    if (header.vbr) {
        ASSERT_EQ(header.frameCount, expected->frameCount);
    }
    const auto bits = [&](std::size_t from, std::size_t count) {
        return std::stoul(expected->bits.substr(from - 1, count), nullptr, 2);
    };
    constexpr MpegVersion kVersions[] = {MpegVersion::V25, MpegVersion::V25, MpegVersion::V2,
                                         MpegVersion::V1};
    constexpr MpegLayer kLayers[] = {MpegLayer::III, MpegLayer::III, MpegLayer::II, MpegLayer::I};
    ASSERT_EQ(header.version, kVersions[bits(12, 2)]);
    ASSERT_EQ(header.layer, kLayers[bits(14, 2)]);
    ASSERT_EQ(header.bitrateIndex, bits(17, 4));
    ASSERT_EQ(header.mode, bits(25, 2));
}

// Mostly bytes that occur in headers, rarely a valid header.
std::string RandomBytes(std::mt19937& random, std::size_t length, unsigned plainShare) {
    constexpr std::string_view kLikely("\xFF\xFF\xFF\xE0\xE1\xE3\xF9\xFB\xEB\xF2\x9C\xEC\xFC\x0C\x90", 15);
    std::string bytes;
    while (bytes.size() < length) {
        const auto dice = random() % 1000;
        if (dice < plainShare) {
            bytes += static_cast<char>(random() & 0x7FU);
        } else if (dice < 996) {
            bytes += kLikely[random() % (kLikely.size() - (random() % 50 == 0 ? 0 : 1))];
        } else {
            bytes += std::string_view("Xing").substr(0, 1 + random() % 4);
            bytes += random() % 2 == 0 ? "Xing" : "Xin";
        }
    }
    bytes.resize(length);
    return bytes;
}

TEST(FindMpegHeader, AgreesWithAByteByByteSearch) {
    std::mt19937 random(20261121);
    int found = 0;
    int vbr = 0;
    for (int round = 0; round < 4000; ++round) {
        const std::size_t length = random() % (round % 10 == 0 ? 6000 : 60);
        const std::string bytes = RandomBytes(random, length, 400 + random() % 590);
        const std::uint64_t position = 1 + random() % 8;
        const auto expected = test::ReferenceSearch(bytes, position);
        found += expected ? 1 : 0;
        vbr += expected && expected->vbr ? 1 : 0;
        ASSERT_NO_FATAL_FAILURE(ExpectLikeReference(bytes, position)) << "round " << round;
    }
    EXPECT_GT(found, 100) << "too few headers in the random input";
    EXPECT_GT(vbr, 20);
    EXPECT_LT(found, 3900);
}

TEST(FindMpegHeader, AgreesWithAByteByByteSearchAcrossWindowBoundaries) {
    std::mt19937 random(7);
    for (const std::size_t edge : {2048U, 65536U + 2048U, 65536U}) {
        for (std::size_t before = edge - 24; before < edge + 4; ++before) {
            // Rejected candidates and "Xing" just before the boundary, a header around it.
            std::string bytes(before - 20, 'a');
            bytes += RandomBytes(random, 20, 300) + kHeader + RandomBytes(random, 1390, 990) + "Xing" +
                     std::string(random() % 30, 'b');
            ASSERT_NO_FATAL_FAILURE(ExpectLikeReference(bytes, 1)) << before;
        }
    }
}

TEST(DecodeMpegHeader, RaisesTheErrorOfAFailedRead) {
    const std::string bytes = std::string(70000, 'a') + XingAudio(2000, 7);
    FailingByteSource whole(bytes);
    TrackInfo track;
    track.FileSize = 72000;
    DecodeMpegHeader(whole, 1, track);
    for (int failAt = 1; failAt <= whole.Reads(); ++failAt) {
        FailingByteSource file(bytes, failAt);
        TrackInfo other;
        other.FileSize = 72000;
        const TrackInfo before = other;
        try {
            DecodeMpegHeader(file, 1, other);
            ADD_FAILURE() << "read " << failAt << " failed without an error";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), 57);
        }
        EXPECT_EQ(other, before);
    }
}

} // namespace
} // namespace tunedex
