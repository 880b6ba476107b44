// Makes text of unknown origin safe to print on a terminal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tunedex {

// Replaces with "?" every character that would move the cursor, change the state of the terminal or reorder
// the line: control characters, line breaks (also U+2028 and U+2029), marks of writing direction, and stray
// bytes 80 to 9F, which an 8-bit terminal treats as control characters. UTF-8 in and out; other stray bytes
// are kept.
std::string TerminalText(std::string_view text);

// The longest prefix of at most `bytes` bytes that splits no character.
std::string_view CutToBytes(std::string_view text, std::size_t bytes);

} // namespace tunedex
