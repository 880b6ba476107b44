// Tab-separated text: a line of column names, then one line per track.
#pragma once

#include "OutputList.h"

namespace tunedex {

// Returns true when the user aborted; the lines written so far are kept. Raises error 5 for a line without
// columns.
bool WriteTextListing(Listing& listing);

// The same in UTF-8 with a byte-order mark, with a blank for each TAB, CR and LF in a field.
bool WriteModernTextListing(Listing& listing);

} // namespace tunedex
