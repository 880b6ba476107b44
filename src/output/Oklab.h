// sRGB colours, their contrast (WCAG 2.2) and their OKLab coordinates (CSS Color 4, section 9.2), in which
// equal steps look equally large and the hue does not change with the lightness.
#pragma once

#include <cstdint>

namespace tunedex {

struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Rgb&) const = default;
};

inline constexpr Rgb kBlack{0, 0, 0};
inline constexpr Rgb kWhite{255, 255, 255};

struct Oklab {
    double lightness = 0; // 0 black to 1 white
    double a = 0;         // green to red
    double b = 0;         // blue to yellow
};

// Relative luminance, 0 black to 1 white.
double Luminance(Rgb colour);

// 1 to 21, in either order.
double ContrastOf(Rgb one, Rgb other);

// Whether white text has more contrast on the colour than black text.
bool IsDarkColour(Rgb colour);

Oklab ToOklab(Rgb colour);

// The colour of this lightness and hue; its chroma is reduced until it is in the sRGB gamut. The lightness is
// limited to 0 to 1.
Rgb ToRgb(const Oklab& colour);

} // namespace tunedex
