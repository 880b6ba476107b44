// Sorts the tracks by artist, album and title, without regard to case.
#pragma once

#include "RunMonitor.h"
#include "TrackTable.h"

#include <cstdint>

namespace tunedex {

enum SortDirection : std::int16_t { kNoSorting = 0, kAscending = 1, kDescending = 2 };

// A Shell sort with a fixed sequence of exchanges, which decides the order of equal tracks; `sortOrder` other
// than 1 and 2 moves nothing. Required: the sort is not stable, and an exchange moves path, size, artist,
// title, album, year, genre, bitrate, frequency and duration, while base folder, mode, MPEG type and tag kind
// stay with the row. Do not 'fix'. Returns true if the user aborted; the table is then unchanged.
bool SortTracks(TrackTable& table, std::int16_t sortOrder, RunMonitor& monitor);

} // namespace tunedex
