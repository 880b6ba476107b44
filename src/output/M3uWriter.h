// Extended M3U playlists.
#pragma once

#include "OutputList.h"

#include <string_view>

namespace tunedex {

// Returns true when the user aborted; the tracks before that are then in the file. Raises error 5 for a track
// without a duration.
bool WriteM3uListing(Listing& listing);

// "4:05" in seconds. Raises error 5 for a text without ":".
double SecondsOf(std::string_view duration);

} // namespace tunedex
