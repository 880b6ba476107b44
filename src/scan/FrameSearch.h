// Finds the first frame of an MPEG audio stream.
#pragma once

#include "ByteSource.h"
#include "FrameHeader.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>

namespace tunedex {

// The part of a file from its start to `end`, which is at most its size.
struct AudioBytes {
    ByteSource& file;
    std::uint64_t end;

    // Reads up to `end`; returns the part of the buffer that was filled. Small reads near each other come
    // from one window of the file.
    std::span<std::uint8_t> Read(std::uint64_t offset, std::span<std::uint8_t> buffer) const {
        const std::uint64_t left = offset < end ? end - offset : 0;
        const auto wanted = buffer.first(std::min<std::uint64_t>(buffer.size(), left));
        return wanted.first(file.Read(offset, wanted));
    }
};

struct FoundFrame {
    std::uint64_t offset = 0;
    FrameHead head;
    std::size_t length = 0;            // also of a frame in the free format, by its distance to the next one
    std::optional<FrameHead> nextHead; // of the frame behind it, if that is of the same stream
};

// The header at `offset`, if there is one.
std::optional<FrameHead> FrameHeadAt(const AudioBytes& audio, std::uint64_t offset);

// The first frame from `start` on behind which, where its length says, another of the same stream
// follows. Without one, the first frame behind which the audio has no room for another header; it may be cut
// off. Takes time linear in the bytes searched.
std::optional<FoundFrame> FindFirstFrame(const AudioBytes& audio, std::uint64_t start);

// A Xing, Info or VBRI header in a frame.
struct VbrHeader {
    bool variable = true;         // false: "Info", at a constant bitrate
    std::uint32_t frameCount = 0; // 0: not given
};

std::optional<VbrHeader> FindVbrHeader(const AudioBytes& audio, const FoundFrame& frame);

} // namespace tunedex
