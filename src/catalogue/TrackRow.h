// One row of the table of tracks.
#pragma once

#include "SharedText.h"
#include "TrackInfo.h"

#include <cstdint>
#include <utility>

namespace tunedex {

// What moves when two rows are exchanged. The members are those of TrackInfo.
struct MovingPart {
    SharedText FullPath;
    SharedText Artist;
    SharedText Title;
    SharedText Album;
    SharedText Year;
    SharedText Genre;
    SharedText Bitrate;
    SharedText Frequency;
    SharedText Duration;
    std::int32_t FileSize = 0;
};

// One track: the part that moves, and what stays with its row. Required: after sorting, a row keeps the tag
// kind, base folder, mode and MPEG type of the file that was found there first. Do not move them.
struct TrackRow : MovingPart {
    std::int16_t TagType = kNoTag; // first, in the tail padding of MovingPart
    SharedText BaseFolder;
    SharedText Mode;
    SharedText MpegType;
};

// Exchanges the moving parts of two rows.
inline void SwapTracks(TrackRow& a, TrackRow& b) {
    std::swap<MovingPart>(a, b);
}

} // namespace tunedex
