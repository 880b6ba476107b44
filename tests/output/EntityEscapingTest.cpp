#include "ListingFixture.h"
#include "Text.h"

#include <random>

namespace tunedex {
namespace {

using EscapeTest = ListingTest;

std::string EscapedOneSlotAfterTheOther(const EntityTable& table, std::string text) {
    const auto& slots = table.Slots();
    for (std::size_t slot = 0; slot + 1 < slots.size(); ++slot) {
        std::string character;
        AppendUtf8(character, FromWindows1252(static_cast<unsigned char>(slots[slot].code)));
        text = ReplaceAll(text, character, slots[slot].text);
    }
    return text;
}

TEST_F(EscapeTest, AgreesWithReplacingOneSlotAfterTheOther) {
    std::mt19937 random(11);
    const std::vector<std::string> pieces = {"a", "b",  "c", "&", ";", "<", "\xC3\xA9", "\xE2\x82\xAC",
                                             "",  "amp"};
    const std::vector<int> codes = {97, 98, 99, 38, 59, 60, 0xE9, 0x80, 0};
    int changed = 0;
    for (int round = 0; round < 2000; ++round) {
        std::vector<std::string> lines;
        for (auto count = random() % 8; count > 0; --count) {
            std::string line = std::to_string(codes[random() % codes.size()]) + "\t";
            for (auto parts = random() % 4; parts > 0; --parts) {
                line += pieces[random() % pieces.size()];
            }
            lines.push_back(random() % 5 == 0 ? "# a comment" : line);
        }
        EntityTable table;
        table.Load(lines, "table", faults);
        std::string text;
        for (auto length = random() % 30; length > 0; --length) {
            text += pieces[random() % pieces.size()];
        }
        text += std::string(random() % 2, '\0');
        const std::string expected = EscapedOneSlotAfterTheOther(table, text);
        ASSERT_EQ(table.EscapeEntities(text), expected) << testing::PrintToString(lines) << text;
        changed += expected != text ? 1 : 0;
    }
    EXPECT_GT(changed, 500);
    EXPECT_EQ(faults.str(), "");
}

TEST_F(EscapeTest, AppliesTheShippedTableOnce) {
    EXPECT_EQ(entities.EscapeEntities("a & <b> \"c\" &amp; \xC3\xA9 \xE2\x82\xAC \x01"),
              "a &amp; &lt;b&gt; &quot;c&quot; &amp;amp; &eacute; &#8364; ");
    std::string everything;
    for (unsigned code = 0; code < 256; ++code) {
        AppendUtf8(everything, FromWindows1252(static_cast<unsigned char>(code)));
    }
    EXPECT_EQ(entities.EscapeEntities(everything), EscapedOneSlotAfterTheOther(entities, everything));
}

} // namespace
} // namespace tunedex
