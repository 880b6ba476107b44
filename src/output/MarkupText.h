// Writes texts of the settings so that they cannot leave their place in a page. Texts of tracks are escaped
// with the user's table instead: see Escaper.h.
#pragma once

#include <string>
#include <string_view>

namespace tunedex {

// The reference for & < > or "; empty for any other character.
constexpr std::string_view ReferenceOf(char c) {
    switch (c) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    default:
        return {};
    }
}

// For the content of an element: references for & < and >.
std::string ElementText(std::string_view text);

// For an attribute value between double quotes: references for & < > and ".
std::string AttributeText(std::string_view text);

// For a style sheet: CSS escapes for < and > (CSS 2.1 section 4.1.3), so that the text cannot end the style
// element or its CDATA section.
std::string CssText(std::string_view text);

} // namespace tunedex
