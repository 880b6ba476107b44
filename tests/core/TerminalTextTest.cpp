#include "TerminalText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tunedex {
namespace {

TEST(TerminalText, ReplacesOnlyWhatControlsTheTerminal) {
    const std::vector<std::pair<std::string, std::string>> rows = {
        {"", ""},
        {"plain, \u00e9 \u3042 \U0001F3B5", "plain, \u00e9 \u3042 \U0001F3B5"},
        {"\x1b[2J\a\t\x7f", "?[2J???"},
        {"a\r\nb\nc", "a??b?c"},
        {std::string("a\0b", 3), "a?b"},
        {"\u0080\u0085\u009b\u00a0", "???\u00a0"},               // C1 controls; the no-break space is kept
        {"\x9b\xff", "?\xff"},                                   // stray bytes
        {"\u2027\u2028\u2029", "\u2027??"},                      // line and paragraph separator
        {"\u061b\u061c\u061d", "\u061b?\u061d"},                 // Arabic letter mark
        {"\u200d\u200e\u200f\u2010", "\u200d??\u2010"},          // left-to-right and right-to-left mark
        {"\u202a\u202b\u202c\u202d\u202e\u202f", "?????\u202f"}, // embeddings and overrides
        {"\u2065\u2066\u2067\u2068\u2069\u206a", "\u2065????\u206a"}, // isolates
    };
    for (const auto& [text, shown] : rows) {
        EXPECT_EQ(TerminalText(text), shown) << text;
    }
}

TEST(CutToBytes, KeepsWholeCharacters) {
    const std::string text = "a\u00e9\u3042\xff"
                             "b"; // of 1, 2 and 3 bytes, a stray one, a last
    const std::vector<std::size_t> lengths = {0, 1, 1, 3, 3, 3, 6, 7, 8, 8};
    for (std::size_t bytes = 0; bytes < lengths.size(); ++bytes) {
        EXPECT_EQ(CutToBytes(text, bytes), text.substr(0, lengths[bytes])) << bytes;
    }
}

} // namespace
} // namespace tunedex
