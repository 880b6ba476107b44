// MPEG audio frame headers with the published tables (ISO 11172-3 section 2.4.2.3, ISO 13818-3
// section 2.4.2.3, and MPEG-2.5).
#pragma once

#include "MpegHeader.h"

#include <cstdint>
#include <optional>
#include <span>

namespace tunedex {

inline constexpr std::size_t kFrameHeadBytes = 4;
// The longest frame with a bitrate: MPEG-2.5 layer II, 160 kbit/s, 8000 Hz, with padding.
inline constexpr std::size_t kLongestFrame = 2881;

struct FrameHead {
    MpegVersion version = MpegVersion::V1;
    MpegLayer layer = MpegLayer::III;
    std::uint8_t mode = 0; // 0 to 3; 3 is mono
    bool padded = false;
    bool checked = false;       // a checksum follows the header
    std::int32_t frequency = 0; // Hz
    std::int32_t bitrate = 0;   // kbit/s; 0 in the free format

    // Samples per channel.
    std::int32_t Samples() const;
    // Bytes of the frame with its header; 0 in the free format.
    std::size_t Length() const;
    // Whether both can be frames of one stream: the same version, layer and frequency, and both or none in
    // the free format.
    bool Matches(const FrameHead& other) const;
};

// The header in the first four bytes; nothing if they are none, or hold a reserved value.
std::optional<FrameHead> ParseFrameHead(std::span<const std::uint8_t> bytes);

} // namespace tunedex
