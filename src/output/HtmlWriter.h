// HTML 4.01 and XHTML 1.0 listings, on one page or split into numbered page files.
#pragma once

#include "HTMLBits.h"
#include "OutputList.h"

#include <string>
#include <string_view>

namespace tunedex {

// Returns true when the user aborted; pages written before stay, and so does the part of a page that was
// written.
bool WriteHtmlListing(Listing& listing);

// The beginning of a page up to its title, which is written as it stands, and from there up to its body tag.
void WriteHeadStart(std::string& page, const Settings& settings);
void WriteHeadRest(std::string& page, const Settings& settings);
// The end of a page: footer, home page, closing tags.
void WriteEnd(std::string& page, const Settings& settings, std::string_view footer,
              std::string_view lineBreak);

// How the tracks are divided: all on one page, or `Spanning` to each.
PageFiles PlanPages(const Settings& settings, std::size_t trackCount);

} // namespace tunedex
