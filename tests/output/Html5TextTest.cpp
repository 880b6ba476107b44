#include "Html5Text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tunedex {
namespace {

std::string Between(const std::string& text) {
    return std::string("a").append(text).append("b");
}

struct Html5TextCase {
    std::string text;
    std::string element;
    std::string attribute;
    std::string json;
};

const std::string kUnknown = "\xEF\xBF\xBD";

TEST(Html5Text, EscapesWhatItsPlaceNeeds) {
    const std::vector<Html5TextCase> cases = {
        {"", "", "", ""},
        {"plain 'text' /\\", "plain 'text' /\\", "plain 'text' /\\", "plain 'text' /\\\\"},
        {"R&B", "R&amp;B", "R&amp;B", "R&B"},
        {"&amp;", "&amp;amp;", "&amp;amp;", "&amp;"},
        {"<b>", "&lt;b&gt;", "&lt;b&gt;", "<b>"},
        {"\"a\"", "\"a\"", "&quot;a&quot;", "\\\"a\\\""},
        {"a\tb\nc\fd\re", "a\tb\nc\fd\re", "a\tb\nc\fd\re", "a\\tb\\nc\\fd\\re"},
        {"J\xC3\xB3ga \xE8\x8A\xB1 \xF0\x9F\x8E\xB5", "J\xC3\xB3ga \xE8\x8A\xB1 \xF0\x9F\x8E\xB5",
         "J\xC3\xB3ga \xE8\x8A\xB1 \xF0\x9F\x8E\xB5", "J\xC3\xB3ga \xE8\x8A\xB1 \xF0\x9F\x8E\xB5"},
    };
    for (const Html5TextCase& row : cases) {
        EXPECT_EQ(Html5Text(row.text, TextPlace::Element), row.element) << row.text;
        EXPECT_EQ(Html5Text(row.text, TextPlace::Attribute), row.attribute) << row.text;
        EXPECT_EQ(Html5Text(row.text, TextPlace::Json), row.json) << row.text;
        PageBuffer page;
        PutHtml5Text(page, row.text);
        EXPECT_EQ(page.View(), row.element);
    }
}

TEST(Html5Text, ReplacesWhatNoDocumentMayHold) {
    const std::vector<std::string> forbidden = {std::string(1, '\0'),
                                                "\x01",
                                                "\x08",
                                                "\x0B",
                                                "\x0E",
                                                "\x1F",
                                                "\x7F",
                                                "\xC2\x80",
                                                "\xC2\x9F",
                                                "\xEF\xB7\x90",
                                                "\xEF\xB7\xAF",
                                                "\xEF\xBF\xBE",
                                                "\xEF\xBF\xBF",
                                                "\xF0\x9F\xBF\xBE",
                                                "\xF4\x8F\xBF\xBF",
                                                "\xFF",
                                                "\x80",
                                                "\xED\xA0\x80" /* a surrogate: three stray bytes */};
    const std::string threeUnknown = kUnknown + kUnknown + kUnknown;
    for (const std::string& text : forbidden) {
        const std::string& expected = text == "\xED\xA0\x80" ? threeUnknown : kUnknown;
        for (const TextPlace place : {TextPlace::Element, TextPlace::Attribute, TextPlace::Json}) {
            EXPECT_EQ(Html5Text(Between(text), place), Between(expected)) << text;
        }
        EXPECT_EQ(Html5Markup(Between(text)), Between(expected));
    }
    for (const std::string text :
         {"\xC2\xA0", "\xEF\xB7\x8F", "\xEF\xB7\xB0", "\xEF\xBF\xBD", "\xE2\x80\xA8"}) {
        EXPECT_EQ(Html5Text(text), text);
    }
}

TEST(Html5Markup, StaysMarkupExceptForElementsThatNoPolicyStops) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"<b class=\"x\">R&amp;B</b> & < >", "<b class=\"x\">R&amp;B</b> & < >"},
        {"<script>x</script>", "<script>x</script>"},
        {"<meta http-equiv=refresh>", "&lt;meta http-equiv=refresh>"},
        {"<MeTa\n>", "&lt;MeTa\n>"},
        {"a<<link rel=preconnect>", "a<&lt;link rel=preconnect>"},
        {"<lin", "<lin"},
        {"<metre>", "<metre>"},
        {"<", "<"},
        {"\xC3\xA9<LINK", "\xC3\xA9&lt;LINK"},
    };
    for (const auto& [markup, expected] : cases) {
        EXPECT_EQ(Html5Markup(markup), expected);
    }
}

} // namespace
} // namespace tunedex
