#include "Html5Style.h"

#include "ColourScheme.h"
#include "DefaultSettings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tunedex {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string Theme(const Settings& settings) {
    std::string style;
    WriteHtml5Theme(style, settings);
    return style;
}

TEST(Html5FontFamilies, AreAlwaysAListThatCssAccepts) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"Tahoma, Arial, sans-serif", "Tahoma,Arial,sans-serif"},
        {"Times New Roman , serif", "Times New Roman,serif"},
        {"'MS Sans Serif', \"serif\"", "\"MS Sans Serif\",\"serif\""},
        {"3of9 Barcode", "\"3of9 Barcode\""},
        {"A 4", "\"A 4\""},
        {"", ""},
        {" , ,", ""},
        {"Font; } body{display:none", "\"Font; } body{display:none\""},
        {"a\"b\\c", "\"a\\\"b\\\\c\""},
        {"</style><script>", R"("\3c /style>\3c script>")"},
        {"line\r\nbreak", "\"line  break\""},
        {"\xE6\x98\x8E\xE6\x9C\x9D \xFF", "\"\xE6\x98\x8E\xE6\x9C\x9D \xEF\xBF\xBD\""},
        {"a/*b", "\"a/*b\""},
    };
    for (const auto& [faces, expected] : cases) {
        EXPECT_EQ(Html5FontFamilies(faces), expected) << faces;
    }
}

TEST(Html5FontSize, IsThatOfTheFontElementButNeverTooSmallToRead) {
    const std::vector<std::pair<std::string, double>> cases = {
        {"1", 0.75}, {"2", 0.82}, {"3", 1}, {"4", 1.12}, {"5", 1.5}, {"6", 2},
        {"7", 3},    {"8", 1},    {"0", 1}, {"", 1},     {"33", 1},  {"+1", 1}};
    for (const auto& [size, rem] : cases) {
        EXPECT_EQ(Html5FontSize(size), rem) << size;
    }
}

TEST(Html5Theme, HoldsTheTenColoursAndTheirCounterparts) {
    for (const bool dark : {false, true}) {
        Settings settings = DefaultSettings();
        settings.AltRows = true;
        if (dark) {
            settings.Colour[kPageBackground] = "101010";
            settings.Colour[kPageText] = "F0F0F0";
        }
        const ColourScheme own = OwnColours(settings);
        const ColourScheme other = Counterpart(settings);
        const std::vector<std::string> names = {"page-text", "page",     "header-text", "header", "cell-text",
                                                "cell",      "alt-text", "alt",         "link",   "border"};
        for (std::size_t i = 0; i < kColourCount; ++i) {
            const std::string& light = (dark ? other : own).colours[i];
            const std::string& night = (dark ? own : other).colours[i];
            std::string rule = "\n--";
            rule.append(names[i])
                .append(":light-dark(#")
                .append(light)
                .append(",#")
                .append(night)
                .append(");\n");
            EXPECT_THAT(Theme(settings), HasSubstr(rule));
        }
    }
}

TEST(Html5Theme, RowsDoNotAlternateUnlessTheSettingsSaySo) {
    Settings settings = DefaultSettings();
    settings.AltRows = false;
    settings.Colour[kCellBackground] = "ABCDEF";
    settings.Colour[kAlternateBackground] = "FEDCBA";
    EXPECT_THAT(Theme(settings), HasSubstr("--alt:light-dark(#ABCDEF,"));
    EXPECT_THAT(Theme(settings), Not(HasSubstr("FEDCBA")));
    settings.AltRows = true;
    EXPECT_THAT(Theme(settings), HasSubstr("--alt:light-dark(#FEDCBA,"));
}

TEST(Html5Theme, HoldsFontsOnlyIfTheSettingsUseThem) {
    Settings settings = DefaultSettings();
    settings.Font[kHeaderFont] = {"Arial", "2", true, true};
    settings.Font[kCellFont] = {"", "4", false, false};
    for (const bool css : {false, true}) {
        for (const bool html : {false, true}) {
            settings.FontCSS = css;
            settings.FontHTML = html;
            const std::string theme = Theme(settings);
            EXPECT_EQ(theme.find("--page-size") != std::string::npos, css || html);
            if (css || html) {
                EXPECT_THAT(theme, HasSubstr("--header-font:Arial;\n--header-size:0.82rem;\n"
                                             "--header-weight:700;\n--header-style:italic;\n"
                                             "--cell-size:1.12rem;\n--cell-weight:400;\n"
                                             "--cell-style:normal;\n"));
            }
        }
    }
}

TEST(Html5Theme, HoldsTheMeasuresOfTheTable) {
    Settings settings = DefaultSettings();
    settings.TableBorder = 3;
    settings.TablePadding = 7;
    settings.TableWidth = 640;
    settings.TableWidthUnit = 0;
    EXPECT_THAT(Theme(settings),
                HasSubstr("--line:3px;\n--padding:7px;\n--row:calc(1.3em + 17px);\n--width:640px;\n}\n"));
    settings.TableBorder = settings.TablePadding = settings.TableWidth = -5;
    settings.TableWidthUnit = 1;
    EXPECT_THAT(Theme(settings),
                HasSubstr("--line:0px;\n--padding:0px;\n--row:calc(1.3em + 0px);\n--width:0%;\n}\n"));
}

} // namespace
} // namespace tunedex
