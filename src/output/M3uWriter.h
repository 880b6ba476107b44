// Extended M3U playlists.
#pragma once

#include "OutputList.h"

#include <string_view>

namespace tunedex {

// Returns true when the user aborted; the tracks written so far are kept. Required: a track without a
// duration raises error 5, which fails the whole playlist.
bool WriteM3uListing(Listing& listing);

// "4:05" in seconds. Raises error 5 for a text without ":".
double SecondsOf(std::string_view duration);

} // namespace tunedex
