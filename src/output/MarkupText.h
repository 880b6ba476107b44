// Writes texts of the settings so that they cannot leave their place in a page. Texts of tracks are escaped
// with the user's table instead: see Escaper.h.
#pragma once

#include <string>
#include <string_view>

namespace tunedex {

// For the content of an element: references for & < and >.
std::string ElementText(std::string_view text);

// For an attribute value between double quotes: references for & < > and ".
std::string AttributeText(std::string_view text);

// For the value of a property in a style sheet: names, numbers, commas, blanks and strings are unchanged, any
// other character becomes a CSS escape (CSS 2.1 section 4.1.3). The result cannot end the declaration, the
// rule, a string that encloses it, the style element or its CDATA section, and is ISO-8859-1 without control
// characters.
std::string CssText(std::string_view text);

} // namespace tunedex
