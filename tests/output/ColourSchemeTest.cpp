#include "ColourScheme.h"
#include "DefaultSettings.h"
#include "Oklab.h"
#include "Themes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace tunedex {
namespace {

const std::string kThemeSource = std::string(TUNEDEX_SOURCE_DIR) + "/data/";

Settings ThemeSettings(const std::string& name) {
    Settings settings = DefaultSettings();
    std::ostringstream faults;
    LoadThemeFile(settings, ThemePath(kThemeSource, name), "", faults);
    EXPECT_EQ(faults.str(), "") << name;
    return settings;
}

Settings WithColours(const std::array<std::string, kColourCount>& colours) {
    Settings settings;
    settings.Colour = colours;
    return settings;
}

// The formula of WCAG 2.2, apart from the one of the program.
double PlainLuminance(const std::string& colour) {
    const auto component = [&](std::size_t i) {
        const double value = std::stoi(colour.substr(i, 2), nullptr, 16) / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * component(0) + 0.7152 * component(2) + 0.0722 * component(4);
}

double PlainContrast(const std::string& one, const std::string& other) {
    const double first = PlainLuminance(one) + 0.05;
    const double second = PlainLuminance(other) + 0.05;
    return first > second ? first / second : second / first;
}

Rgb RgbOf(const std::string& text) {
    const int number = std::stoi(text, nullptr, 16);
    return {static_cast<std::uint8_t>(number >> 16), static_cast<std::uint8_t>(number >> 8),
            static_cast<std::uint8_t>(number)};
}

bool IsSixDigits(const std::string& colour) {
    return colour.size() == 6 && colour.find_first_not_of("0123456789ABCDEF") == std::string::npos;
}

// One line for each pair that is hard to read.
std::string UnreadablePairs(const ColourScheme& scheme) {
    std::ostringstream found;
    for (const TextPair& pair : kTextPairs) {
        const std::string& text = scheme.colours.at(pair.text);
        const std::string& background = scheme.colours.at(pair.background);
        if (!IsSixDigits(text) || !IsSixDigits(background) || PlainContrast(text, background) < 4.5) {
            found << pair.text << " on " << pair.background << ": " << text << " on " << background << '\n';
        }
    }
    return found.str();
}

bool IsDarkScheme(const ColourScheme& scheme) {
    return PlainContrast(scheme.colours[kPageBackground], "FFFFFF") >
           PlainContrast(scheme.colours[kPageBackground], "000000");
}

// Every kind of colour: random, grey, at the ends, and texts that are no colours.
std::string AnyColour(std::mt19937& random) {
    constexpr const char* kOdd[] = {"000000", "FFFFFF",  "",       "FFF",    "#FFFFFF", "red",    "0a0",
                                    "12345",  "1234567", "GGGGGG", "777777", "FF0000",  "00ff00", "0000FF"};
    if (random() % 3 == 0) {
        return kOdd[random() % std::size(kOdd)];
    }
    char text[7];
    const auto grey = random() % 256;
    const auto number = random() % 4 == 0 ? grey * 0x10101 : random() % 0x1000000;
    std::snprintf(text, sizeof text, "%06X", static_cast<unsigned>(number));
    return text;
}

TEST(Oklab, KeepsEveryColourThroughItsCoordinates) {
    for (unsigned number = 0; number < 0x1000000; number += 257) {
        const Rgb colour{static_cast<std::uint8_t>(number >> 16), static_cast<std::uint8_t>(number >> 8),
                         static_cast<std::uint8_t>(number)};
        ASSERT_EQ(ToRgb(ToOklab(colour)), colour) << number;
    }
}

TEST(Oklab, HasTheCoordinatesOfTheStandard) {
    struct Row {
        Rgb colour;
        double lightness;
        double a;
        double b;
    };
    const Row rows[] = {{{255, 0, 0}, 0.62796, 0.22486, 0.12585},
                        {{0, 255, 0}, 0.86644, -0.23389, 0.17950},
                        {{0, 0, 255}, 0.45201, -0.03246, -0.31153},
                        {{255, 255, 255}, 1, 0, 0},
                        {{0, 0, 0}, 0, 0, 0}};
    for (const Row& row : rows) {
        const Oklab lab = ToOklab(row.colour);
        EXPECT_NEAR(lab.lightness, row.lightness, 1e-4);
        EXPECT_NEAR(lab.a, row.a, 1e-4);
        EXPECT_NEAR(lab.b, row.b, 1e-4);
    }
}

TEST(Oklab, ReducesTheChromaOfColoursThatAScreenCannotShow) {
    for (const double lightness : {-0.5, 0.0, 0.1, 0.5, 0.9, 1.0, 1.5}) {
        const Oklab wanted{lightness, 0.4, -0.3};
        const Oklab shown = ToOklab(ToRgb(wanted));
        EXPECT_NEAR(shown.lightness, std::clamp(lightness, 0.0, 1.0), 0.01);
        if (lightness == 0.5) {
            EXPECT_NEAR(std::atan2(shown.b, shown.a), std::atan2(-0.3, 0.4), 0.02);
        }
    }
}

TEST(ColourScheme, ContrastIsThatOfTheGuidelines) {
    EXPECT_NEAR(Contrast("000000", "FFFFFF"), 21, 1e-9);
    EXPECT_NEAR(Contrast("FFFFFF", "777777"), 4.48, 0.005);
    EXPECT_NEAR(Contrast("767676", "FFFFFF"), 4.54, 0.005);
    EXPECT_NEAR(Contrast("123456", "123456"), 1, 1e-9);
}

TEST(ColourScheme, APageIsDarkByItsBackground) {
    const std::vector<std::pair<const char*, bool>> rows = {
        {"000000", true}, {"FFFFFF", false}, {"", false},      {"red", false},   {"FF0000", false},
        {"0000FF", true}, {"222", true},     {"757575", true}, {"767676", false}};
    for (const auto& [background, dark] : rows) {
        Settings settings;
        settings.Colour[kPageBackground] = background;
        EXPECT_EQ(IsDark(settings), dark) << background;
    }
}

TEST(ColourScheme, OwnColoursAreThoseOfTheSettings) {
    const std::array<std::string, kColourCount> colours = {"010203", "AABBCC", "777777", "787878", "F0F0F0",
                                                           "FFFFFF", "010101", "000000", "888888", "999999"};
    EXPECT_EQ(OwnColours(WithColours(colours)).colours, colours) << "even where they are hard to read";
    Settings settings = WithColours(colours);
    settings.Colour[kPageText] = "abcdef";
    settings.Colour[kPageBackground] = "fA0";
    EXPECT_EQ(OwnColours(settings).colours[kPageText], "ABCDEF");
    EXPECT_EQ(OwnColours(settings).colours[kPageBackground], "FFAA00");
}

TEST(ColourScheme, ColoursThatAreNotSetAreShownAsABrowserShowsThem) {
    const ColourScheme empty = OwnColours(Settings());
    EXPECT_EQ(empty.colours,
              (std::array<std::string, kColourCount>{"000000", "FFFFFF", "000000", "FFFFFF", "000000",
                                                     "FFFFFF", "000000", "FFFFFF", "0000EE", "000000"}));
    for (const char* invalid :
         {"", "FF", "FFFFF", "FFFFFFF", "FFFFFFFF", "#00000", "00000G", " 00000", "blue"}) {
        Settings settings = WithColours({"EEEEEE", "101010", "FFFFFF", "303030", "DDDDDD", "202020", "CCCCCC",
                                         "F8F8F8", "99CCFF", "444444"});
        for (const ColourIndex index :
             {kHeaderBackground, kCellBackground, kCellText, kAlternateText, kLinkText, kTableBorder}) {
            settings.Colour.at(index) = invalid;
        }
        const ColourScheme own = OwnColours(settings);
        EXPECT_EQ(own.colours[kHeaderBackground], "101010") << invalid;
        EXPECT_EQ(own.colours[kCellBackground], "101010") << invalid;
        EXPECT_EQ(own.colours[kCellText], "EEEEEE") << invalid;
        EXPECT_EQ(own.colours[kAlternateText], "000000") << "the page's text cannot be read there";
        EXPECT_EQ(own.colours[kLinkText], "FFFFFF") << "blue cannot be read on a dark page";
        EXPECT_EQ(own.colours[kTableBorder], "EEEEEE") << invalid;
    }
}

class ShippedThemeColours : public testing::Test {
  protected:
    const std::vector<std::string> names = ListThemes(kThemeSource);
};

TEST_F(ShippedThemeColours, CanBeReadInBothSchemes) {
    ASSERT_GE(names.size(), 8U);
    for (const std::string& name : names) {
        const Settings theme = ThemeSettings(name);
        EXPECT_EQ(OwnColours(theme).colours, theme.Colour) << name;
        EXPECT_EQ(UnreadablePairs(OwnColours(theme)), "") << name;
        EXPECT_EQ(UnreadablePairs(Counterpart(theme)), "") << name;
        EXPECT_NE(IsDark(theme), IsDarkScheme(Counterpart(theme))) << name;
    }
}

TEST_F(ShippedThemeColours, KeepAlternateRowsAndHeadersApartInTheCounterpart) {
    for (const std::string& name : names) {
        const ColourScheme other = Counterpart(ThemeSettings(name));
        EXPECT_NE(other.colours[kCellBackground], other.colours[kAlternateBackground]) << name;
        EXPECT_NE(other.colours[kCellBackground], other.colours[kHeaderBackground]) << name;
        EXPECT_NE(other.colours[kCellBackground], other.colours[kTableBorder]) << name;
    }
}

TEST_F(ShippedThemeColours, KeepLinksColouredAndAsReadableAsBeforeUpToSeven) {
    for (const std::string& name : names) {
        const Settings theme = ThemeSettings(name);
        const ColourScheme other = Counterpart(theme);
        for (const ColourIndex background : {kPageBackground, kCellBackground, kAlternateBackground}) {
            const auto& colours = theme.Colour;
            const double before =
                std::min({PlainContrast(colours[kLinkText], colours[kPageBackground]),
                          PlainContrast(colours[kLinkText], colours[kCellBackground]),
                          PlainContrast(colours[kLinkText], colours[kAlternateBackground])});
            EXPECT_GE(PlainContrast(other.colours[kLinkText], other.colours.at(background)),
                      std::min(before, 7.0))
                << name;
        }
        const Oklab link = ToOklab(RgbOf(other.colours[kLinkText]));
        EXPECT_GT(std::hypot(link.a, link.b), 0.05) << name;
    }
}

TEST_F(ShippedThemeColours, KeepTheirHuesInTheCounterpart) {
    constexpr double kLeastChroma = 0.03; // the hue of a greyer colour is lost in 8 bits
    constexpr double kStep = 0.12;        // radians, 7 degrees
    int compared = 0;
    for (const std::string& name : names) {
        const Settings theme = ThemeSettings(name);
        const ColourScheme other = Counterpart(theme);
        for (std::size_t i = 0; i < kColourCount; ++i) {
            const Oklab before = ToOklab(RgbOf(theme.Colour.at(i)));
            const Oklab after = ToOklab(RgbOf(other.colours.at(i)));
            if (std::hypot(before.a, before.b) < kLeastChroma ||
                std::hypot(after.a, after.b) < kLeastChroma) {
                continue;
            }
            ++compared;
            const double turn = std::atan2(before.b, before.a) - std::atan2(after.b, after.a);
            EXPECT_NEAR(std::remainder(turn, 2 * M_PI), 0, kStep)
                << name << ' ' << theme.Colour.at(i) << ' ' << other.colours.at(i);
        }
    }
    EXPECT_GT(compared, 30);
}

TEST(Counterpart, InvertsTheLightnessOfWhatIsNotYetOfTheOtherScheme) {
    const Settings light = WithColours(
        {"000000", "FFFFFF", "FFFF00", "000066", "000000", "CECECE", "000000", "DEDEDE", "0000FF", "000000"});
    const ColourScheme dark = Counterpart(light);
    EXPECT_EQ(dark.colours[kPageText], "FFFFFF");
    EXPECT_LT(PlainLuminance(dark.colours[kPageBackground]), 0.01);
    EXPECT_EQ(dark.colours[kHeaderText], "FFFF00") << "the header is dark already";
    EXPECT_EQ(dark.colours[kHeaderBackground], "000066");
    EXPECT_GT(PlainLuminance(dark.colours[kCellBackground]),
              PlainLuminance(dark.colours[kAlternateBackground]))
        << "the darker of two light rows becomes the lighter of two dark ones";

    const Settings black = WithColours(
        {"FFFFFF", "000000", "000000", "FFFF00", "FFFFFF", "000000", "FFFFFF", "1F1F1F", "66E0FF", "FFFFFF"});
    const ColourScheme white = Counterpart(black);
    EXPECT_EQ(white.colours[kPageText], "000000");
    EXPECT_EQ(white.colours[kPageBackground], "FFFFFF");
    EXPECT_EQ(white.colours[kHeaderBackground], "FFFF00");
    EXPECT_EQ(white.colours[kTableBorder], "000000");
}

TEST(Counterpart, IsReadableWhateverTheSettings) {
    std::mt19937 random(20261122);
    for (int i = 0; i < 20000; ++i) {
        Settings settings;
        for (std::string& colour : settings.Colour) {
            colour = AnyColour(random);
        }
        const ColourScheme other = Counterpart(settings);
        ASSERT_EQ(UnreadablePairs(other), "") << testing::PrintToString(settings.Colour);
        ASSERT_NE(IsDarkScheme(OwnColours(settings)), IsDarkScheme(other))
            << testing::PrintToString(settings.Colour);
        ASSERT_TRUE(std::all_of(other.colours.begin(), other.colours.end(), IsSixDigits));
    }
}

} // namespace
} // namespace tunedex
