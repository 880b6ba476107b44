// Tab-separated text: a line of column names, then a line for each track.
#pragma once

#include "OutputList.h"

namespace tunedex {

// Returns true when the user aborted; the lines before that are then in the file. Raises error 5 for a line
// without a single column.
bool WriteTextListing(Listing& listing);

} // namespace tunedex
