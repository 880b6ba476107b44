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
    std::uint64_t FileSize : 31 = 0; // bytes
    std::uint64_t Seconds : 25 = 0;  // of Duration; 2,147,483,647 bytes at 1 kbit/s are 17,179,869 s
};

// One track: the part that moves, and what stays with its row. Required: after sorting, a row keeps the tag
// kind, base folder, mode and MPEG type of the file that was found there first. Do not move them.
struct TrackRow : MovingPart {
    std::uint8_t TagType = kNoTag; // first, in the byte that MovingPart leaves
    SharedText BaseFolder;
    SharedText Mode;
    SharedText MpegType;
};

static_assert(sizeof(TrackRow) == sizeof(MovingPart) + 3 * sizeof(SharedText),
              "TagType takes no memory of its own: a million rows are in memory at once");

// The texts of a track that only the modern readers fill. A table without any has no memory for them.
struct ExtraTexts {
    SharedText Track;
    SharedText Disc;
    SharedText AlbumArtist;
    SharedText Composer;
    SharedText Comment;
};

// Exchanges the moving parts of two rows.
inline void SwapTracks(TrackRow& a, TrackRow& b) {
    std::swap<MovingPart>(a, b);
}

} // namespace tunedex
