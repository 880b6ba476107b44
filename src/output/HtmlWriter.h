// HTML 4.01 and XHTML 1.0 listings, on one page or split into numbered page files.
#pragma once

#include "HTMLBits.h"
#include "OutputList.h"

#include <string>
#include <string_view>

namespace tunedex {

// Returns true when the user aborted; finished pages and the rows written of the current one are kept.
bool WriteHtmlListing(Listing& listing);

// The head of a page up to "<title>", and from "</title>" to the body tag.
void WriteHeadStart(std::string& page, const Settings& settings);
void WriteHeadRest(std::string& page, const Settings& settings);
// The end of a page: footer, home page, closing tags.
void WriteEnd(std::string& page, const Settings& settings, std::string_view footer,
              std::string_view lineBreak);

// Splits the tracks into pages of `Spanning` tracks; 0 or less puts all on one page. `OutputFile` must have
// an extension.
PageFiles PlanPages(const Settings& settings, std::size_t trackCount);

} // namespace tunedex
