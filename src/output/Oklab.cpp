#include "Oklab.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tunedex {

namespace {

using Linear = std::array<double, 3>; // red, green, blue; 0 to 1 within the gamut

constexpr double kGamutTolerance = 1e-6; // rounding of the matrices
constexpr int kChromaSteps = 20;

double Decoded(std::uint8_t component) {
    const double value = component / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

std::uint8_t Encoded(double linear) {
    const double light = std::clamp(linear, 0.0, 1.0);
    const double value = light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
    return static_cast<std::uint8_t>(std::lround(value * 255));
}

double Cube(double x) {
    return x * x * x;
}

Linear ToLinear(const Oklab& colour) {
    const double l = Cube(colour.lightness + 0.3963377774 * colour.a + 0.2158037573 * colour.b);
    const double m = Cube(colour.lightness - 0.1055613458 * colour.a - 0.0638541728 * colour.b);
    const double s = Cube(colour.lightness - 0.0894841775 * colour.a - 1.2914855480 * colour.b);
    return {4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s,
            -1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s,
            -0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s};
}

bool InGamut(const Linear& colour) {
    return std::all_of(colour.begin(), colour.end(),
                       [](double x) { return x >= -kGamutTolerance && x <= 1 + kGamutTolerance; });
}

Oklab WithChroma(const Oklab& colour, double share) {
    return {colour.lightness, colour.a * share, colour.b * share};
}

// The largest share of the chroma that is in the gamut.
double ChromaShare(const Oklab& colour) {
    if (InGamut(ToLinear(colour))) {
        return 1;
    }
    double inside = 0;
    double outside = 1;
    for (int step = 0; step < kChromaSteps; ++step) {
        const double middle = (inside + outside) / 2;
        (InGamut(ToLinear(WithChroma(colour, middle))) ? inside : outside) = middle;
    }
    return inside;
}

} // namespace

double Luminance(Rgb colour) {
    return 0.2126 * Decoded(colour.red) + 0.7152 * Decoded(colour.green) + 0.0722 * Decoded(colour.blue);
}

double ContrastOf(Rgb one, Rgb other) {
    const double first = Luminance(one) + 0.05;
    const double second = Luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

bool IsDarkColour(Rgb colour) {
    return ContrastOf(colour, kWhite) > ContrastOf(colour, kBlack);
}

Oklab ToOklab(Rgb colour) {
    const double red = Decoded(colour.red);
    const double green = Decoded(colour.green);
    const double blue = Decoded(colour.blue);
    const double l = std::cbrt(0.4122214708 * red + 0.5363325363 * green + 0.0514459929 * blue);
    const double m = std::cbrt(0.2119034982 * red + 0.6806995451 * green + 0.1073969566 * blue);
    const double s = std::cbrt(0.0883024619 * red + 0.2817188376 * green + 0.6299787005 * blue);
    return {0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s,
            1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s,
            0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s};
}

Rgb ToRgb(const Oklab& colour) {
    const Oklab limited{std::clamp(colour.lightness, 0.0, 1.0), colour.a, colour.b};
    const Linear linear = ToLinear(WithChroma(limited, ChromaShare(limited)));
    return {Encoded(linear[0]), Encoded(linear[1]), Encoded(linear[2])};
}

} // namespace tunedex
