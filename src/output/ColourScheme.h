// The ten colours of an HTML5 page, and their counterpart for readers whose system is set to the other colour
// scheme (dark or light).
#pragma once

#include "Settings.h"

#include <array>
#include <string>
#include <string_view>

namespace tunedex {

// Indexed by ColourIndex; each is six upper-case hexadecimal digits without "#".
struct ColourScheme {
    std::array<std::string, kColourCount> colours;

    bool operator==(const ColourScheme&) const = default;
};

// A text colour and a background on which a page shows it.
struct TextPair {
    ColourIndex text;
    ColourIndex background;
};

inline constexpr std::array kTextPairs = {
    TextPair{kPageText, kPageBackground},      TextPair{kHeaderText, kHeaderBackground},
    TextPair{kCellText, kCellBackground},      TextPair{kAlternateText, kAlternateBackground},
    TextPair{kLinkText, kPageBackground},      TextPair{kLinkText, kCellBackground},
    TextPair{kLinkText, kAlternateBackground},
};

inline constexpr double kLeastContrast = 4.5; // WCAG 2.2, success criterion 1.4.3

// Whether the page background is dark: white text has more contrast on it than black text.
bool IsDark(const Settings& settings);

// The colours of the settings. Three digits stand for six, as in CSS; digits may be in lower case. Every
// other text counts as no colour, and then, as in a browser, a page is white, rows and headers show the page
// through, alternate rows look like the others, and text has the colour of the page's text, links are blue
// and the border is the page's text colour. A text colour that is not set becomes black or white where it
// could not be read; one that is set is never changed.
ColourScheme OwnColours(const Settings& settings);

// The counterpart: dark if OwnColours() are light, else light. Backgrounds that are already dark or light
// enough stay, together with their text; the lightness of the others, of their text and of the border is
// inverted in OKLab. Links get the nearest lightness at which they have as much contrast as before, at
// most 7. Hues are kept. Each pair of kTextPairs has at least kLeastContrast, whatever the settings.
ColourScheme Counterpart(const Settings& settings);

// The WCAG contrast of two colours of a ColourScheme, 1 to 21.
double Contrast(std::string_view one, std::string_view other);

} // namespace tunedex
