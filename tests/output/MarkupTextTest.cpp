#include "MarkupText.h"

#include <gtest/gtest.h>

#include <string>

namespace tunedex {
namespace {

struct MarkupRow {
    std::string text;
    std::string written;
};

TEST(ElementText, KeepsMarkupOutOfAnElement) {
    for (const MarkupRow& row : {MarkupRow{"", ""}, MarkupRow{"Album Artist", "Album Artist"},
                                 MarkupRow{"<b>&\"]]>", "&lt;b&gt;&amp;\"]]&gt;"}, MarkupRow{"&", "&amp;"},
                                 MarkupRow{"花<", "花&lt;"}}) {
        EXPECT_EQ(ElementText(row.text), row.written);
    }
}

TEST(AttributeText, StaysInTheQuotationMarks) {
    EXPECT_EQ(AttributeText("Tahoma, Arial, sans-serif"), "Tahoma, Arial, sans-serif");
    EXPECT_EQ(AttributeText("\"><script>alert('1')&"), "&quot;&gt;&lt;script&gt;alert('1')&amp;");
}

TEST(CssText, KeepsNamesNumbersAndStrings) {
    for (const char* text : {"", "Tahoma, Arial, sans-serif", "\"Trebuchet MS\", Arial",
                             "'Old {1} Type;', serif", "\"It's\"", "FFA07A", "Börse", "-x-a_b", "''"}) {
        EXPECT_EQ(CssText(text), text);
    }
}

TEST(CssText, EscapesWhatCouldEndItsPlace) {
    for (const MarkupRow& row :
         {MarkupRow{"a; b: url(x)", "a\\3b  b\\3a  url\\28 x\\29 "}, MarkupRow{"a}", "a\\7d "},
          MarkupRow{"</style>", "\\3c \\2f style\\3e "}, MarkupRow{"'</style>'", "'\\3c /style\\3e '"},
          MarkupRow{"']]>'", "']]\\3e '"}, MarkupRow{"]]>", "\\5d \\5d \\3e "},
          MarkupRow{"/* a", "\\2f \\2a  a"}, MarkupRow{"\\", "\\5c "}, MarkupRow{"'\\'", "'\\5c '"},
          MarkupRow{"'open", "\\27 open"}, MarkupRow{"\"a\" 'b", "\"a\" \\27 b"},
          MarkupRow{"a\tb\n", "a\\9 b\\a "}, MarkupRow{"'a\nb'", "'a\\a b'"}, MarkupRow{"!", "\\21 "}}) {
        EXPECT_EQ(CssText(row.text), row.written) << row.text;
    }
}

TEST(CssText, IsLatin1WithoutControlCharacters) {
    // A style sheet has no character references.
    EXPECT_EQ(CssText("花"), "\\82b1 ");
    EXPECT_EQ(CssText("'€ 𝄞'"), "'\\20ac  \\1d11e '");
    EXPECT_EQ(CssText("\x7F\xC2\x80"), "\\7f \\80 ");
    EXPECT_EQ(CssText(std::string(1, '\0')), "\\fffd ");
    EXPECT_EQ(CssText("a\xFF\x80"), "a\\fffd \\fffd ");
}

} // namespace
} // namespace tunedex
