// Finds and decodes the first MPEG audio frame header of a file.
#pragma once

#include "ByteSource.h"
#include "TrackInfo.h"

#include <cstdint>
#include <string_view>

namespace tunedex {

enum class MpegVersion { V1, V2, V25 };
enum class MpegLayer { I, II, III };

struct MpegHeader {
    std::uint64_t offset = 0; // of the header's first byte, 0-based
    MpegVersion version = MpegVersion::V1;
    MpegLayer layer = MpegLayer::III;
    std::uint8_t bitrateIndex = 0; // 0 to 15
    std::int32_t frequency = 0;    // Hz
    std::uint8_t mode = 0;         // 0 to 3
    bool vbr = false;              // a "Xing" header was found
    std::uint32_t frameCount = 0;  // from the "Xing" header
};

// As listings show them: "1.0 III"; and "Stereo" and so on for a mode from 0 to 3.
std::string_view MpegTypeText(MpegVersion version, MpegLayer layer);
std::string_view MpegModeText(std::uint8_t mode);

// The first acceptable header at or after `searchPosition` (counted from 1). Raises error 62 if the file ends
// before one is found, or within the eight bytes after the "Xing" flags.
MpegHeader FindMpegHeader(ByteSource& file, std::uint64_t searchPosition);

// kbit/s for a file without a "Xing" header; 128 for an index that the table does not list. Required: the
// tables for MPEG-2 Layer III and MPEG-2.5 are not the published ones. Do not 'fix'.
std::int32_t TableBitrate(MpegVersion version, MpegLayer layer, unsigned bitrateIndex);

// Sets bitrate, frequency, mode, MPEG type, duration and whole seconds. Requires `track.FileSize`. Raises
// error 62 (no header), 11 (bitrate or frame count 0), 6 (file of 268,435,456 bytes or more) or the error of
// a failed read; the track is then unchanged.
void DecodeMpegHeader(ByteSource& file, std::uint64_t searchPosition, TrackInfo& track);

} // namespace tunedex
