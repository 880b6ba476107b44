#include "StyleSheet.h"

#include "ListingFixture.h"

namespace tunedex {
namespace {

using StyleSheetTest = ListingTest;

std::string Lines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

std::string StyleBlock(const Settings& settings) {
    std::string page;
    WriteStyleBlock(page, settings);
    return page;
}

TEST_F(StyleSheetTest, HoldsColoursAndFonts) {
    const std::string body =
        "\t\t\tbody {color: #000000; background-color: #FFFFFF; font-family: Times New Roman, serif; "
        "font-size: small; font-weight: bold;}";
    const std::string headers =
        "\t\t\tth {color: #FFFF00; background-color: #000066; font-family: Tahoma, Arial, sans-serif; "
        "font-size: x-small; font-weight: bold;}";
    const std::string cells =
        "\t\t\ttd {font-family: Tahoma, Arial, sans-serif; font-size: xx-small; font-weight: normal; "
        "font-style: normal;}";
    EXPECT_EQ(StyleBlock(settings),
              Lines({"\t\t<style type=\"text/css\">", "\t\t<!--", body,
                     "\t\t\ttr {color: #000000; background-color: #CECECE;}",
                     "\t\t\ttr.r2 {color: #000000; background-color: #DEDEDE;}", headers, cells,
                     "\t\t\ta {color: #0000FF;}", "\t\t//-->", "\t\t</style>"}));
}

TEST_F(StyleSheetTest, KeepsEmptyRulesWithColoursOnly) {
    settings.FontCSS = false;
    EXPECT_EQ(StyleBlock(settings),
              Lines({"\t\t<style type=\"text/css\">", "\t\t<!--",
                     "\t\t\tbody {color: #000000; background-color: #FFFFFF;}",
                     "\t\t\ttr {color: #000000; background-color: #CECECE;}",
                     "\t\t\ttr.r2 {color: #000000; background-color: #DEDEDE;}",
                     "\t\t\tth {color: #FFFF00; background-color: #000066;}", "\t\t\ttd }",
                     "\t\t\ta {color: #0000FF;}", "\t\t//-->", "\t\t</style>"}));
}

TEST_F(StyleSheetTest, HasNoLinkRuleWithFontsOnly) {
    settings.ColourCSS = false;
    settings.DocumentType = "XHTML";
    settings.Font = {FontSetting{"A", "7", false, true}, FontSetting{"B", "9", true, true},
                     FontSetting{"C", "4", true, true}};
    EXPECT_EQ(StyleBlock(settings),
              Lines({"\t\t<style type=\"text/css\">", "\t\t<![CDATA[",
                     "\t\t\tbody {font-family: A; font-size: xx-large; font-style: italic;}", "\t\t\ttr }",
                     "\t\t\ttr.r2 }",
                     "\t\t\tth {font-family: B; font-size: small; font-weight: bold; font-style: italic;}",
                     "\t\t\ttd {font-family: C; font-size: medium; font-weight: bold; font-style: italic;}",
                     "\t\t]]>", "\t\t</style>"}));
}

TEST_F(StyleSheetTest, HasNoCommentMarksForAnUnknownDocumentType) {
    settings.DocumentType = "html";
    const std::string block = StyleBlock(settings);
    EXPECT_NE(block.find("<style type=\"text/css\">\r\n\t\t\r\n\t\t\tbody"), std::string::npos);
    EXPECT_NE(block.find("a {color: #0000FF;}\r\n\t\t\r\n\t\t</style>"), std::string::npos);
}

TEST(CssSizeName, NamesSevenSizes) {
    const std::vector<std::pair<std::string, std::string>> rows = {
        {"1", "xx-small"}, {"2", "x-small"},  {"3", "small"},  {"4", "medium"}, {"5", "large"},
        {"6", "x-large"},  {"7", "xx-large"}, {"0", "small"},  {"8", "small"},  {"9", "small"},
        {"", "small"},     {"10", "small"},   {"11", "small"}, {"+1", "small"}};
    for (const auto& [size, name] : rows) {
        EXPECT_EQ(CssSizeName(size), name) << size;
    }
}

} // namespace
} // namespace tunedex
