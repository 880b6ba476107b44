// HTML 4.01 and XHTML 1.0 listings, on one page or split into numbered page files.
#pragma once

#include "OutputList.h"
#include "PagePolicy.h"

namespace tunedex {

// Returns true when the user aborted; finished pages and the rows written of the current one are kept.
bool WriteHtmlListing(Listing& listing, const PagePolicy& policy);

} // namespace tunedex
