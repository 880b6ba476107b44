// Putting the tracks in order: by artist, album and title, without regard to case.
#pragma once

#include "RunMonitor.h"
#include "TrackTable.h"

#include <cstdint>

namespace tunedex {

enum SortDirection : std::int16_t { kNoSorting = 0, kAscending = 1, kDescending = 2 };

// Shell sort with a prescribed sequence of exchanges, which decides where equal tracks end up; with any other
// `sortOrder` than 1 and 2 nothing moves. An exchange moves path, size, artist, title, album, year, genre,
// bitrate, frequency and duration; base folder, mode, MPEG type and tag kind stay with the row, on purpose.
// Returns true when the user aborted; the table is then as it was.
bool SortTracks(TrackTable& table, std::int16_t sortOrder, RunMonitor& monitor);

} // namespace tunedex
