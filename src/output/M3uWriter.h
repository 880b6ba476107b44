// Extended M3U playlists.
#pragma once

#include "OutputList.h"

namespace tunedex {

// Returns true when the user aborted; the tracks written so far are kept. Required: a track without a
// duration raises error 5, which fails the whole playlist.
bool WriteM3uListing(Listing& listing);

// The same in UTF-8, with a length of -1 for a track without a duration. A path that players could misread is
// a "file" URI.
bool WriteModernM3uListing(Listing& listing);

} // namespace tunedex
