#include "Text.h"

#include "Raises.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tunedex {
namespace {

std::string Utf8(char32_t character) {
    std::string text;
    AppendUtf8(text, character);
    return text;
}

std::string InWindows1252(std::string_view text, Substitute substitute = Substitute::QuestionMark) {
    std::string bytes;
    AppendWindows1252(bytes, text, substitute);
    return bytes;
}

// Bytes 80 to 9F as published for the code page.
const std::map<int, char32_t> kSpecialBytes = {
    {0x80, U'€'}, {0x82, U'‚'}, {0x83, U'ƒ'}, {0x84, U'„'}, {0x85, U'…'}, {0x86, U'†'}, {0x87, U'‡'},
    {0x88, U'ˆ'}, {0x89, U'‰'}, {0x8A, U'Š'}, {0x8B, U'‹'}, {0x8C, U'Œ'}, {0x8E, U'Ž'}, {0x91, U'‘'},
    {0x92, U'’'}, {0x93, U'“'}, {0x94, U'”'}, {0x95, U'•'}, {0x96, U'–'}, {0x97, U'—'}, {0x98, U'˜'},
    {0x99, U'™'}, {0x9A, U'š'}, {0x9B, U'›'}, {0x9C, U'œ'}, {0x9E, U'ž'}, {0x9F, U'Ÿ'}};

TEST(AppendUtf8, WritesCharactersOfEveryLength) {
    const std::pair<char32_t, const char*> rows[] = {{0x01, "\x01"},
                                                     {0x7F, "\x7F"},
                                                     {0x80, "\xC2\x80"},
                                                     {0x7FF, "\xDF\xBF"},
                                                     {0x800, "\xE0\xA0\x80"},
                                                     {0xFFFF, "\xEF\xBF\xBF"},
                                                     {0x10000, "\xF0\x90\x80\x80"},
                                                     {0x1F600, "\xF0\x9F\x98\x80"},
                                                     {0x10FFFF, "\xF4\x8F\xBF\xBF"}};
    for (const auto& [character, expected] : rows) {
        std::string text = "before ";
        AppendUtf8(text, character);
        EXPECT_EQ(text, std::string("before ") + expected);
        EXPECT_TRUE(IsValidUtf8(text)) << text;
    }
}

TEST(Windows1252, MapsEveryByteInBothDirections) {
    for (int byte = 0; byte < 256; ++byte) {
        const auto special = kSpecialBytes.find(byte);
        // Every other byte, including the five unused ones, maps to its own number.
        const auto character = special == kSpecialBytes.end() ? static_cast<char32_t>(byte) : special->second;
        const auto raw = static_cast<unsigned char>(byte);
        EXPECT_EQ(FromWindows1252(raw), character) << byte;
        EXPECT_EQ(ToWindows1252(character), raw) << byte;
        const std::string bytes(1, static_cast<char>(byte));
        EXPECT_EQ(DecodeWindows1252(bytes), Utf8(character)) << byte;
        EXPECT_EQ(InWindows1252(Utf8(character)), bytes) << byte;
    }
}

TEST(Windows1252, DecodesLongMixturesOfAsciiAndOtherBytes) {
    // Long runs of ASCII are handled by other code than single characters.
    for (std::size_t before = 0; before < 20; ++before) {
        for (std::size_t after = 0; after < 20; ++after) {
            const std::string bytes = std::string(before, 'a') + "\xE9" + std::string(after, 'b') + "\x80";
            const std::string text = std::string(before, 'a') + "é" + std::string(after, 'b') + "€";
            EXPECT_EQ(DecodeWindows1252(bytes), text);
            EXPECT_EQ(InWindows1252(text), bytes);
        }
    }
}

TEST(Windows1252, DoesNotEncodeOtherCharacters) {
    for (const char32_t character :
         {U'\u0080', U'\u0082', U'\u009F', U'\u0100', U'あ', U'\uFEFF', U'\U0001F3B5'}) {
        EXPECT_EQ(ToWindows1252(character), std::nullopt) << static_cast<unsigned>(character);
    }
}

TEST(Windows1252, SubstitutesAQuestionMarkOrAReference) {
    EXPECT_EQ(InWindows1252("aあb"), "a?b");
    EXPECT_EQ(InWindows1252("aあb", Substitute::DecimalReference), "a&#12354;b");
    EXPECT_EQ(InWindows1252("🎵"), "?");
    EXPECT_EQ(InWindows1252("🎵", Substitute::DecimalReference), "&#127925;");
    EXPECT_EQ(InWindows1252("\xC2\x80", Substitute::DecimalReference), "&#128;");
}

TEST(Windows1252, WritesNoReferenceThatHtmlForbids) {
    std::string bytes;
    AppendWindows1252(bytes, "\uFFFD\uFFFE\uFFFF\U00010000", Substitute::DecimalReference);
    EXPECT_EQ(bytes, "&#65533;&#65533;&#65533;&#65536;");
}

std::string InLatin1(std::string_view text) {
    std::string bytes;
    AppendLatin1References(bytes, text);
    return bytes;
}

TEST(Latin1References, WriteEveryCharacterThatADocumentMayHold) {
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (character >= 0xD800 && character <= 0xDFFF) {
            continue;
        }
        const bool space = character == '\t' || character == '\n' || character == '\r';
        const bool control = character < 0x20 || (character >= 0x7F && character <= 0x9F);
        std::string expected;
        if ((control && !space) || character == 0xFFFE || character == 0xFFFF) {
            expected = "&#65533;";
        } else if (character <= 0xFF) {
            expected = std::string(1, static_cast<char>(character));
        } else {
            expected = "&#" + std::to_string(static_cast<unsigned>(character)) + ";";
        }
        ASSERT_EQ(InLatin1(Utf8(character)), expected) << static_cast<unsigned>(character);
    }
}

TEST(Latin1References, KeepOnlyTheStrayBytesThatAreCharacters) {
    for (int byte = 0x80; byte <= 0xFF; ++byte) {
        const std::string stray(1, static_cast<char>(byte));
        EXPECT_EQ(InLatin1(stray), byte < 0xA0 ? "&#65533;" : stray) << byte;
    }
}

TEST(Latin1References, FindTheCharactersToReplaceAnywhereInALongText) {
    // Blocks of 64 bytes are tested at once.
    for (std::size_t length = 0; length < 150; ++length) {
        const std::string plain(length, '~');
        const auto around = [&](const char* middle) {
            return std::string(plain).append(middle).append(plain);
        };
        EXPECT_TRUE(IsDocumentAscii(plain));
        EXPECT_EQ(InLatin1(around("\x7F")), around("&#65533;"));
        EXPECT_FALSE(IsDocumentAscii(around("\x7F")));
        EXPECT_FALSE(IsDocumentAscii(around("\xC3\xA9")));
    }
    EXPECT_TRUE(IsDocumentAscii("\t\r\n "));
}

TEST(Windows1252, WritesStrayBytesUnchanged) {
    for (const Substitute substitute : {Substitute::QuestionMark, Substitute::DecimalReference}) {
        EXPECT_EQ(InWindows1252("a\xFF"
                                "b\xE3\x81",
                                substitute),
                  "a\xFF"
                  "b\xE3\x81");
    }
}

TEST(StepAt, DecodesCharactersAndTreatsInvalidBytesAsStray) {
    struct Row {
        std::string text;
        char32_t character;
        std::size_t length;
        bool stray;
    };
    const std::vector<Row> rows = {
        {"a", U'a', 1, false},
        {std::string(1, '\0'), 0, 1, false},
        {"\x7F", 0x7F, 1, false},
        {"\xC2\x80", 0x80, 2, false},
        {"\xDF\xBF", 0x7FF, 2, false},
        {"\xE0\xA0\x80", 0x800, 3, false},
        {"\xED\x9F\xBF", 0xD7FF, 3, false},
        {"\xEE\x80\x80", 0xE000, 3, false},
        {"\xEF\xBF\xBF", 0xFFFF, 3, false},
        {"\xF0\x90\x80\x80", 0x10000, 4, false},
        {"\xF4\x8F\xBF\xBF", 0x10FFFF, 4, false},
        // Bytes that cannot begin a character.
        {"\x80", 0x80, 1, true},
        {"\xBF", 0xBF, 1, true},
        {"\xF5\x80\x80\x80", 0xF5, 1, true},
        {"\xFE", 0xFE, 1, true},
        {"\xFF", 0xFF, 1, true},
        // Overlong forms.
        {"\xC0\xAF", 0xC0, 1, true},
        {"\xC1\xBF", 0xC1, 1, true},
        {"\xE0\x9F\xBF", 0xE0, 1, true},
        {"\xF0\x8F\xBF\xBF", 0xF0, 1, true},
        // Surrogates, and values above the last character.
        {"\xED\xA0\x80", 0xED, 1, true},
        {"\xED\xBF\xBF", 0xED, 1, true},
        {"\xF4\x90\x80\x80", 0xF4, 1, true},
        // Truncated by the end or by another character.
        {"\xC3", 0xC3, 1, true},
        {"\xE3\x81", 0xE3, 1, true},
        {"\xF0\x9F\x8E", 0xF0, 1, true},
        {"\xC3z", 0xC3, 1, true},
        {"\xE3\x81\xC3\xA9", 0xE3, 1, true},
    };
    for (const Row& row : rows) {
        const TextStep step = StepAt(row.text, 0);
        EXPECT_EQ(step.character, row.character) << testing::PrintToString(row.text);
        EXPECT_EQ(step.length, row.length) << testing::PrintToString(row.text);
        EXPECT_EQ(step.stray, row.stray) << testing::PrintToString(row.text);
        EXPECT_EQ(IsValidUtf8("12345678" + row.text), !row.stray) << testing::PrintToString(row.text);
        EXPECT_EQ(IsAscii("12345678" + row.text), row.character < 0x80 && !row.stray);
        if (!row.stray) {
            EXPECT_EQ(Utf8(row.character), row.text.substr(0, row.length));
        }
    }
}

TEST(StepAt, StepsThroughMixedText) {
    const std::string text = "a\xFF"
                             "éあ🎵\x80z";
    std::vector<std::size_t> lengths;
    for (std::size_t i = 0; i < text.size(); i += StepAt(text, i).length) {
        lengths.push_back(StepAt(text, i).length);
    }
    EXPECT_EQ(lengths, (std::vector<std::size_t>{1, 1, 2, 3, 4, 1, 1}));
}

TEST(UpperCase, MapsOnlyLettersWhoseUpperCaseIsInTheCodePage) {
    const std::map<char32_t, char32_t> special = {{U'š', U'Š'}, {U'œ', U'Œ'}, {U'ž', U'Ž'}, {U'ÿ', U'Ÿ'}};
    for (int byte = 0; byte < 256; ++byte) {
        const char32_t character = FromWindows1252(static_cast<unsigned char>(byte));
        char32_t upper = character;
        const bool ascii = byte >= 'a' && byte <= 'z';
        const bool letterOfThePage = byte >= 0xE0 && byte <= 0xFE && byte != 0xF7;
        if (ascii || letterOfThePage) {
            upper = character - 32;
        } else if (special.contains(character)) {
            upper = special.at(character);
        }
        EXPECT_EQ(UpperCase(Utf8(character)), Utf8(upper)) << byte;
    }
}

TEST(UpperCase, KeepsOtherScriptsAndStrayBytes) {
    for (const char* text : {"ß", "÷", "×", "µ", "ƒ", "а", "α", "ā", "あ", "ａ", "\xE9", "\xFF\xE0", "ı"}) {
        EXPECT_EQ(UpperCase(text), text);
    }
    EXPECT_EQ(UpperCase("a\xE9z é"), "A\xE9Z É");
}

TEST(EndsInIgnoringCase, IgnoresCase) {
    EXPECT_TRUE(EndsInIgnoringCase("list.Cfg", ".CFG"));
    EXPECT_TRUE(EndsInIgnoringCase(".cfg", ".CFG"));
    EXPECT_FALSE(EndsInIgnoringCase("cfg", ".CFG"));
    EXPECT_FALSE(EndsInIgnoringCase("list.cfg.bak", ".CFG"));
    EXPECT_FALSE(EndsInIgnoringCase("", ".CFG"));
}

TEST(ReplaceAll, ReplacesFromLeftToRightAndNotWithinReplacements) {
    EXPECT_EQ(ReplaceAll("a.b.c", ".", ".."), "a..b..c");
    EXPECT_EQ(ReplaceAll("aaa", "aa", "b"), "ba");
    EXPECT_EQ(ReplaceAll("", "a", "b"), "");
    EXPECT_EQ(ReplaceAll("abc", "x", "y"), "abc");
    EXPECT_EQ(ReplaceAll("%D%D", "%D", ""), "");
}

TEST(Split, KeepsEmptyPiecesButReturnsNoneForAnEmptyText) {
    using Pieces = std::vector<std::string>;
    EXPECT_EQ(Split("", "|"), Pieces());
    EXPECT_EQ(Split("a", "|"), Pieces{"a"});
    EXPECT_EQ(Split("|", "|"), (Pieces{"", ""}));
    EXPECT_EQ(Split("a||b|", "|"), (Pieces{"a", "", "b", ""}));
    EXPECT_EQ(Split("a%|%b%|%", "%|%"), (Pieces{"a", "b", ""}));
}

TEST(TrimBlanks, RemovesOnlyBlanks) {
    EXPECT_EQ(TrimBlanks("  a b  "), "a b");
    EXPECT_EQ(TrimBlanks("\ta\t"), "\ta\t");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(TrimBlanks(""), "");
    EXPECT_EQ(TrimBlanksRight("  a  "), "  a");
    EXPECT_EQ(TrimBlanksRight("  "), "");
}

TEST(FileLine, IsWrittenAsWindows1252WherePossibleOtherwiseAsUtf8) {
    EXPECT_EQ(EncodeFileLine("plain"), "plain");
    EXPECT_EQ(EncodeFileLine("Café"), "Caf\xE9");
    EXPECT_EQ(EncodeFileLine("€ – š"), "\x80 \x96 \x9A");
    EXPECT_EQ(EncodeFileLine("あ é"), "あ é");
    // "Ã©" in Windows-1252 is the UTF-8 form of é, so it must be written as UTF-8.
    EXPECT_EQ(EncodeFileLine("Ã©"), "Ã©");
    EXPECT_EQ(EncodeFileLine("Ã"), "\xC3");
}

TEST(FileLine, IsReadAsUtf8WhereValidOtherwiseAsWindows1252) {
    EXPECT_EQ(DecodeFileLine("Caf\xE9"), "Café");
    EXPECT_EQ(DecodeFileLine("Caf\xC3\xA9"), "Café");
    EXPECT_EQ(DecodeFileLine("\xC3\xA9 \xE9"), "Ã© é");
    EXPECT_EQ(DecodeFileLine("\x81"), "\xC2\x81");
}

TEST(SettingsLine, EscapesStrayBytesAsLoneSurrogates) {
    const std::pair<const char*, const char*> rows[] = {
        {"/m/caf\xE9", "/m/caf\xED\xB3\xA9"}, // E9 is U+DCE9
        {"\x80\xFF", "\xED\xB2\x80\xED\xB3\xBF"},
        {"é\xE9", "é\xED\xB3\xA9"},
        {"Café", "Caf\xE9"},
        {"あ", "あ"},
        // In Windows-1252 this is ED B2 80, which would be read as an escaped stray byte.
        {"í²€", "í²€"},
        // Three stray bytes that look like an escaped one.
        {"\xED\xB2\x80", "\xED\xB3\xAD\xED\xB2\xB2\xED\xB2\x80"},
    };
    for (const auto& [text, bytes] : rows) {
        EXPECT_EQ(EncodeFileLine(text, StrayBytes::Escaped), bytes) << testing::PrintToString(text);
        EXPECT_EQ(DecodeFileLine(bytes, StrayBytes::Escaped), text) << testing::PrintToString(bytes);
    }
    EXPECT_EQ(EncodeFileLine("é \xE9", StrayBytes::AsTheyAre), "é \xE9");
}

TEST(SettingsLine, IsReadAsWindows1252WhereNeitherUtf8NorEscaped) {
    for (const char* bytes : {"\xE9", "\xED\xB2", "\xED\xB1\xBF", "\xED\xA0\x80", "\xED\xB4\x80",
                              "\xED\xB2\x80\xE9", "\xED\xB2\x41"}) {
        EXPECT_EQ(DecodeFileLine(bytes, StrayBytes::Escaped), DecodeWindows1252(bytes))
            << testing::PrintToString(bytes);
    }
    EXPECT_EQ(DecodeFileLine("\xED\xB2\x80", StrayBytes::AsTheyAre), DecodeWindows1252("\xED\xB2\x80"));
}

TEST(SettingsLine, RoundTripsAnyText) {
    std::mt19937 random(1);
    const std::string pieces[] = {"a", "é", "€", "あ", "\xED", "\xB2", "\x80", "\xBF", "\xE9", "í", "²", "🎵"};
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (std::size_t left = random() % 8; left > 0; --left) {
            text += pieces[random() % std::size(pieces)];
        }
        ASSERT_EQ(DecodeFileLine(EncodeFileLine(text, StrayBytes::Escaped), StrayBytes::Escaped), text)
            << testing::PrintToString(text);
    }
}

TEST(Characters, CountEachCharacterAndEachStrayByteOnce) {
    EXPECT_EQ(Characters("aé\xE9あ🎵"), (std::u32string{U'a', U'\u00E9', 0xDCE9, U'あ', U'🎵'}));
    EXPECT_EQ(FromCharacters(Characters("aé\xE9あ🎵")), "aé\xE9あ🎵");
}

TEST(FileLine, RoundTripsEveryTextWithoutStrayBytes) {
    std::vector<std::string> pieces = {"",       "a",      "あ",         "🎵",      "\u0100", "\u07FF",
                                       "\u0800", "\uFFFF", "\U00010000", "\u0080", "\u009F", "\uFEFF"};
    for (int byte = 0x80; byte < 256; ++byte) {
        pieces.push_back(Utf8(FromWindows1252(static_cast<unsigned char>(byte))));
    }
    // Three characters: a three-byte UTF-8 character can look like three code page characters.
    const std::vector<std::string> third = {"", "a", "‚", "\u0081", "¿", "あ", "é"};
    for (const std::string& first : pieces) {
        for (const std::string& second : pieces) {
            for (const std::string& last : third) {
                std::string text = first;
                text += second;
                text += last;
                ASSERT_EQ(DecodeFileLine(EncodeFileLine(text)), text) << testing::PrintToString(text);
            }
        }
    }
}

TEST(WholeCharacters, SplitsNoCharacter) {
    struct Row {
        std::string_view text;
        std::size_t most;
        std::size_t length;
    };
    const Row rows[] = {
        {"", 4, 0},
        {"abc", 4, 3},
        {"abcdef", 4, 4},
        {"abc\xC3\xA4z", 4, 3},
        {"ab\xC3\xA4zz", 4, 4},
        {"ab\xE2\x82\xACz", 4, 2},
        {"abc\xE2\x82\xACz", 4, 3},
        {"a\xF0\x9F\x8E\xB5z", 4, 1},
        {"\xF0\x9F\x8E\xB5z", 4, 4},
        // Stray bytes are not part of a character.
        {"\x82\x82\x82\x82\x82\x82", 4, 4},
        {"abc\xC3zzz", 4, 4},
        {"ab\xE2\x82zzz", 4, 4},
        {"abc\xE2\x82", 4, 4},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(WholeCharacters(row.text, row.most), row.length) << row.text;
    }
}

} // namespace
} // namespace tunedex
