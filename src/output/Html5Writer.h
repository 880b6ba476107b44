// HTML5 listings, on one page or split into numbered page files with an index for their search.
#pragma once

#include "OutputList.h"

namespace tunedex {

// Writes UTF-8 with LF line ends. No text of a track, a name or a font can put markup, a style or a script
// into a page, whatever the entity table says; and a content security policy permits the page's own style and
// script only, so that scripts in the user's markup (page title and footer) do not run.
//
// Returns true when the user aborted; finished pages and the rows written of the current one are kept.
bool WriteHtml5Listing(Listing& listing);

} // namespace tunedex
