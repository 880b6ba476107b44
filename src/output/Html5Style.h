// The part of an HTML5 page's style that depends on the settings.
#pragma once

#include "Settings.h"

#include <string>
#include <string_view>

namespace tunedex {

// The size of a font in the unit rem, by its HTML size "1" to "7", as browsers draw the font element; "3" for
// anything else. "1", which is 10 pixels, becomes 12: less cannot be read on a telephone.
double Html5FontSize(std::string_view size);

// A list of font families that CSS accepts, whatever the text: names that are no identifiers are quoted.
std::string Html5FontFamilies(std::string_view faces);

// The pixels that the settings put around the text of a cell: padding on both sides, and one border.
int Html5CellPixels(const Settings& settings);

// A string of CSS that cannot end its element. Line breaks become blanks.
std::string CssString(std::string_view text);

// Appends custom properties for the fonts, colours and measures of the settings to the rule of the root
// element. What the settings do not say has no property: the style sheet has its own values.
void WriteHtml5Theme(std::string& style, const Settings& settings);

} // namespace tunedex
