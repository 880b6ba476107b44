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

TEST(CssText, CannotEndTheStyleElementOrItsCdataSection) {
    for (const MarkupRow& row :
         {MarkupRow{"", ""},
          MarkupRow{"\"It's\", 'Old {1}; Type', B\u00F6rse", "\"It's\", 'Old {1}; Type', B\u00F6rse"},
          MarkupRow{"</style>", "\\3c /style\\3e "}, MarkupRow{"]]>", "]]\\3e "},
          MarkupRow{"\u82B1", "\u82B1"}, MarkupRow{"#123456", "#123456"}}) {
        EXPECT_EQ(CssText(row.text), row.written) << row.text;
    }
}

} // namespace
} // namespace tunedex
