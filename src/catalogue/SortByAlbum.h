// Sorts the tracks as they stand on the shelf: by album artist, album, disc and track.
#pragma once

#include "Collation.h"
#include "RunMonitor.h"
#include "TrackTable.h"

#include <cstdint>

namespace tunedex {

// Ascending and descending (SortDirection): album artist (the artist where there is none), album, disc,
// track, title, path. Disc and track compare by their leading number, 0 without one. kNoSorting and any other
// order: by path. Equal texts of a collation are told apart by the bytes of the path. Whole tracks move;
// descending is the exact reverse of ascending. Returns true if the user aborted; the table is then
// unchanged.
bool SortByAlbum(TrackTable& table, std::int16_t sortOrder, const Collation& collation, RunMonitor& monitor);

} // namespace tunedex
