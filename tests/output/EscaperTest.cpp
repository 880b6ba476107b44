#include "Escaper.h"

#include "Raises.h"
#include "RunTimeError.h"
#include "Text.h"
#include "TextLines.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace tunedex {
namespace {

using EntityLines = std::vector<std::string>;

std::string CharacterOf(int code) {
    std::string text;
    AppendUtf8(text, FromWindows1252(static_cast<unsigned char>(code)));
    return text;
}

EntityTable TableOf(const EntityLines& lines) {
    EntityTable table;
    std::ostringstream faults;
    table.Load(lines, "test", faults);
    EXPECT_EQ(faults.str(), "");
    return table;
}

Escaper EscaperOf(const EntityLines& lines) {
    return Escaper(TableOf(lines));
}

TEST(Escaper, ReplacesNothingWithAnEmptyTable) {
    EXPECT_EQ(Escaper(EntityTable()).EscapeEntities("Rock & Roll"), "Rock & Roll");
}

TEST(Escaper, AppliesEntriesInFileOrderToThePreviousResult) {
    EXPECT_EQ(EscaperOf({"38\t&amp;", "60\t&lt;"}).EscapeEntities("a<b & c"), "a&lt;b &amp; c");
    EXPECT_EQ(EscaperOf({"60\t&lt;", "38\t&amp;"}).EscapeEntities("a<b"), "a&amp;lt;b");
    EXPECT_EQ(EscaperOf({"97\tb", "98\tc", "99\ta"}).EscapeEntities("abc"), "aaa");
    EXPECT_EQ(EscaperOf({"97\tx", "97\ty"}).EscapeEntities("a"), "x")
        << "no \"a\" is left for the second entry";
    EXPECT_EQ(EscaperOf({"97\taa", "97\tb"}).EscapeEntities("a"), "bb");
}

TEST(Escaper, AppliesEntriesBetweenComments) {
    const Escaper table = EscaperOf({"# one", "38\t&amp;", "", "# two", "60\t&lt;", "#", "62\t&gt;", ""});
    EXPECT_EQ(table.EscapeEntities("<&>"), "&lt;&amp;&gt;");
}

// An empty slot removes NUL and the last slot is never applied, so NUL is removed only if the file has a line
// that is not an entry.
TEST(Escaper, RemovesNulOnlyWithAnEmptySlotBeforeTheLast) {
    const std::string text("a\0b", 3);
    EXPECT_EQ(EscaperOf({}).EscapeEntities(text), text);
    EXPECT_EQ(EscaperOf({"38\t&amp;"}).EscapeEntities(text), text);
    EXPECT_EQ(EscaperOf({"# comment", "38\t&amp;"}).EscapeEntities(text), "ab");
    EXPECT_EQ(EscaperOf({""}).EscapeEntities(text), "ab");
    EXPECT_EQ(EscaperOf({"0\t[NUL]"}).EscapeEntities(text), "a[NUL]b");
}

TEST(Escaper, ReplacesEveryCharacterOfTheCodePage) {
    EntityLines lines;
    std::string text;
    std::string expected;
    for (int code = 128; code < 256; ++code) {
        lines.push_back(std::to_string(code) + "\t{" + std::to_string(code) + "}");
        text += CharacterOf(code);
        expected += "{" + std::to_string(code) + "}";
    }
    EXPECT_EQ(EscaperOf(lines).EscapeEntities(text), expected);
}

TEST(Escaper, ReplacesCharactersAndKeepsStrayBytes) {
    const Escaper table = EscaperOf({"233\t&eacute;", "195\t&Atilde;", "169\t&copy;"});
    EXPECT_EQ(table.EscapeEntities("é"), "&eacute;");
    EXPECT_EQ(table.EscapeEntities("\xE9 \xC3 あ🎵\xA9"), "\xE9 \xC3 あ🎵\xA9");
}

TEST(Escaper, AppendsToTheText) {
    std::string result = "<b>";
    EscaperOf({"60\t&lt;"}).AppendEscaped(result, "a<");
    EXPECT_EQ(result, "<b>a&lt;");
}

TEST(Escaper, AcceptsATrailingCommentOrEmptyLine) {
    EXPECT_EQ(EscaperOf({"38\t&amp;", "# end"}).EscapeEntities("&"), "&amp;");
    EXPECT_EQ(EscaperOf({"38\t&amp;", "", ""}).EscapeEntities("&"), "&amp;");
}

TEST(Escaper, RaisesOverflowOnlyForTextsWithATooLongExpansion) {
    const std::string million(1000000, 'a');
    const EntityLines tables[] = {
        EntityLines(64, "97\taa"),                                   // doubles with every line
        {"97\t" + million, "97\t" + million},                        // multiplies
        {"97\t" + std::string(Escaper::kLongestExpansion + 1, 'b')}, // one byte too long
        {"97\t" + million, "97\t" + million, "97\t"},                // too long before the last line
    };
    for (const EntityLines& lines : tables) {
        const Escaper table = EscaperOf(lines);
        EXPECT_EQ(table.EscapeEntities("b&c"), "b&c");
        EXPECT_EQ(test::RaisedBy([&] { table.EscapeEntities("bac"); }), 6);
        PageBuffer page;
        EXPECT_EQ(test::RaisedBy([&] { table.PutEscaped(page, "bac"); }), 6);
    }
}

TEST(Escaper, AllowsAnExpansionOfTheMaximumLength) {
    const std::string longest(Escaper::kLongestExpansion, 'b');
    EXPECT_EQ(EscaperOf({"97\t" + longest}).EscapeEntities("ac"), longest + "c");
    EXPECT_EQ(EscaperOf(EntityLines(20, "97\taa")).EscapeEntities("a"),
              std::string(Escaper::kLongestExpansion, 'a'));
}

// The plain rule: applies each slot in turn to the whole text.
std::string SlotBySlot(const EntityTable& table, std::string text) {
    for (std::size_t slot = 0; slot + 1 < table.Slots().size(); ++slot) {
        text = ReplaceAll(text, CharacterOf(table.Slots()[slot].code), table.Slots()[slot].text);
    }
    return text;
}

TEST(Escaper, EqualsApplyingEachSlotToTheWholeText) {
    for (unsigned seed = 1; seed <= 300; ++seed) {
        std::mt19937 random(seed);
        const auto anyText = [&](std::size_t most) {
            std::string text;
            for (std::size_t left = random() % (most + 1); left > 0; --left) {
                const char* const pieces[] = {"a", "b", "&", ";", "c", "<", "é", "\xFF", "あ"};
                text += pieces[random() % std::size(pieces)];
            }
            return text;
        };
        EntityLines lines;
        for (std::size_t i = random() % 7; i > 0; --i) {
            const int codes[] = {'a', 'b', '&', ';', 'c', '<', 233, 0};
            lines.push_back(random() % 4 == 0
                                ? "# comment"
                                : std::to_string(codes[random() % std::size(codes)]) + "\t" + anyText(3));
        }
        const EntityTable table = TableOf(lines);
        const std::string text = anyText(30) + std::string(random() % 2, '\0');
        ASSERT_EQ(Escaper(table).EscapeEntities(text), SlotBySlot(table, text)) << "seed " << seed;
    }
}

class ShippedEntities : public testing::Test {
  protected:
    ShippedEntities()
        : lines_(ReadTextLines(std::string(TUNEDEX_SOURCE_DIR) + "/data/html_entities.lst")),
          table_(TableOf(lines_)), escaper_(table_) {}

    const EntityLines lines_;
    const EntityTable table_;
    const Escaper escaper_;
};

TEST_F(ShippedEntities, BeginWithTheAmpersandAndTheOtherMarkupCharacters) {
    const std::vector<std::pair<int, const char*>> first = {
        {38, "&amp;"}, {60, "&lt;"}, {62, "&gt;"}, {34, "&quot;"}};
    for (std::size_t i = 0; i < first.size(); ++i) {
        EXPECT_EQ(table_.Slots()[i].code, first[i].first);
        EXPECT_EQ(table_.Slots()[i].text, first[i].second);
    }
}

TEST_F(ShippedEntities, NameTheUpperHalfOfIso88591AsHtml4Does) {
    const std::vector<std::string> names = {
        "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",   "uml",    "copy",
        "ordf",   "laquo",  "not",    "shy",    "reg",    "macr",   "deg",    "plusmn", "sup2",   "sup3",
        "acute",  "micro",  "para",   "middot", "cedil",  "sup1",   "ordm",   "raquo",  "frac14", "frac12",
        "frac34", "iquest", "Agrave", "Aacute", "Acirc",  "Atilde", "Auml",   "Aring",  "AElig",  "Ccedil",
        "Egrave", "Eacute", "Ecirc",  "Euml",   "Igrave", "Iacute", "Icirc",  "Iuml",   "ETH",    "Ntilde",
        "Ograve", "Oacute", "Ocirc",  "Otilde", "Ouml",   "times",  "Oslash", "Ugrave", "Uacute", "Ucirc",
        "Uuml",   "Yacute", "THORN",  "szlig",  "agrave", "aacute", "acirc",  "atilde", "auml",   "aring",
        "aelig",  "ccedil", "egrave", "eacute", "ecirc",  "euml",   "igrave", "iacute", "icirc",  "iuml",
        "eth",    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide", "oslash", "ugrave",
        "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml"};
    ASSERT_EQ(names.size(), 96U);
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(escaper_.EscapeEntities(CharacterOf(160 + static_cast<int>(i))), "&" + names[i] + ";");
    }
}

TEST_F(ShippedEntities, ReferToCodes128To159ByNumber) {
    for (int code = 128; code < 160; ++code) {
        const char32_t character = FromWindows1252(static_cast<unsigned char>(code));
        const std::string escaped = escaper_.EscapeEntities(CharacterOf(code));
        // Pages may not hold the control characters of the five unused codes, not even as references.
        const std::uint32_t number = character < 0xA0 ? 0xFFFD : static_cast<std::uint32_t>(character);
        EXPECT_EQ(escaped, "&#" + std::to_string(number) + ";") << code;
    }
}

TEST_F(ShippedEntities, RemoveControlCharactersThatPagesMayNotHold) {
    for (int code = 0; code < 32; ++code) {
        const std::string character(1, static_cast<char>(code));
        const bool allowed = code == 9 || code == 10 || code == 13;
        EXPECT_EQ(escaper_.EscapeEntities("a" + character + "b"), allowed ? "a" + character + "b" : "ab")
            << code;
    }
}

TEST_F(ShippedEntities, KeepAllOtherAscii) {
    for (int code = 32; code < 127; ++code) {
        const std::string character(1, static_cast<char>(code));
        if (std::string("&<>\"").find(character) == std::string::npos) {
            EXPECT_EQ(escaper_.EscapeEntities(character), character);
        }
    }
}

TEST_F(ShippedEntities, MakeEveryTextAsciiAndListNoCharacterTwice) {
    std::set<int> codes;
    for (const EntityTable::Slot& slot : table_.Slots()) {
        EXPECT_TRUE(slot.code == 0 || codes.insert(slot.code).second) << slot.code;
        EXPECT_TRUE(IsAscii(slot.text)) << slot.code;
    }
    std::string all;
    for (int code = 0; code < 256; ++code) {
        all += CharacterOf(code);
    }
    EXPECT_TRUE(IsAscii(escaper_.EscapeEntities(all)));
}

std::string RandomText(std::mt19937& random) {
    static const std::vector<std::string> kPieces = {"a",
                                                     "Rock",
                                                     "&",
                                                     "<",
                                                     "\"",
                                                     "\n",
                                                     "\x7F",
                                                     "\xC3\xA9",
                                                     "\xE2\x82\xAC",
                                                     "\xE3\x81\x82",
                                                     "\xE9",
                                                     "\xE2\x82",
                                                     "0123456789abcdef"};
    std::string text;
    for (std::size_t left = random() % 12; left > 0; --left) {
        text += kPieces[random() % kPieces.size()];
    }
    return text;
}

TEST(Escaper, PutsTheSameTextIntoAPageAsItAppends) {
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round) {
        std::vector<std::string> lines;
        for (std::size_t left = random() % 14; left > 0; --left) {
            // Some are longer than the initial buffer.
            lines.push_back(std::to_string(random() % 256) + "\t" +
                            std::string(random() % 50 == 0 ? 9000 : random() % 5, '&'));
        }
        const Escaper escaper = EscaperOf(lines);
        PageBuffer page;
        std::string expected;
        for (int i = 0; i < 20; ++i) {
            const std::string text = RandomText(random);
            if (test::RaisedBy([&] { escaper.EscapeEntities(text); }) != 0) {
                continue; // an expansion is too long
            }
            escaper.PutEscaped(page, text);
            expected += escaper.EscapeEntities(text);
        }
        ASSERT_EQ(page.View(), expected);
    }
}

} // namespace
} // namespace tunedex
