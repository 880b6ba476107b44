// The first MPEG audio frame header of a file, and what follows from it.
#pragma once

#include "ByteSource.h"
#include "TrackInfo.h"

#include <cstdint>
#include <string_view>

namespace tunedex {

enum class MpegVersion { V1, V2, V25 };
enum class MpegLayer { I, II, III };

struct MpegHeader {
    std::uint64_t offset = 0; // 0-based, of the header's first byte
    MpegVersion version = MpegVersion::V1;
    MpegLayer layer = MpegLayer::III;
    std::uint8_t bitrateIndex = 0; // the four bits of the field
    std::int32_t frequency = 0;    // Hz
    std::uint8_t mode = 0;         // the two bits of the field
    bool vbr = false;              // a "Xing" header was found
    std::uint32_t frameCount = 0;  // as the "Xing" header tells it
};

// The first acceptable header at or after `searchPosition` (counted from 1). Raises error 62 when the file
// ends before there is one, or within the eight bytes behind "Xing".
MpegHeader FindMpegHeader(ByteSource& file, std::uint64_t searchPosition);

// kbit/s by the program's own tables, for a header without "Xing"; 128 for an index that no table names.
std::int32_t TableBitrate(MpegVersion version, MpegLayer layer, unsigned bitrateIndex);

// Fills bitrate, frequency, mode, MPEG type and duration and returns the playing time in whole seconds.
// `track.FileSize` must be set. Raises error 62 (no header), 11 (a bitrate or frame count of 0), 6
// (268,435,456 bytes or more) or the error of a failed read; the track is then as it was.
std::int64_t DecodeMpegHeader(ByteSource& file, std::uint64_t searchPosition, TrackInfo& track);

} // namespace tunedex
