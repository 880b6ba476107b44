#include "ColourScheme.h"

#include "Oklab.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <span>

namespace tunedex {

namespace {

using Palette = std::array<Rgb, kColourCount>;

constexpr Rgb kDefaultLink{0x00, 0x00, 0xEE}; // HTML, section 15.3.5: unvisited links

// White paper becomes this lightness, not black, on which text would glare.
constexpr double kDarkestInverted = 0.18;
// Below 1: dark surfaces need larger steps of lightness than light ones to look as different.
constexpr double kInversionExponent = 0.75;
// Limits of the luminance of surfaces, which leave room for a coloured text of kLeastContrast.
constexpr double kLightestDarkSurface = 0.10;
constexpr double kDarkestLightSurface = 0.45;
// Links keep up to this contrast: with more, their colour would be lost in black or white.
constexpr double kMostLinkContrast = 7;
constexpr int kSearchSteps = 24;

// The pairs of the four backgrounds and the texts of their own.
constexpr auto kBlockPairs = std::span(kTextPairs).first<4>();

int DigitValue(char digit) {
    if (digit >= '0' && digit <= '9') {
        return digit - '0';
    }
    const char lower = static_cast<char>(digit | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

std::optional<Rgb> ParseColour(std::string_view text) {
    const std::size_t width = text.size() / 3; // digits for each component
    if (text.size() != 3 && text.size() != 6) {
        return std::nullopt;
    }
    std::array<std::uint8_t, 3> components{};
    for (std::size_t i = 0; i < components.size(); ++i) {
        const int high = DigitValue(text[i * width]);
        const int low = DigitValue(text[i * width + width - 1]);
        if (high < 0 || low < 0) {
            return std::nullopt;
        }
        components.at(i) = static_cast<std::uint8_t>(high * 16 + low);
    }
    return Rgb{components[0], components[1], components[2]};
}

std::string ColourText(Rgb colour) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (const std::uint8_t component : {colour.red, colour.green, colour.blue}) {
        text += kDigits[component / 16];
        text += kDigits[component % 16];
    }
    return text;
}

ColourScheme SchemeOf(const Palette& palette) {
    ColourScheme scheme;
    std::transform(palette.begin(), palette.end(), scheme.colours.begin(), ColourText);
    return scheme;
}

double LeastContrast(Rgb text, std::span<const Rgb> backgrounds) {
    double least = ContrastOf(kBlack, kWhite);
    for (const Rgb background : backgrounds) {
        least = std::min(least, ContrastOf(text, background));
    }
    return least;
}

bool IsReadable(Rgb text, std::span<const Rgb> backgrounds) {
    return LeastContrast(text, backgrounds) >= kLeastContrast;
}

Rgb BlackOrWhite(Rgb background) {
    return IsDarkColour(background) ? kWhite : kBlack;
}

// For a text colour that is not set.
Rgb InheritedText(Rgb inherited, std::span<const Rgb> backgrounds) {
    return IsReadable(inherited, backgrounds) ? inherited : BlackOrWhite(backgrounds.front());
}

// The backgrounds of links.
std::array<Rgb, 3> SurfacesOf(const Palette& palette) {
    return {palette[kPageBackground], palette[kCellBackground], palette[kAlternateBackground]};
}

Palette OwnPalette(const Settings& settings) {
    const auto set = [&](ColourIndex index) { return ParseColour(settings.Colour.at(index)); };
    Palette own;
    own[kPageBackground] = set(kPageBackground).value_or(kWhite);
    own[kHeaderBackground] = set(kHeaderBackground).value_or(own[kPageBackground]);
    own[kCellBackground] = set(kCellBackground).value_or(own[kPageBackground]);
    own[kAlternateBackground] = set(kAlternateBackground).value_or(own[kCellBackground]);
    own[kPageText] = set(kPageText).value_or(BlackOrWhite(own[kPageBackground]));
    for (const TextPair& pair : kBlockPairs.last(3)) {
        own.at(pair.text) =
            set(pair.text).value_or(InheritedText(own[kPageText], std::array{own.at(pair.background)}));
    }
    own[kLinkText] = set(kLinkText).value_or(InheritedText(kDefaultLink, SurfacesOf(own)));
    own[kTableBorder] = set(kTableBorder).value_or(own[kPageText]);
    return own;
}

double DarkForLight(double lightness) {
    return kDarkestInverted + (1 - kDarkestInverted) * std::pow(1 - lightness, kInversionExponent);
}

// The inverse function; lightnesses below its range become white.
double LightForDark(double lightness) {
    const double share = std::max(0.0, (lightness - kDarkestInverted) / (1 - kDarkestInverted));
    return 1 - std::pow(share, 1 / kInversionExponent);
}

Rgb Inverted(Rgb colour, bool toDark) {
    Oklab lab = ToOklab(colour);
    const double lightness = std::clamp(lab.lightness, 0.0, 1.0); // white rounds to slightly more than 1
    lab.lightness = toDark ? DarkForLight(lightness) : LightForDark(lightness);
    return ToRgb(lab);
}

// The colour nearest in lightness to `colour`, towards black or white, for which `holds` is true. It must
// hold for the end itself.
template <typename Condition> Rgb Moved(Rgb colour, bool towardsWhite, const Condition& holds) {
    if (holds(colour)) {
        return colour;
    }
    Oklab lab = ToOklab(colour);
    double refused = lab.lightness;
    double accepted = towardsWhite ? 1 : 0;
    for (int step = 0; step < kSearchSteps; ++step) {
        lab.lightness = (refused + accepted) / 2;
        (holds(ToRgb(lab)) ? accepted : refused) = lab.lightness;
    }
    lab.lightness = accepted;
    return ToRgb(lab);
}

Rgb AsSurface(Rgb colour, bool dark) {
    return Moved(colour, !dark, [&](Rgb candidate) {
        const double luminance = Luminance(candidate);
        return dark ? luminance <= kLightestDarkSurface : luminance >= kDarkestLightSurface;
    });
}

Rgb AsText(Rgb text, std::span<const Rgb> backgrounds, double contrast = kLeastContrast) {
    return Moved(text, IsDarkColour(backgrounds.front()),
                 [&](Rgb candidate) { return LeastContrast(candidate, backgrounds) >= contrast; });
}

// The nearest lightness at which a link has the contrast that it has in the other scheme.
Rgb AsLink(Rgb link, std::span<const Rgb> before, std::span<const Rgb> backgrounds) {
    return AsText(link, backgrounds,
                  std::clamp(LeastContrast(link, before), kLeastContrast, kMostLinkContrast));
}

void InvertPairs(Palette& palette, bool toDark) {
    for (const TextPair& pair : kBlockPairs) {
        if (IsDarkColour(palette.at(pair.background)) != toDark) {
            palette.at(pair.background) = Inverted(palette.at(pair.background), toDark);
            palette.at(pair.text) = Inverted(palette.at(pair.text), toDark);
        }
    }
    palette[kTableBorder] = Inverted(palette[kTableBorder], toDark);
}

// All but the links.
void MakeReadable(Palette& palette, bool dark) {
    for (const ColourIndex index : {kPageBackground, kCellBackground, kAlternateBackground}) {
        palette.at(index) = AsSurface(palette.at(index), dark);
    }
    for (const TextPair& pair : kBlockPairs) {
        palette.at(pair.text) = AsText(palette.at(pair.text), std::array{palette.at(pair.background)});
    }
}

} // namespace

bool IsDark(const Settings& settings) {
    return IsDarkColour(ParseColour(settings.Colour[kPageBackground]).value_or(kWhite));
}

ColourScheme OwnColours(const Settings& settings) {
    return SchemeOf(OwnPalette(settings));
}

ColourScheme Counterpart(const Settings& settings) {
    const Palette own = OwnPalette(settings);
    const bool toDark = !IsDark(settings);
    Palette palette = own;
    InvertPairs(palette, toDark);
    MakeReadable(palette, toDark);
    palette[kLinkText] = AsLink(own[kLinkText], SurfacesOf(own), SurfacesOf(palette));
    return SchemeOf(palette);
}

double Contrast(std::string_view one, std::string_view other) {
    return ContrastOf(ParseColour(one).value_or(kBlack), ParseColour(other).value_or(kBlack));
}

} // namespace tunedex
