// Comma-separated values (RFC 4180) in UTF-8 with a byte-order mark: a line of column names, then one line
// per track. Durations are h:mm:ss and empty where there is none; sizes are bytes.
#pragma once

#include "OutputList.h"

namespace tunedex {

// Returns true when the user aborted; the lines written so far are kept. Every line has a field for each
// column; that of an unknown column is empty. Raises error 5 without columns.
bool WriteCsvListing(Listing& listing);

} // namespace tunedex
