// Finds the first frame of an MPEG audio stream.
#pragma once

#include "ByteWindow.h"
#include "FrameHeader.h"

#include <cstdint>
#include <optional>

namespace tunedex {

// A file with ordinary tags needs only the first read: the first frames and what is looked up in them.
using AudioWindow = ByteWindow<4096>;

struct FoundFrame {
    std::uint64_t offset = 0;
    FrameHead head;
    std::size_t length = 0;            // also of a frame in the free format, by its distance to the next one
    std::optional<FrameHead> nextHead; // of the frame behind it
};

// The first frame from `start` to `end` behind which, where its length says, another of the same stream
// follows. Without one, the first frame with which the audio ends or that has a Xing, Info or VBRI header; a
// frame at the start, apart from zeros, may be cut off. Takes time linear in the bytes searched.
std::optional<FoundFrame> FindFirstFrame(AudioWindow& window, std::uint64_t start, std::uint64_t end);

// A Xing, Info or VBRI header in a frame.
struct VbrHeader {
    bool variable = true;         // false: "Info", at a constant bitrate
    std::uint32_t frameCount = 0; // 0: not given
    std::uint32_t byteCount = 0;  // 0: not given
};

std::optional<VbrHeader> FindVbrHeader(AudioWindow& window, std::uint64_t offset, const FrameHead& head);

} // namespace tunedex
