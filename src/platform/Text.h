// Text encoding. In memory, text is UTF-8 in a std::string; bytes that are not valid UTF-8 (in old file
// names) are preserved as "stray bytes". Tags and listings use code page Windows-1252, whose five unused
// bytes 81 8D 8F 90 9D map to U+0081 ... U+009D.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

// U+FEFF in UTF-8: begins a text file to say that it is UTF-8.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// One decoding step: a character of `length` bytes, or one stray byte.
struct TextStep {
    char32_t character;
    std::size_t length;
    bool stray;
};

// Decodes at `position`, which must be less than text.size(). Overlong forms, surrogates and values above
// U+10FFFF are stray bytes.
TextStep StepAt(std::string_view text, std::size_t position);

bool IsAscii(std::string_view text);
// Whether the text has no stray bytes.
bool IsValidUtf8(std::string_view text);

// The length of the longest prefix of at most `most` bytes that splits no character; `most` is at least 4.
// For processing a long text in pieces.
std::size_t WholeCharacters(std::string_view text, std::size_t most);

void AppendUtf8(std::string& text, char32_t character);

char32_t FromWindows1252(unsigned char byte);
std::optional<unsigned char> ToWindows1252(char32_t character);

std::string DecodeWindows1252(std::string_view bytes);
void AppendDecodedWindows1252(std::string& text, std::string_view bytes);

// The substitute for a character that Windows-1252 lacks.
enum class Substitute { QuestionMark, DecimalReference };

// Appends the text encoded in Windows-1252; stray bytes are unchanged. U+FFFE and U+FFFF, which HTML and XML
// forbid, become references to U+FFFD.
void AppendWindows1252(std::string& bytes, std::string_view text, Substitute substitute);

// Appends the text as part of a document in ISO-8859-1: decimal character references for what that code page
// lacks. References to U+FFFD replace what neither HTML 4.01 nor XML 1.0 permits: control characters other
// than TAB, CR and LF, U+FFFE, U+FFFF, and the stray bytes 80 to 9F. Other stray bytes are unchanged.
void AppendLatin1References(std::string& bytes, std::string_view text);
// Whether AppendLatin1References leaves the text as it is, and all of it is ASCII.
bool IsDocumentAscii(std::string_view text);

// Upper case of a-z and of every Windows-1252 letter whose upper case is in Windows-1252. Required: other
// scripts stay unchanged. The length in bytes never changes.
std::string UpperCase(std::string_view text);
// Whether the text, upper-cased, ends in `upperCaseEnd`, which must be ASCII.
bool EndsInIgnoringCase(std::string_view text, std::string_view upperCaseEnd);

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);
// The pieces between separators. Required: an empty text yields no pieces, not one empty piece.
std::vector<std::string> Split(std::string_view text, std::string_view separator);
std::string_view TrimBlanks(std::string_view text);
std::string_view TrimBlanksRight(std::string_view text);

// The characters of a text; a stray byte xx is the lone surrogate U+DCxx.
std::u32string Characters(std::string_view text);
std::string FromCharacters(std::u32string_view characters);

// How the program's own files store stray bytes.
enum class StrayBytes {
    AsTheyAre, // unchanged: the log, tips, statistics, entity table
    Escaped,   // settings and themes: in a UTF-8 line as the lone surrogate U+DCxx (ED B2 80 to ED B3 BF)
};

// Encodes or decodes one line of the program's own files. A line is written in Windows-1252 when it is
// representable and the result does not happen to be valid multi-byte UTF-8, otherwise in UTF-8. It is read
// as UTF-8 when valid, otherwise as Windows-1252. Text without stray bytes survives a round trip; with
// escaped stray bytes, any text does.
std::string EncodeFileLine(std::string_view text, StrayBytes strayBytes = StrayBytes::AsTheyAre);
std::string DecodeFileLine(std::string_view bytes, StrayBytes strayBytes = StrayBytes::AsTheyAre);

} // namespace tunedex
