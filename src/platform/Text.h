// Texts. In memory every text is UTF-8 in a std::string; bytes that are no UTF-8 (an old file name) are
// carried along as "stray bytes" and never change. The 8-bit code page of tags and listings is Windows-1252,
// whose five unused bytes 81 8D 8F 90 9D stand for U+0081 ... U+009D.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

// One step through a text: a character of `length` bytes, or (stray) one byte that belongs to no character.
struct TextStep {
    char32_t character;
    std::size_t length;
    bool stray;
};

// The step at `position`, which must be less than text.size(). Overlong forms, surrogates and values above
// U+10FFFF are stray bytes.
TextStep StepAt(std::string_view text, std::size_t position);

bool IsAscii(std::string_view text);
// Whether the text holds no stray byte.
bool IsValidUtf8(std::string_view text);

// The length of the longest start of `text` that has at most `most` bytes and splits no character; `most` is
// 4 or more. A long text is worked on in such pieces.
std::size_t WholeCharacters(std::string_view text, std::size_t most);

void AppendUtf8(std::string& text, char32_t character);

char32_t FromWindows1252(unsigned char byte);
std::optional<unsigned char> ToWindows1252(char32_t character);

// Bytes of a tag as a text.
std::string DecodeWindows1252(std::string_view bytes);
void AppendDecodedWindows1252(std::string& text, std::string_view bytes);

// What takes the place of a character that Windows-1252 lacks.
enum class Substitute { QuestionMark, DecimalReference };

// Appends the text in Windows-1252; a stray byte is written as it is. U+FFFE and U+FFFF, which no document
// may hold, become references to U+FFFD.
void AppendWindows1252(std::string& bytes, std::string_view text, Substitute substitute);

// Upper case of a-z and of every Windows-1252 letter that has its partner in Windows-1252; the length in
// bytes never changes.
std::string UpperCase(std::string_view text);
// Whether the text ends in `upperCaseEnd` when upper-cased; the end must be ASCII.
bool EndsInIgnoringCase(std::string_view text, std::string_view upperCaseEnd);

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);
// The pieces between separators; an empty text has no pieces.
std::vector<std::string> Split(std::string_view text, std::string_view separator);
std::string_view TrimBlanks(std::string_view text);
std::string_view TrimBlanksRight(std::string_view text);

// The characters of a text one by one; a stray byte xx is the lone surrogate U+DCxx.
std::u32string Characters(std::string_view text);
std::string FromCharacters(std::u32string_view characters);

// How a line of the program's own files holds stray bytes.
enum class StrayBytes {
    AsTheyAre, // the log, tips, statistics, entity table
    Escaped,   // settings and themes: in a UTF-8 line as the lone surrogate U+DCxx (ED B2 80 to ED B3 BF)
};

// One line of the program's own files. Written in Windows-1252 if that can hold it and if those bytes are not
// valid UTF-8 with a multi-byte character by chance, otherwise in UTF-8; read as UTF-8 where valid, else as
// Windows-1252. Every text of whole characters survives a round trip; with escaped stray bytes, any text
// does.
std::string EncodeFileLine(std::string_view text, StrayBytes strayBytes = StrayBytes::AsTheyAre);
std::string DecodeFileLine(std::string_view bytes, StrayBytes strayBytes = StrayBytes::AsTheyAre);

} // namespace tunedex
