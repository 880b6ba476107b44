// Text of unknown origin on a terminal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tunedex {

// The text with "?" in place of every character that would move the cursor, change the terminal's state or
// reorder the line: control characters, line breaks (U+2028 and U+2029 too), marks of writing direction, and
// stray bytes that an 8-bit terminal takes for control characters. UTF-8 in and out; other stray bytes stay.
std::string TerminalText(std::string_view text);

// The first characters of the text, `bytes` bytes at most. No character is cut in two.
std::string_view CutToBytes(std::string_view text, std::size_t bytes);

} // namespace tunedex
