// The ID3v2 frames that are read.
#pragma once

#include "TagTexts.h"

#include <cstdint>
#include <span>

namespace tunedex {

enum class FrameContent { Unused, Text, Genre, Date, Comment };

// What a frame is read to. A date is the year if the tag has no frame for the year; the lowest rank wins.
struct FrameUse {
    FrameContent content = FrameContent::Unused;
    TagField field = nullptr;
    int rank = 0;
};

// The use of a frame with this ID: four bytes, or three and a NUL or blank. Every ID is known in every
// version.
FrameUse UseOfFrame(std::span<const std::uint8_t, 4> id);

// Whether a frame can have this ID: three or four capital letters and digits, as in UseOfFrame().
bool IsFrameId(std::span<const std::uint8_t, 4> id);

} // namespace tunedex
