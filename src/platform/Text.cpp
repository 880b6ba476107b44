#include "Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace tunedex {

namespace {

// Windows-1252 for bytes 80 to 9F; every other byte equals its code point.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

unsigned char ByteAt(std::string_view text, std::size_t position) {
    return static_cast<unsigned char>(text[position]);
}

// The number of ASCII bytes from `position` on. Tests 64 bytes at a time, since nearly all text is ASCII.
std::size_t AsciiRun(std::string_view text, std::size_t position) {
    const std::size_t start = position;
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    using Pair [[gnu::vector_size(16)]] = std::uint64_t;
    using Blocks = std::array<Pair, 4>;
    while (text.size() - position >= sizeof(Blocks)) {
        Blocks blocks; // NOLINT(cppcoreguidelines-pro-type-member-init): filled below
        std::memcpy(blocks.data(), text.data() + position, sizeof blocks);
        const Pair all = blocks[0] | blocks[1] | blocks[2] | blocks[3];
        if (((all[0] | all[1]) & kHighBits) != 0) {
            break;
        }
        position += sizeof blocks;
    }
    while (text.size() - position >= sizeof(std::uint64_t)) {
        std::uint64_t block = 0;
        std::memcpy(&block, text.data() + position, sizeof block);
        if ((block & kHighBits) != 0) {
            break;
        }
        position += sizeof block;
    }
    while (position < text.size() && ByteAt(text, position) < 0x80) {
        ++position;
    }
    return position - start;
}

// ASCII that a document may hold: printable characters, TAB, CR and LF. Without branches, so that the
// compiler vectorises the loop below.
constexpr bool IsDocumentByte(unsigned char byte) {
    const bool printable = static_cast<unsigned char>(byte - 0x20U) < 0x5F;
    const bool space = (byte == '\t') | (byte == '\n') | (byte == '\r');
    return printable | space;
}

// The number of such bytes from `position` on.
std::size_t DocumentRun(std::string_view text, std::size_t position) {
    constexpr std::size_t kBlock = 64;
    const std::size_t start = position;
    while (text.size() - position >= kBlock) {
        bool all = true;
        for (std::size_t i = 0; i < kBlock; ++i) {
            all &= IsDocumentByte(ByteAt(text, position + i));
        }
        if (!all) {
            break;
        }
        position += kBlock;
    }
    while (position < text.size() && IsDocumentByte(ByteAt(text, position))) {
        ++position;
    }
    return position - start;
}

constexpr char32_t kReplacementCharacter = 0xFFFD;

char32_t UpperCaseOf(char32_t character) {
    if ((character >= 0xE0 && character <= 0xF6) || (character >= 0xF8 && character <= 0xFE)) {
        return character - 0x20;
    }
    switch (character) {
    case 0xFF: // y with diaeresis
        return 0x178;
    case 0x161: // s with caron
    case 0x153: // oe
    case 0x17E: // z with caron
        return character - 1;
    default:
        return character;
    }
}

// HTML and XML forbid U+FFFE and U+FFFF, even as references.
char32_t InDocument(char32_t character) {
    return character == 0xFFFE || character == 0xFFFF ? kReplacementCharacter : character;
}

void AppendReference(std::string& bytes, char32_t character) {
    bytes += "&#";
    bytes += std::to_string(static_cast<std::uint32_t>(character));
    bytes += ';';
}

// A stray byte xx (80 to FF) is represented by the lone surrogate U+DCxx.
constexpr char32_t kStraySurrogates = 0xDC00;

bool IsStraySurrogate(char32_t character) {
    return character >= kStraySurrogates + 0x80 && character <= kStraySurrogates + 0xFF;
}

// Decodes the UTF-8 form of a lone surrogate at `position` into its stray byte.
std::optional<unsigned char> EscapedStrayByte(std::string_view bytes, std::size_t position) {
    if (bytes.size() - position < 3 || ByteAt(bytes, position) != 0xED) {
        return std::nullopt;
    }
    const unsigned middle = ByteAt(bytes, position + 1);
    const unsigned last = ByteAt(bytes, position + 2);
    if ((middle != 0xB2 && middle != 0xB3) || (last & 0xC0U) != 0x80U) {
        return std::nullopt;
    }
    return static_cast<unsigned char>(((middle & 0x03U) << 6U) | (last & 0x3FU));
}

// Whether the line is valid UTF-8; with StrayBytes::Escaped, escaped stray bytes count as valid.
bool IsUtf8Line(std::string_view bytes, StrayBytes strayBytes) {
    for (std::size_t i = 0; i < bytes.size();) {
        const TextStep step = StepAt(bytes, i);
        if (!step.stray) {
            i += step.length;
        } else if (strayBytes == StrayBytes::Escaped && EscapedStrayByte(bytes, i)) {
            i += 3;
        } else {
            return false;
        }
    }
    return true;
}

std::string EncodeUtf8Line(std::string_view text, StrayBytes strayBytes) {
    if (strayBytes == StrayBytes::AsTheyAre) {
        return std::string(text);
    }
    std::string bytes;
    for (const char32_t character : Characters(text)) {
        AppendUtf8(bytes, character);
    }
    return bytes;
}

std::string UnescapeStrayBytes(std::string_view bytes) {
    std::string text;
    for (std::size_t i = 0; i < bytes.size();) {
        if (const auto stray = EscapedStrayByte(bytes, i)) {
            text += static_cast<char>(*stray);
            i += 3;
        } else {
            text += bytes[i];
            ++i;
        }
    }
    return text;
}

} // namespace

TextStep StepAt(std::string_view text, std::size_t position) {
    const unsigned char lead = ByteAt(text, position);
    if (lead < 0x80) {
        return {lead, 1, false};
    }
    const TextStep stray{lead, 1, true};
    std::size_t length = 0;
    char32_t smallest = 0;
    char32_t value = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
        smallest = 0x80;
        value = lead & 0x1FU;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        smallest = 0x800;
        value = lead & 0x0FU;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        smallest = 0x10000;
        value = lead & 0x07U;
    } else {
        return stray;
    }
    if (text.size() - position < length) {
        return stray;
    }
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned char next = ByteAt(text, position + i);
        if ((next & 0xC0U) != 0x80U) {
            return stray;
        }
        value = (value << 6U) | (next & 0x3FU);
    }
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < smallest || surrogate || value > 0x10FFFF) {
        return stray;
    }
    return {value, length, false};
}

std::size_t WholeCharacters(std::string_view text, std::size_t most) {
    if (text.size() <= most) {
        return text.size();
    }
    // A step always begins at a lead byte, so only a character that begins in the last three bytes can be
    // split.
    constexpr std::size_t kLongestStart = 3;
    for (std::size_t before = 1; before <= kLongestStart; ++before) {
        if (StepAt(text, most - before).length > before) {
            return most - before;
        }
    }
    return most;
}

bool IsAscii(std::string_view text) {
    return AsciiRun(text, 0) == text.size();
}

bool IsValidUtf8(std::string_view text) {
    for (std::size_t i = AsciiRun(text, 0); i < text.size(); i += AsciiRun(text, i)) {
        const TextStep step = StepAt(text, i);
        if (step.stray) {
            return false;
        }
        i += step.length;
    }
    return true;
}

void AppendUtf8(std::string& text, char32_t character) {
    const auto put = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0U | (character >> 6U));
        put(0x80U | (character & 0x3FU));
    } else if (character < 0x10000) {
        put(0xE0U | (character >> 12U));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    } else {
        put(0xF0U | (character >> 18U));
        put(0x80U | ((character >> 12U) & 0x3FU));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    }
}

char32_t FromWindows1252(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? kHighControls.at(byte - 0x80U) : byte;
}

std::optional<unsigned char> ToWindows1252(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<unsigned char>(character);
    }
    const auto* const found = std::find(kHighControls.begin(), kHighControls.end(), character);
    if (found == kHighControls.end()) {
        return std::nullopt;
    }
    return static_cast<unsigned char>(0x80 + (found - kHighControls.begin()));
}

std::string DecodeWindows1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    AppendDecodedWindows1252(text, bytes);
    return text;
}

void AppendDecodedWindows1252(std::string& text, std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size();) {
        const std::size_t run = AsciiRun(bytes, i);
        text.append(bytes, i, run);
        i += run;
        if (i < bytes.size()) {
            AppendUtf8(text, FromWindows1252(ByteAt(bytes, i)));
            ++i;
        }
    }
}

void AppendWindows1252(std::string& bytes, std::string_view text, Substitute substitute) {
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t run = AsciiRun(text, i);
        bytes.append(text, i, run);
        i += run;
        if (i == text.size()) {
            return;
        }
        const TextStep step = StepAt(text, i);
        i += step.length;
        if (step.stray) {
            bytes += static_cast<char>(step.character);
        } else if (const auto byte = ToWindows1252(step.character)) {
            bytes += static_cast<char>(*byte);
        } else if (substitute == Substitute::QuestionMark) {
            bytes += '?';
        } else {
            AppendReference(bytes, InDocument(step.character));
        }
    }
}

void AppendLatin1References(std::string& bytes, std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t run = DocumentRun(text, i);
        bytes.append(text, i, run);
        i += run;
        if (i == text.size()) {
            return;
        }
        const TextStep step = StepAt(text, i);
        i += step.length;
        if (step.character >= 0xA0 && step.character <= 0xFF) {
            bytes += static_cast<char>(step.character);
        } else {
            AppendReference(bytes,
                            step.character < 0xA0 ? kReplacementCharacter : InDocument(step.character));
        }
    }
}

bool IsDocumentAscii(std::string_view text) {
    return DocumentRun(text, 0) == text.size();
}

std::string UpperCase(std::string_view text) {
    std::string upper(text);
    unsigned char bits = 0; // OR of all bytes; no branch in the loop, so the compiler vectorises it
    for (char& byte : upper) {
        bits |= static_cast<unsigned char>(byte);
        byte = static_cast<char>(byte - (byte >= 'a' && byte <= 'z' ? 0x20 : 0));
    }
    if (bits < 0x80) {
        return upper;
    }
    upper.clear();
    for (std::size_t i = 0; i < text.size();) {
        const TextStep step = StepAt(text, i);
        if (!step.stray && step.length > 1) {
            AppendUtf8(upper, UpperCaseOf(step.character));
        } else {
            const char byte = text[i];
            upper += byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 0x20) : byte;
        }
        i += step.length;
    }
    return upper;
}

bool EndsInIgnoringCase(std::string_view text, std::string_view upperCaseEnd) {
    if (text.size() < upperCaseEnd.size()) {
        return false;
    }
    text.remove_prefix(text.size() - upperCaseEnd.size());
    return std::equal(text.begin(), text.end(), upperCaseEnd.begin(), [](char a, char b) {
        return (a >= 'a' && a <= 'z' ? static_cast<char>(a - 0x20) : a) == b;
    });
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    std::size_t start = 0;
    for (std::size_t hit = text.find(from); hit != std::string_view::npos; hit = text.find(from, start)) {
        result.append(text, start, hit - start);
        result += to;
        start = hit + from.size();
    }
    result.append(text, start);
    return result;
}

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
    std::vector<std::string> pieces;
    if (text.empty()) {
        return pieces;
    }
    std::size_t start = 0;
    for (std::size_t hit = text.find(separator); hit != std::string_view::npos;
         hit = text.find(separator, start)) {
        pieces.emplace_back(text.substr(start, hit - start));
        start = hit + separator.size();
    }
    pieces.emplace_back(text.substr(start));
    return pieces;
}

std::string_view TrimBlanksRight(std::string_view text) {
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

std::string_view TrimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view() : TrimBlanksRight(text.substr(first));
}

std::u32string Characters(std::string_view text) {
    std::u32string characters;
    characters.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const TextStep step = StepAt(text, i);
        characters += step.stray ? kStraySurrogates + step.character : step.character;
        i += step.length;
    }
    return characters;
}

std::string FromCharacters(std::u32string_view characters) {
    std::string text;
    text.reserve(characters.size());
    for (const char32_t character : characters) {
        if (IsStraySurrogate(character)) {
            text += static_cast<char>(character - kStraySurrogates);
        } else {
            AppendUtf8(text, character);
        }
    }
    return text;
}

std::string EncodeFileLine(std::string_view text, StrayBytes strayBytes) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size();) {
        const TextStep step = StepAt(text, i);
        const auto byte = step.stray ? std::nullopt : ToWindows1252(step.character);
        if (!byte) {
            return EncodeUtf8Line(text, strayBytes);
        }
        bytes += static_cast<char>(*byte);
        i += step.length;
    }
    // These bytes are also valid UTF-8 and would be decoded as such.
    if (!IsAscii(bytes) && IsUtf8Line(bytes, strayBytes)) {
        return std::string(text);
    }
    return bytes;
}

std::string DecodeFileLine(std::string_view bytes, StrayBytes strayBytes) {
    if (!IsUtf8Line(bytes, strayBytes)) {
        return DecodeWindows1252(bytes);
    }
    return strayBytes == StrayBytes::Escaped ? UnescapeStrayBytes(bytes) : std::string(bytes);
}

} // namespace tunedex
